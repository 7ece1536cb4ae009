#include "ui/text_box.h"

#include <QKeyEvent>
#include <QTextCursor>
#include <algorithm>

namespace quorvane {
namespace {

// Stands for CR LF where every line break is one character, as it is in the document.
constexpr QChar kCrLf(0xFDD2);

QString WithSingleBreaks(QString text) { return text.replace("\r\n", QString(kCrLf)); }

qsizetype CommonStart(QStringView left, QStringView right) {
  return std::ranges::mismatch(left, right).in1 - left.begin();
}

qsizetype CommonEnd(QStringView left, QStringView right) {
  const auto differ = std::mismatch(left.rbegin(), left.rend(), right.rbegin(), right.rend());
  return differ.first - left.rbegin();
}

}  // namespace

void TextBox::ShowText(const QString& text) {
  setPlainText(text);
  text_ = WithSingleBreaks(text);
  document_ = document()->toRawText();
}

void TextBox::AppendText(const QString& text) {
  TakeEdit();
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  end.insertText(text);
  setTextCursor(end);
  text_ += WithSingleBreaks(text);
  document_ = document()->toRawText();
}

QString TextBox::Text() {
  TakeEdit();
  QString text;
  text.reserve(text_.size());
  for (qsizetype i = 0; i < text_.size(); ++i) {
    const bool isCrLf = text_[i] == kCrLf && document_[i] == QChar::ParagraphSeparator;
    isCrLf ? text += "\r\n" : text += text_[i];
  }
  return text;
}

// What was edited lies between what is still the same at both ends. There the text stays as it was,
// because the document does not know what its line breaks were.
void TextBox::TakeEdit() {
  const QString now = document()->toRawText();
  const qsizetype start = CommonStart(now, document_);
  const qsizetype end =
      CommonEnd(QStringView(now).sliced(start), QStringView(document_).sliced(start));
  QString edited = now.sliced(start, now.size() - start - end);
  edited.replace(QChar::ParagraphSeparator, '\n');
  text_ = text_.first(start) + edited + text_.last(end);
  document_ = now;
}

// Shift and Enter would set a mark that looks like a line break here and is none in a file.
void TextBox::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::InsertLineSeparator)) {
    insertPlainText("\n");
  } else {
    QPlainTextEdit::keyPressEvent(event);
  }
}

}  // namespace quorvane

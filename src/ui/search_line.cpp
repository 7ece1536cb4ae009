#include "ui/search_line.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QStringListModel>
#include <QTextCharFormat>
#include <algorithm>
#include <utility>

#include "ui/texts.h"

namespace quorvane {
namespace {

// How many characters of the control's text so many bytes are.
int CharactersIn(const std::string& text, std::size_t bytes) {
  return static_cast<int>(ToQString(text.substr(0, bytes)).size());
}

QTextCharFormat FaultFormat() {
  QTextCharFormat format;
  format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
  format.setUnderlineColor(QColor(0xff, 0x8a, 0x80));
  format.setBackground(QColor(0x6e, 0x2b, 0x2b));
  return format;
}

}  // namespace

SearchLine::SearchLine(Completions completions, QWidget* parent)
    : QLineEdit(parent), completions_(std::move(completions)) {
  setObjectName("SearchLine");
  setClearButtonEnabled(true);
  entries_ = new QStringListModel(this);
  completer_ = new QCompleter(entries_, this);
  completer_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  completer_->setMaxVisibleItems(static_cast<int>(kMostCompletions));
  completer_->setWidget(this);
  completer_->popup()->setObjectName("SearchCompletions");
  completer_->popup()->setAccessibleName(tr("How the search may go on"));
  connect(completer_, qOverload<const QString&>(&QCompleter::activated), this, &SearchLine::Insert);
  connect(this, &QLineEdit::textEdited, this, &SearchLine::Offer);
}

void SearchLine::Offer() {
  const std::string before = ToText(text().left(cursorPosition()));
  offered_ = completions_(before, before.size());
  QStringList entries;
  for (const std::string& entry : offered_.Entries) entries << ToQString(entry);
  if (entries.isEmpty()) return completer_->popup()->hide();
  entries_->setStringList(entries);
  completer_->complete();
  completer_->popup()->setCurrentIndex({});  // Enter takes an entry only once one was chosen
}

void SearchLine::Insert(const QString& entry) {
  const std::string before = ToText(text().left(cursorPosition()));
  const int begin = CharactersIn(before, offered_.Begin);
  setSelection(begin, cursorPosition() - begin);
  insert(entry);
  // What was chosen may ask for a name behind it.
  if (entry.endsWith(':') || entry.endsWith('(')) Offer();
}

// The line's own attributes are the way to give a part of it another look.
void SearchLine::ShowFault(const std::optional<QueryFault>& fault) {
  marked_ = {0, 0};
  if (fault) {
    const std::string whole = ToText(text());
    const int begin = CharactersIn(whole, fault->Begin);
    const int end = CharactersIn(whole, fault->Begin + fault->Length);
    // Where something is missing at the end, the last character is as near as can be.
    const int first = begin < end ? begin : std::max(begin - 1, 0);
    marked_ = {first, std::max(end - first, 0)};
  }
  QList<QInputMethodEvent::Attribute> attributes;
  if (marked_.second > 0) {
    attributes.append({QInputMethodEvent::TextFormat, marked_.first - cursorPosition(),
                       marked_.second, FaultFormat()});
  }
  QInputMethodEvent event("", attributes);
  QCoreApplication::sendEvent(this, &event);
}

void SearchLine::keyPressEvent(QKeyEvent* event) {
  QAbstractItemView& popup = *completer_->popup();
  const int key = event->key();
  if (key == Qt::Key_Space && event->modifiers() == Qt::ControlModifier) return Offer();
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  const bool choosesEntry = popup.isVisible() && (!isEnter || popup.currentIndex().isValid());
  if (choosesEntry || (!isEnter && key != Qt::Key_Down)) return QLineEdit::keyPressEvent(event);
  popup.hide();
  emit ListAsked();
}

}  // namespace quorvane

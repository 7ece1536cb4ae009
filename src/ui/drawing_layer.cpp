#include "ui/drawing_layer.h"

#include <QTextBlock>
#include <QTextDocument>
#include <utility>

#include "formats/drawing_file.h"
#include "ui/text_box.h"
#include "ui/texts.h"

namespace quorvane {

DrawingLayer::DrawingLayer(TextBox& editor) : QObject(&editor), editor_(editor) {
  connect(&editor, &TextBox::textChanged, this, &DrawingLayer::Changed);
}

// Asked at every key: a layer of megabytes is not copied unless it is as long as the saved one.
bool DrawingLayer::IsSaved() const {
  const QTextDocument& text = *editor_.document();
  const int endOfText = 1;  // which the document counts as a character
  return text.characterCount() - endOfText == saved_.size() && text.toRawText() == saved_;
}

void DrawingLayer::Show(std::vector<DrawingRecord> records) {
  records_ = std::move(records);
  editor_.ShowText(ToQString(DrawingLayerText(records_)));
  TakeAsSaved();
}

Result<void> DrawingLayer::Read(const GameSession& session) {
  Result<std::vector<DrawingRecord>> records = ReadDrawingFile(session);
  if (!records) return records.Error();
  // A document of megabytes takes most of a second to make.
  const QString text = ToQString(DrawingLayerText(*records));
  if (text != editor_.Text()) editor_.ShowText(text);
  records_ = std::move(*records);
  TakeAsSaved();
  return {};
}

void DrawingLayer::Append(const DrawingRecord& record) {
  // A line that was typed may not have been ended yet.
  const bool isLineOpen = editor_.document()->lastBlock().length() > 1;
  editor_.AppendText((isLineOpen ? "\n" : "") + ToQString(DrawingRecordText(record)) + "\n");
}

void DrawingLayer::Clear() { editor_.clear(); }

Result<void> DrawingLayer::Save(const GameSession& session) {
  Result<void> saved = WriteDrawingFile(session, ToText(editor_.Text()));
  if (saved) TakeAsSaved();
  return saved;
}

void DrawingLayer::TakeAsSaved() {
  saved_ = editor_.document()->toRawText();
  emit Changed();
}

}  // namespace quorvane

#pragma once

#include <QPlainTextEdit>

namespace quorvane {

/// A box for a text of several lines that gives back what it was given and what was typed, to the
/// character. The toolkit's own makes blanks of no-break spaces and one kind of line break of all.
class TextBox : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit TextBox(QWidget* parent) : QPlainTextEdit(parent) {}

  /// Replaces the text.
  void ShowText(const QString& text);
  /// Adds a text at the end, and lets the cursor stand there.
  void AppendText(const QString& text);
  /// The text as it was shown, with what the user has changed since. Typed line breaks are LF.
  QString Text();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void TakeEdit();

  // The text when it was last looked at, and the document then, character by character the same but
  // for the line breaks.
  QString text_;
  QString document_;
};

}  // namespace quorvane

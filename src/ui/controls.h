#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QString>

namespace quorvane {

/// The tooltip text that shows a text as it stands: names come from other players' files, and
/// whatever looks like markup would be carried out, down to reading the files that it names. Lines
/// are short enough for the screen; a text of very many lines is cut.
QString PlainToolTip(const QString& text);

/// Gives a widget such a tooltip. The widget's property keeps the lines as they are, for those who
/// read it by other means.
void SetPlainToolTip(QWidget& widget, const QString& text);

/// How large a window can be on its screen, beside what its frame takes.
QSize RoomOnScreen(const QWidget& window);

/// A fixed text beside a value.
inline QLabel* NewCaption(const QString& text, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  return label;
}

/// A fixed text above a column of values.
inline QLabel* NewHeading(const QString& text, QWidget* parent) {
  QLabel* label = NewCaption(text, parent);
  label->setProperty("heading", true);
  return label;
}

/// A label that shows a value of the game, as plain text and under its control name.
inline QLabel* NewValue(const QString& name, QWidget* parent) {
  QLabel* label = NewCaption("", parent);
  label->setObjectName(name);
  label->setProperty("value", true);
  return label;
}

/// A text of several lines under its control name, broken to a width in pixels.
inline QLabel* NewParagraph(const QString& name, const QString& text, int width, QWidget* parent) {
  QLabel* label = NewCaption(text, parent);
  label->setObjectName(name);
  label->setWordWrap(true);
  label->setFixedWidth(width);
  return label;
}

/// Says what a box with a list is for. Screen readers call the box by the text that it shows, and
/// stop at the text box inside one that can be edited.
inline void NameBox(QComboBox& box, const QString& meaning) {
  box.setAccessibleName(meaning);
  box.setAccessibleDescription(meaning);
  if (box.lineEdit() != nullptr) box.lineEdit()->setAccessibleName(meaning);
}

/// Lets a part of a window scroll where a small screen has no room for all of it, so that the
/// buttons of the window are never pushed off the screen. The part with the focus is in sight.
QScrollArea* NewScrollArea(QWidget* part);

/// A button under its control name.
inline QPushButton* NewButton(const QString& name, const QString& caption, QWidget* parent) {
  auto* button = new QPushButton(caption, parent);
  button->setObjectName(name);
  return button;
}

}  // namespace quorvane

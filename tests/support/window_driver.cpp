#include "support/window_driver.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <cstdlib>
#include <iostream>

namespace quorvane {

WindowDriver& WindowDriver::Click(const QString& name) {
  QWidget& control = Usable(name);
  // Check boxes and option buttons react on their mark and text, which stand at the left.
  QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(8, control.height() / 2));
  return *this;
}

WindowDriver& WindowDriver::ClickEntry(const QString& list, const QString& text) {
  auto& widget = static_cast<QListWidget&>(Usable(list));
  const QList<QListWidgetItem*> found = widget.findItems(text, Qt::MatchExactly);
  if (found.isEmpty()) Missing(list + " entry " + text);
  QTest::mouseClick(widget.viewport(), Qt::LeftButton, {},
                    widget.visualItemRect(found.first()).center());
  return *this;
}

WindowDriver& WindowDriver::DoubleClickEntry(const QString& list, const QString& text) {
  ClickEntry(list, text);
  auto& widget = Find<QListWidget>(list);
  QTest::mouseDClick(widget.viewport(), Qt::LeftButton, {},
                     widget.visualItemRect(widget.currentItem()).center());
  return *this;
}

WindowDriver& WindowDriver::ClickAt(const QString& name, QPoint at) {
  QTest::mouseClick(&Usable(name), Qt::LeftButton, {}, at);
  return *this;
}

WindowDriver& WindowDriver::MoveTo(const QString& name, QPoint at) {
  QTest::mouseMove(&Usable(name), at);
  return *this;
}

WindowDriver& WindowDriver::Type(const QString& name, const QString& text) {
  QWidget& control = Usable(name);
  if (auto* box = qobject_cast<QLineEdit*>(&control)) box->clear();
  if (auto* combo = qobject_cast<QComboBox*>(&control)) combo->clearEditText();
  QTest::keyClicks(&control, text);
  return *this;
}

WindowDriver& WindowDriver::Press(const QString& name, Qt::Key key,
                                  Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&Usable(name), key, modifiers);
  return *this;
}

WindowDriver& WindowDriver::Choose(const QString& action) {
  QAction& item = Action(action);
  if (!item.isEnabled()) Missing(action + " (disabled)");
  item.trigger();
  return *this;
}

QAction& WindowDriver::Action(const QString& name) const { return Find<QAction>(name); }

QString WindowDriver::Text(const QString& name) const {
  const QWidget& control = Find(name);
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
  if (const auto* box = qobject_cast<const QLineEdit*>(&control)) return box->text();
  if (const auto* combo = qobject_cast<const QComboBox*>(&control)) return combo->currentText();
  Missing(name + " (shows no text)");
}

bool WindowDriver::IsDown(const QString& button) const {
  return Find<QAbstractButton>(button).isChecked();
}

void WindowDriver::Missing(const QString& name) {
  std::cerr << "There is no usable control " << name.toStdString() << std::endl;
  std::abort();
}

QWidget& WindowDriver::Usable(const QString& name) const {
  QWidget& control = Find(name);
  if (!control.isEnabled() || !control.isVisibleTo(&window_))
    Missing(name + " (hidden or disabled)");
  return control;
}

}  // namespace quorvane

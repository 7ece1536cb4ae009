#include "support/window_driver.h"

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

WindowDriver& WindowDriver::ClickAt(const QString& name, QPoint at) {
  QTest::mouseClick(&Usable(name), Qt::LeftButton, {}, at);
  return *this;
}

WindowDriver& WindowDriver::MoveTo(const QString& name, QPoint at) {
  // A pointer that is there already, from an earlier test, would not move.
  QTest::mouseMove(&Usable(name), at + QPoint(1, 1));
  QTest::mouseMove(&Usable(name), at);
  return *this;
}

WindowDriver& WindowDriver::Type(const QString& name, const QString& text) {
  QWidget& control = Usable(name);
  QTest::keySequence(&control, QKeySequence::SelectAll);
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

QString WindowDriver::Text(const QString& name) const {
  const QVariant text = Find(name).property("text");
  return (text.isValid() ? text : Find(name).property("currentText")).toString();
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

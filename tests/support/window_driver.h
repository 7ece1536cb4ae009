#pragma once

#include <QAction>
#include <QApplication>
#include <QTimer>
#include <QVariant>
#include <QWidget>

namespace quorvane {

/// Works a window the way a user does: finds controls by name and sends them real mouse and key
/// events. Looking for a control that does not exist ends the test with its name.
class WindowDriver {
 public:
  explicit WindowDriver(QWidget& window) : window_(window) {}

  template <typename Widget = QWidget>
  Widget& Find(const QString& name) const {
    auto* found = window_.findChild<Widget*>(name);
    if (found == nullptr) Missing(name);
    return *found;
  }

  /// A left click on the middle of a control, which must be visible and enabled.
  WindowDriver& Click(const QString& name);
  /// A left click on a list's entry.
  WindowDriver& ClickEntry(const QString& list, const QString& text);
  /// A left click at a place of a control, in its own pixels.
  WindowDriver& ClickAt(const QString& name, QPoint at);
  WindowDriver& MoveTo(const QString& name, QPoint at);
  /// Replaces what a text box holds, key by key.
  WindowDriver& Type(const QString& name, const QString& text);
  WindowDriver& Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
  /// Chooses a menu item, which must be enabled.
  WindowDriver& Choose(const QString& action);

  QAction& Action(const QString& name) const { return Find<QAction>(name); }
  /// What a label, button, text box or combo box shows.
  QString Text(const QString& name) const;
  bool IsVisible(const QString& name) const { return Find(name).isVisibleTo(&window_); }
  bool IsEnabled(const QString& name) const { return Find(name).isEnabled(); }
  bool IsDown(const QString& button) const { return Find(button).property("checked").toBool(); }

 private:
  [[noreturn]] static void Missing(const QString& name);
  QWidget& Usable(const QString& name) const;

  QWidget& window_;
};

/// Works the dialog that the next step opens.
template <typename Dialog = QWidget, typename Work>
void InNextDialog(const Work& work) {
  QTimer::singleShot(0, qApp,
                     [work] { work(dynamic_cast<Dialog&>(*QApplication::activeModalWidget())); });
}

}  // namespace quorvane

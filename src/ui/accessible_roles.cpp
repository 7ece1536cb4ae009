#include "ui/accessible_roles.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace quorvane {
namespace {

// A picture that is pressed like a button, on the keyboard with the space bar.
class PressedControl : public QAccessibleWidget {
 public:
  explicit PressedControl(QWidget* control) : QAccessibleWidget(control, QAccessible::Button) {}

  QStringList actionNames() const override {
    return QStringList(pressAction()) + QAccessibleWidget::actionNames();
  }

  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
    QApplication::sendEvent(widget(), &press);
  }
};

// Asked for each class of a control, the most special one first.
QAccessibleInterface* RoleOf(const QString& className, QObject* object) {
  auto* control = qobject_cast<QWidget*>(object);
  if (control == nullptr) return nullptr;
  if (className == "quorvane::RaceSwatch") return new PressedControl(control);
  if (className == "quorvane::PictureBox" || className == "quorvane::PieChart") {
    return new QAccessibleWidget(control, QAccessible::Graphic);
  }
  return nullptr;
}

}  // namespace

void InstallAccessibleRoles() { QAccessible::installFactory(RoleOf); }

}  // namespace quorvane

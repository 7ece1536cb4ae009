#include "ui/column_menu.h"

#include <QKeyEvent>

namespace quorvane {
namespace {

bool Tick(QAction* item) {
  if (item == nullptr || !item->isCheckable() || !item->isEnabled()) return false;
  item->trigger();
  return true;
}

}  // namespace

void ColumnMenu::mouseReleaseEvent(QMouseEvent* event) {
  if (!Tick(actionAt(event->pos()))) QMenu::mouseReleaseEvent(event);
}

void ColumnMenu::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool isTick = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
  if (!isTick || !Tick(activeAction())) QMenu::keyPressEvent(event);
}

}  // namespace quorvane

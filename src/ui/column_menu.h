#pragma once

#include <QMenu>

namespace quorvane {

/// A menu that stays open while its items are ticked, so that several can be chosen in one go.
class ColumnMenu : public QMenu {
  Q_OBJECT

 public:
  using QMenu::QMenu;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace quorvane

#pragma once

#include <QDialog>
#include <QLabel>
#include <QListWidget>

namespace quorvane {

class Grid;

/// The dialog "Show/Hide Columns": hides columns of the planet grid and shows them again, each at
/// the moment its entry is ticked. It is made anew for each use.
class ShowHide : public QDialog {
  Q_OBJECT

 public:
  explicit ShowHide(Grid& grid);

  QLabel* Label1 = nullptr;
  QListWidget* ShowHideList = nullptr;

  /// Set while the list is filled, so that ticking entries changes no column.
  bool FillingList = false;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Form_Load();
  void ShowHideList_ItemCheck(int item);

  Grid& grid_;
};

}  // namespace quorvane

#include "ui/show_hide.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include "screens/planet_grid.h"
#include "ui/controls.h"
#include "ui/grid.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(340, 480);
// The first column is always shown and has no entry.
constexpr int kFirstColumn = 1;

}  // namespace

ShowHide::ShowHide(Grid& grid) : QDialog(&grid), grid_(grid) {
  setObjectName("ShowHide");
  setWindowTitle("Show/Hide Columns");
  Label1 = NewCaption("De-select Column names to hide, select to show again", this);
  Label1->setObjectName("Label1");
  ShowHideList = new QListWidget(this);
  ShowHideList->setObjectName("ShowHideList");
  ShowHideList->setAccessibleName(tr("Columns"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(Label1);
  column->addWidget(ShowHideList);
  connect(ShowHideList, &QListWidget::itemChanged, this,
          [this](QListWidgetItem* entry) { ShowHideList_ItemCheck(ShowHideList->row(entry)); });
  Form_Load();
  resize(kFirstSize);
}

void ShowHide::Form_Load() {
  const QScopedValueRollback filling(FillingList, true);
  for (int column = kFirstColumn; column < grid_.ColumnCount(); ++column) {
    auto* entry = new QListWidgetItem(grid_.Heading(column), ShowHideList);
    entry->setCheckState(grid_.ColumnWidth(column) >= 1 ? Qt::Checked : Qt::Unchecked);
  }
  ShowHideList->setCurrentRow(0);
}

void ShowHide::ShowHideList_ItemCheck(int item) {
  if (FillingList) return;
  const int column = item + kFirstColumn;
  grid_.SetColumnWidth(column, grid_.ColumnWidth(column) > 0 ? 0 : kDefaultColumnWidth);
}

// All is done by then, so Enter closes the dialog as Escape does.
void ShowHide::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return accept();
  QDialog::keyPressEvent(event);
}

}  // namespace quorvane

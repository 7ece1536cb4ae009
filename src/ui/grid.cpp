#include "ui/grid.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <algorithm>
#include <map>
#include <utility>

#include "paint/twips.h"
#include "screens/planet_grid.h"
#include "ui/grid_heading.h"
#include "ui/grid_look.h"
#include "ui/grid_model.h"
#include "ui/show_hide.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(1200, 640);
constexpr int kSmallestTwips = 2000;
// What the window's outer size has beyond the table: frame and menu bar.
constexpr int kSidesTwips = 135;
constexpr int kTopAndBottomTwips = 700;
constexpr int kSparedPadding = 3;

// The style's room beside a text would cut "18 years old" in a column of the width given to it. A
// highlighted row would hide its owner's colour, and so would the style's mark of the current cell:
// that one has a frame instead.
class CellPainter : public CellTips {
 public:
  explicit CellPainter(QObject* parent) : CellTips(kSparedPadding, parent) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem plain = option;
    plain.state &= ~QStyle::State_HasFocus;
    const int alignment = index.data(Qt::TextAlignmentRole).toInt();
    if ((alignment & Qt::AlignLeft) != 0) plain.rect.adjust(-1, 0, kSparedPadding - 1, 0);
    painter->save();
    painter->setClipRect(option.rect);
    QStyledItemDelegate::paint(painter, plain, index);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
      painter->setPen(option.palette.color(QPalette::Link));
      painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
  }
};

void SetBehaviour(QTableView& table) {
  table.setSelectionMode(QAbstractItemView::NoSelection);
  table.setItemDelegate(new CellPainter(&table));
}

}  // namespace

Grid::Grid() {
  setObjectName("Grid");
  setWindowTitle("Planet Grid");
  setAttribute(Qt::WA_QuitOnClose, false);
  mnuView = menuBar()->addMenu("&View");
  mnuView->setObjectName("mnuView");
  mnuView->menuAction()->setObjectName("mnuView");
  mnuSH = mnuView->addAction("Show / Hide Columns", this, &Grid::mnuSH_Click);
  mnuSH->setObjectName("mnuSH");
  BuildTable();
  AddKeys();
  setMinimumSize(PixelsFromTwips(kSmallestTwips), PixelsFromTwips(kSmallestTwips));
  resize(kFirstSize);
}

void Grid::BuildTable() {
  setCentralWidget(new QWidget());
  model_ = new GridModel(this);
  DG = new QTableView(centralWidget());
  DG->setObjectName("DG");
  DG->setAccessibleName(tr("Planets"));
  auto* heading = new GridHeading(DG);
  heading->setToolTip(
      tr("Click to sort, with the right button from the end.\n"
         "Ctrl+Up and Ctrl+Down sort by the current column."));
  connect(heading, &GridHeading::Clicked, this, &Grid::DG_Click);
  DG->setHorizontalHeader(heading);
  DG->setModel(model_);
  SetBehaviour(*DG);
  GiveGridLook(*DG);
  DG->setFocus();
}

void Grid::AddKeys() {
  const auto sortCurrent = [this](Qt::SortOrder order) {
    const QModelIndex current = DG->currentIndex();
    if (current.isValid()) SortBy(current.column(), order);
  };
  const auto onKey = [this](const QKeySequence& key, const auto& act) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, act);
  };
  onKey(Qt::CTRL | Qt::Key_Up, [=] { sortCurrent(Qt::AscendingOrder); });
  onKey(Qt::CTRL | Qt::Key_Down, [=] { sortCurrent(Qt::DescendingOrder); });
  onKey(Qt::Key_Escape, [this] { close(); });
}

void Grid::Fill(const GameSession& session) {
  model_->Show(FillPlanetGrid(session));
  for (int column = 0; column < ColumnCount(); ++column) {
    SetColumnWidth(column, model_->Snapshot().Columns[static_cast<std::size_t>(column)].Width);
  }
  sorting_.clear();
  DG->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  DG->setCurrentIndex(model_->index(0, 0));
  DG->scrollToTop();
}

// The races, and with them the last columns, may have another order than a year ago.
void Grid::Refresh(const GameSession& session) {
  const QModelIndex current = DG->currentIndex();
  const int planet = model_->SnapshotRow(current.row());
  const QString heading = Heading(std::max(current.column(), 0));
  const QPoint scrolled(DG->horizontalScrollBar()->value(), DG->verticalScrollBar()->value());
  std::map<QString, int> widths;
  for (int column = 0; column < ColumnCount(); ++column) {
    widths[Heading(column)] = ColumnWidth(column);
  }
  std::vector<std::pair<QString, Qt::SortOrder>> sorting;
  for (const auto& [column, order] : sorting_) sorting.emplace_back(Heading(column), order);
  Fill(session);
  for (int column = 0; column < ColumnCount(); ++column) {
    if (widths.contains(Heading(column))) SetColumnWidth(column, widths[Heading(column)]);
  }
  for (const auto& [sorted, order] : sorting) {
    if (const int column = ColumnOf(sorted); column >= 0) SortBy(column, order);
  }
  DG->setCurrentIndex(model_->index(model_->ShownAt(planet), std::max(ColumnOf(heading), 0)));
  DG->horizontalScrollBar()->setValue(scrolled.x());
  DG->verticalScrollBar()->setValue(scrolled.y());
}

int Grid::ColumnOf(const QString& heading) const {
  for (int column = 0; column < ColumnCount(); ++column) {
    if (Heading(column) == heading) return column;
  }
  return -1;
}

int Grid::ColumnCount() const { return model_->columnCount(); }

QString Grid::Heading(int column) const { return model_->Heading(column); }

int Grid::ColumnWidth(int column) const {
  return DG->isColumnHidden(column) ? 0 : TwipsFromPixels(DG->columnWidth(column));
}

void Grid::SetColumnWidth(int column, int twips) {
  DG->setColumnHidden(column, twips == 0);
  if (twips == 0) return;
  DG->setColumnWidth(column, FirstColumnWidth(twips));
}

void Grid::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  Form_Resize();
}

// The frame that a window manager puts around the window becomes known with its first move.
void Grid::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  Form_Resize();
}

void Grid::Form_Resize() {
  if (isMinimized()) return;
  const QSize room = centralWidget()->size();
  const QSize outer = frameGeometry().size();
  // A frame thicker than the rule expects must not push the scroll bars out of sight.
  const int width =
      std::min(room.width(), PixelsFromTwips(TwipsFromPixels(outer.width()) - kSidesTwips));
  const int height = std::min(
      room.height(), PixelsFromTwips(TwipsFromPixels(outer.height()) - kTopAndBottomTwips));
  DG->setGeometry((room.width() - width) / 2, 0, width, height);
}

void Grid::DG_Click(int column, Qt::MouseButton button) {
  SortBy(column, button == Qt::LeftButton ? Qt::AscendingOrder : Qt::DescendingOrder);
}

// The column sorted by is the current one, also for the keyboard.
void Grid::SortBy(int column, Qt::SortOrder order) {
  const int row = std::max(DG->currentIndex().row(), 0);
  DG->setCurrentIndex(model_->index(row, column));
  model_->sort(column, order);
  std::erase_if(sorting_, [column](const auto& sorted) { return sorted.first == column; });
  sorting_.emplace_back(column, order);
  DG->horizontalHeader()->setSortIndicator(column, order);
}

void Grid::mnuSH_Click() { ShowHide(*this).exec(); }

}  // namespace quorvane

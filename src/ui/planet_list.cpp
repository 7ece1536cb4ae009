#include "ui/planet_list.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <chrono>
#include <utility>

#include "ui/column_menu.h"
#include "ui/grid_heading.h"
#include "ui/grid_look.h"
#include "ui/grid_model.h"
#include "ui/planet_rows.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kSelectionAlpha = 90;
constexpr int kRoomForMarks = 6;  // of what the table is sorted by

// A selected row is lightened, so that its owner's colour is seen still.
class RowPainter : public CellTips {
 public:
  explicit RowPainter(QObject* parent) : CellTips(0, parent) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem plain = option;
    plain.state &= ~(QStyle::State_HasFocus | QStyle::State_Selected);
    QStyledItemDelegate::paint(painter, plain, index);
    if (!option.state.testFlag(QStyle::State_Selected)) return;
    QColor light = option.palette.color(QPalette::Link);
    painter->setPen(light);
    painter->drawLine(option.rect.topLeft(), option.rect.topRight());
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    light.setAlpha(kSelectionAlpha);
    painter->fillRect(option.rect, light);
    if (!option.state.testFlag(QStyle::State_HasFocus)) return;
    painter->setPen(Qt::white);
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
  }
};

std::vector<bool> MaskOf(const std::vector<int>& planets, std::size_t count) {
  std::vector<bool> mask(count);
  for (const int planet : planets) mask.at(static_cast<std::size_t>(planet) - 1) = true;
  return mask;
}

}  // namespace

PlanetList::PlanetList(QWidget* parent) : QTableView(parent) {
  setObjectName("PlanetsTable");
  setAccessibleName(tr("Planets"));
  model_ = new GridModel(this);
  rows_ = new PlanetRows(this);
  rows_->setSourceModel(model_);
  SetUpHeading();
  setModel(rows_);
  setItemDelegate(new RowPainter(this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setTabKeyNavigation(false);
  GiveGridLook(*this);
  constexpr std::chrono::milliseconds kAfterLastChange(300);
  arranged_.setSingleShot(true);
  arranged_.setInterval(kAfterLastChange);
  connect(&arranged_, &QTimer::timeout, this, &PlanetList::Arranged);
}

void PlanetList::SetUpHeading() {
  heading_ = new GridHeading(this);
  heading_->setSectionsMovable(true);
  heading_->setToolTip(
      tr("Click to sort, again to turn round, with Ctrl to sort by several columns.\n"
         "Drag to move, right-click to choose columns.\n"
         "Ctrl+Up and Ctrl+Down sort by the current column, with Shift by several."));
  connect(heading_, &GridHeading::Clicked, this, &PlanetList::Heading_Clicked);
  connect(heading_, &QHeaderView::sectionMoved, this, &PlanetList::TakeArrangement);
  connect(heading_, &QHeaderView::sectionResized, this, &PlanetList::TakeArrangement);
  heading_->setDefaultAlignment(Qt::AlignHCenter | Qt::AlignBottom |
                                static_cast<Qt::Alignment>(Qt::TextWordWrap));
  heading_->setFixedHeight(heading_->height() + kRoomForMarks);
  setHorizontalHeader(heading_);
}

// The width of a column at first; no heading is cut.
int PlanetList::WidthOf(const PlanetGridColumn& column) const {
  constexpr int kBeside = 10;
  int widest = 0;
  for (const QString& line : ToQString(column.Heading).split("\r\n")) {
    widest = std::max(widest, heading_->fontMetrics().horizontalAdvance(line));
  }
  return std::max(FirstColumnWidth(column.Width), widest + kBeside);
}

const PlanetGrid& PlanetList::Table() const { return model_->Snapshot(); }

void PlanetList::ShowTable(PlanetGrid table, const std::vector<int>& found) {
  const QScopedValueRollback filling(isFilling_, true);
  const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  const std::vector<std::size_t> order = TableOrder(table, sorting_);
  std::vector<bool> mask = MaskOf(found, table.Rows.size());
  rows_->Show({}, {});
  model_->Show(std::move(table));
  rows_->Show(std::move(mask), order);
  Arrange(kept_);
  ShowMarks();
  horizontalScrollBar()->setValue(scrolled.x());
  verticalScrollBar()->setValue(scrolled.y());
}

void PlanetList::ShowFound(const std::vector<int>& found) {
  const QScopedValueRollback filling(isFilling_, true);
  rows_->ShowOnly(MaskOf(found, Table().Rows.size()));
}

void PlanetList::ShowWays(const GameSession& session, int selected, bool sortsAnew) {
  const QScopedValueRollback filling(isFilling_, true);
  std::pair<std::size_t, std::size_t> columns;
  model_->Update([&](PlanetGrid& table) { return columns = FillWays(table, session, selected); });
  const bool isSortedByWays = std::ranges::any_of(sorting_, [&](const ColumnSort& sort) {
    const auto column = ColumnNamed(Table(), sort.Column);
    return column && *column >= columns.first && *column <= columns.second;
  });
  if (sortsAnew && isSortedByWays) rows_->Arrange(TableOrder(Table(), sorting_));
}

int PlanetList::PlanetAt(const QModelIndex& index) const {
  return index.isValid() ? rows_->mapToSource(index).row() + 1 : 0;
}

int PlanetList::CurrentPlanet() const { return PlanetAt(currentIndex()); }

void PlanetList::SelectPlanet(int planet) {
  const QScopedValueRollback filling(isFilling_, true);
  chosen_ = planet;
  const int column = currentIndex().isValid() ? currentIndex().column() : FirstColumn();
  const QModelIndex row = rows_->mapFromSource(model_->index(planet - 1, column));
  if (planet < 1 || !row.isValid()) {
    selectionModel()->clear();
    return;
  }
  const bool isChosen = row.row() == currentIndex().row() && selectionModel()->isSelected(row);
  if (!isChosen) Choose(row);
  ShowCurrent();
}

// Whichever keys are held meanwhile.
void PlanetList::Choose(const QModelIndex& index) {
  selectionModel()->setCurrentIndex(
      index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

// Sideways nothing moves: it may be far to the current column.
void PlanetList::ShowCurrent() {
  const int left = horizontalScrollBar()->value();
  if (currentIndex().isValid()) scrollTo(currentIndex());
  horizontalScrollBar()->setValue(left);
}

void PlanetList::ChooseFirst() {
  if (rows_->rowCount() == 0 || selectionModel()->hasSelection()) return;
  Choose(rows_->index(0, FirstColumn()));
}

void PlanetList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  TakeChoice();
}

void PlanetList::selectionChanged(const QItemSelection& selected,
                                  const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  TakeChoice();
}

// The focus makes a row the current one without choosing it.
void PlanetList::TakeChoice() {
  if (isFilling_ || !selectionModel()->isSelected(currentIndex())) return;
  const int planet = CurrentPlanet();
  if (std::exchange(chosen_, planet) != planet) emit PlanetChosen(planet);
}

void PlanetList::SortBy(std::vector<ColumnSort> sorting) {
  const QScopedValueRollback filling(isFilling_, true);
  sorting_ = std::move(sorting);
  rows_->Arrange(TableOrder(Table(), sorting_));
  ShowMarks();
  ShowCurrent();
}

void PlanetList::ShowMarks() {
  std::vector<std::pair<int, Qt::SortOrder>> marks;
  for (const ColumnSort& sort : sorting_) {
    const auto column = ColumnNamed(Table(), sort.Column);
    if (!column) continue;
    marks.emplace_back(static_cast<int>(*column),
                       sort.IsDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
  }
  heading_->ShowSorting(std::move(marks));
}

void PlanetList::Heading_Clicked(int column, Qt::MouseButton button,
                                 Qt::KeyboardModifiers modifiers) {
  if (button == Qt::RightButton) {
    auto* menu = new ColumnMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FillColumnMenu(*menu);
    return menu->popup(QCursor::pos());
  }
  if (button != Qt::LeftButton) return;
  std::vector<ColumnSort> sorting = sorting_;
  ClickColumn(sorting, ColumnName(Table().Columns.at(static_cast<std::size_t>(column))),
              modifiers.testFlag(Qt::ControlModifier));
  SortBy(std::move(sorting));
}

void PlanetList::SortCurrent(Qt::SortOrder order, bool adds) {
  const int column = currentIndex().column();
  if (column < 0) return;
  const std::string name = ColumnName(Table().Columns.at(static_cast<std::size_t>(column)));
  std::vector<ColumnSort> sorting = adds ? sorting_ : std::vector<ColumnSort>();
  const auto known = std::ranges::find(sorting, name, &ColumnSort::Column);
  const ColumnSort sort = {.Column = name, .IsDescending = order == Qt::DescendingOrder};
  if (known != sorting.end()) {
    *known = sort;
  } else {
    sorting.push_back(sort);
  }
  SortBy(std::move(sorting));
}

void PlanetList::Arrange(std::vector<ColumnPlace> kept) {
  const QScopedValueRollback filling(isFilling_, true);
  kept_ = std::move(kept);
  int visual = 0;
  for (const ColumnPlace& place : ArrangeColumns(Table(), kept_)) {
    const auto column = static_cast<int>(*ColumnNamed(Table(), place.Column));
    const PlanetGridColumn& shown = Table().Columns[static_cast<std::size_t>(column)];
    heading_->moveSection(heading_->visualIndex(column), visual++);
    setColumnHidden(column, !place.IsShown);
    if (place.IsShown) setColumnWidth(column, place.Width > 0 ? place.Width : WidthOf(shown));
  }
}

// Takes what the user has done to the headings.
void PlanetList::TakeArrangement() {
  if (isFilling_) return;
  std::vector<ColumnPlace> places;
  for (int visual = 0; visual < heading_->count(); ++visual) {
    const int column = heading_->logicalIndex(visual);
    const PlanetGridColumn& shown = Table().Columns.at(static_cast<std::size_t>(column));
    ColumnPlace place = {.Column = ColumnName(shown), .IsShown = !isColumnHidden(column)};
    if (place.IsShown && columnWidth(column) != WidthOf(shown)) place.Width = columnWidth(column);
    places.push_back(std::move(place));
  }
  kept_ = WithOtherColumns(std::move(places), kept_);
  arranged_.start();
}

int PlanetList::FirstColumn() const {
  const std::vector<int> columns = ShownColumns();
  return columns.empty() ? 0 : columns.front();
}

std::vector<int> PlanetList::ShownColumns() const {
  std::vector<int> columns;
  for (int visual = 0; visual < heading_->count(); ++visual) {
    const int column = heading_->logicalIndex(visual);
    if (!isColumnHidden(column)) columns.push_back(column);
  }
  return columns;
}

void PlanetList::FillColumnMenu(QMenu& menu) {
  menu.clear();
  for (int visual = 0; visual < heading_->count(); ++visual) {
    const auto column = static_cast<std::size_t>(heading_->logicalIndex(visual));
    const std::string name = ColumnName(Table().Columns.at(column));
    QAction* item = menu.addAction(WithoutAccessKeys(ToQString(name)));
    item->setCheckable(true);
    item->setChecked(!isColumnHidden(static_cast<int>(column)));
    connect(item, &QAction::toggled, this,
            [this, name](bool isShown) { ShowColumn(name, isShown); });
  }
  menu.addSeparator();
  menu.addAction(tr("Columns as at First"), this, [this] {
    Arrange({});
    arranged_.start();
  });
}

// One column stays: without any there would be no heading to bring others back.
void PlanetList::ShowColumn(const std::string& column, bool isShown) {
  const auto found = ColumnNamed(Table(), column);
  if (!found || (!isShown && ShownColumns().size() == 1)) return;
  setColumnHidden(static_cast<int>(*found), !isShown);
  TakeArrangement();
}

std::vector<std::string> PlanetList::Headings() const {
  std::vector<std::string> headings;
  for (const int column : ShownColumns()) {
    headings.push_back(Table().Columns.at(static_cast<std::size_t>(column)).Heading);
  }
  return headings;
}

std::vector<std::vector<std::string>> PlanetList::Cells(bool onlySelected) const {
  const std::vector<int> columns = ShownColumns();
  std::vector<std::vector<std::string>> rows;
  for (int row = 0; row < rows_->rowCount(); ++row) {
    if (onlySelected && !selectionModel()->isSelected(rows_->index(row, 0))) continue;
    const auto planet = static_cast<std::size_t>(PlanetAt(rows_->index(row, 0)));
    const std::vector<std::string>& cells = Table().Rows.at(planet - 1).Cells;
    std::vector<std::string>& shown = rows.emplace_back();
    shown.reserve(columns.size());
    for (const int column : columns) shown.push_back(cells.at(static_cast<std::size_t>(column)));
  }
  return rows;
}

void PlanetList::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
  const bool isSort = (key == Qt::Key_Up || key == Qt::Key_Down) &&
                      event->modifiers().testFlag(Qt::ControlModifier);
  if (isEnter && CurrentPlanet() > 0) {
    emit ZoomAsked(CurrentPlanet());
  } else if (isSort) {
    SortCurrent(key == Qt::Key_Up ? Qt::AscendingOrder : Qt::DescendingOrder,
                event->modifiers().testFlag(Qt::ShiftModifier));
  } else if (event->matches(QKeySequence::Copy)) {
    emit CopyAsked();
  } else {
    QTableView::keyPressEvent(event);
  }
}

// The right button asks about a planet and leaves the selected one, from which its way counts.
void PlanetList::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::RightButton) QTableView::mousePressEvent(event);
}

void PlanetList::mouseDoubleClickEvent(QMouseEvent* event) {
  const int planet = PlanetAt(indexAt(event->pos()));
  if (event->button() == Qt::LeftButton && planet > 0) emit ZoomAsked(planet);
}

void PlanetList::contextMenuEvent(QContextMenuEvent* event) {
  const bool isKey = event->reason() == QContextMenuEvent::Keyboard;
  const QModelIndex index = isKey ? currentIndex() : indexAt(event->pos());
  if (!index.isValid()) return;
  const QPoint at =
      isKey ? visualRect(index).bottomLeft() : viewport()->mapFromGlobal(event->globalPos());
  emit MenuAsked(PlanetAt(index), viewport()->mapToGlobal(at));
}

}  // namespace quorvane

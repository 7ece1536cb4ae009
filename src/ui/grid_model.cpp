#include "ui/grid_model.h"

#include <QBrush>
#include <algorithm>
#include <numeric>
#include <utility>

#include "paint/colours.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

Qt::Alignment AlignmentOf(const PlanetGridColumn& column) {
  return Qt::AlignVCenter | (column.IsText ? Qt::AlignLeft : Qt::AlignRight);
}

}  // namespace

void GridModel::Show(PlanetGrid grid) {
  beginResetModel();
  grid_ = std::move(grid);
  order_.resize(grid_.Rows.size());
  std::iota(order_.begin(), order_.end(), std::size_t{0});
  endResetModel();
}

void GridModel::Update(
    const std::function<std::pair<std::size_t, std::size_t>(PlanetGrid&)>& change) {
  if (grid_.Rows.empty()) return;
  const auto [first, last] = change(grid_);
  emit dataChanged(index(0, static_cast<int>(first)),
                   index(rowCount() - 1, static_cast<int>(last)));
}

QString GridModel::Heading(int column) const {
  const PlanetGridColumn& shown = grid_.Columns.at(static_cast<std::size_t>(column));
  return ToQString(shown.Heading);
}

int GridModel::SnapshotRow(int shown) const {
  return shown >= 0 && shown < rowCount()
             ? static_cast<int>(order_[static_cast<std::size_t>(shown)])
             : 0;
}

int GridModel::ShownAt(int snapshotRow) const {
  const auto found = std::ranges::find(order_, static_cast<std::size_t>(snapshotRow));
  return found != order_.end() ? static_cast<int>(found - order_.begin()) : 0;
}

const PlanetGridRow& GridModel::ShownRow(int row) const {
  return grid_.Rows.at(order_.at(static_cast<std::size_t>(row)));
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(order_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(grid_.Columns.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const PlanetGridRow& row = ShownRow(index.row());
  switch (role) {
    case Qt::DisplayRole:
      return ToQString(row.Cells.at(static_cast<std::size_t>(index.column())));
    case Qt::ToolTipRole:
      return PlainToolTip(index.data().toString());
    case Qt::TextAlignmentRole:
      return QVariant(AlignmentOf(grid_.Columns.at(static_cast<std::size_t>(index.column()))));
    case Qt::BackgroundRole:
      return QBrush(QColor(RgbOf(row.Background)));
    case Qt::ForegroundRole:
      return QBrush(Qt::white);
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return Heading(section);
}

void GridModel::sort(int column, Qt::SortOrder order) {
  if (column < 0 || column >= columnCount()) return;
  emit layoutAboutToBeChanged({}, VerticalSortHint);
  const std::vector<std::size_t> oldOrder = order_;
  order_ = SortedRows(
      grid_, static_cast<std::size_t>(column),
      order == Qt::AscendingOrder ? SortDirection::Ascending : SortDirection::Descending, oldOrder);
  MoveSelections(oldOrder);
  emit layoutChanged({}, VerticalSortHint);
}

void GridModel::MoveSelections(const std::vector<std::size_t>& oldOrder) {
  std::vector<int> shownAt(order_.size());
  for (std::size_t row = 0; row < order_.size(); ++row)
    shownAt[order_[row]] = static_cast<int>(row);
  const QModelIndexList before = persistentIndexList();
  QModelIndexList after;
  for (const QModelIndex& old : before) {
    after << index(shownAt[oldOrder[static_cast<std::size_t>(old.row())]], old.column());
  }
  changePersistentIndexList(before, after);
}

}  // namespace quorvane

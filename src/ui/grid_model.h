#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

#include "screens/planet_grid.h"

namespace quorvane {

/// Shows a snapshot of all planets to a table view. Texts become the view's own only as they come
/// into sight, and sorting moves row numbers, never cells.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  /// Replaces the snapshot; its rows are shown in the order in which they come.
  void Show(PlanetGrid grid);
  /// Lets texts of the snapshot be changed.
  /// @param change  gives back the columns in which it changed some, first and last
  void Update(const std::function<std::pair<std::size_t, std::size_t>(PlanetGrid&)>& change);
  const PlanetGrid& Snapshot() const { return grid_; }
  /// Which row of the snapshot a row on screen shows, and where a row of the snapshot is shown;
  /// both from 0. Rows that are not there are the first one.
  int SnapshotRow(int shown) const;
  int ShownAt(int snapshotRow) const;
  /// A column's heading with its line break.
  QString Heading(int column) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  /// Sorts whole rows; equal ones stay as they are. Selections move with their rows.
  void sort(int column, Qt::SortOrder order) override;

 private:
  const PlanetGridRow& ShownRow(int row) const;
  void MoveSelections(const std::vector<std::size_t>& oldOrder);

  PlanetGrid grid_;
  std::vector<std::size_t> order_;  // for each row on screen, its number in the snapshot
};

}  // namespace quorvane

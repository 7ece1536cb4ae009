#pragma once

#include <QSortFilterProxyModel>
#include <cstddef>
#include <vector>

namespace quorvane {

/// The rows of a table that were found, in an order that was worked out for all of them.
class PlanetRows : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit PlanetRows(QObject* parent);

  /// Shows the rows that are marked, counted from 0 in the table.
  void ShowOnly(std::vector<bool> found);
  /// Shows the rows in this order of their numbers in the table.
  void Arrange(const std::vector<std::size_t>& order);
  /// Both at once.
  void Show(std::vector<bool> found, const std::vector<std::size_t>& order);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  void TakeOrder(const std::vector<std::size_t>& order);

  std::vector<bool> found_;
  std::vector<std::size_t> rank_;  // of each row of the table
};

}  // namespace quorvane

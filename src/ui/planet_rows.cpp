#include "ui/planet_rows.h"

#include <utility>

namespace quorvane {

PlanetRows::PlanetRows(QObject* parent) : QSortFilterProxyModel(parent) {
  setDynamicSortFilter(false);
  sort(0);  // from now on the rows are in the order that `lessThan` tells
}

void PlanetRows::ShowOnly(std::vector<bool> found) {
  found_ = std::move(found);
  // All at once: rows that leave and come one by one would take a thousand times longer.
  invalidate();
}

void PlanetRows::Arrange(const std::vector<std::size_t>& order) {
  TakeOrder(order);
  invalidate();
}

void PlanetRows::Show(std::vector<bool> found, const std::vector<std::size_t>& order) {
  TakeOrder(order);
  ShowOnly(std::move(found));
}

void PlanetRows::TakeOrder(const std::vector<std::size_t>& order) {
  rank_.resize(order.size());
  for (std::size_t place = 0; place < order.size(); ++place) rank_[order[place]] = place;
}

bool PlanetRows::filterAcceptsRow(int row, const QModelIndex&) const {
  const auto at = static_cast<std::size_t>(row);
  return at < found_.size() && found_[at];
}

bool PlanetRows::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const auto rankOf = [this](const QModelIndex& index) {
    const auto row = static_cast<std::size_t>(index.row());
    return row < rank_.size() ? rank_[row] : row;
  };
  return rankOf(left) < rankOf(right);
}

}  // namespace quorvane

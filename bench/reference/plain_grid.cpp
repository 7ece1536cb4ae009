#include "reference/plain_grid.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "model/field_value.h"
#include "model/text.h"

namespace quorvane::reference {
namespace {

bool IsBefore(const std::string& left, const std::string& right) {
  if (left.empty() || right.empty()) return left.empty() && !right.empty();
  const std::optional<double> leftNumber = WholeTextNumber(left);
  const std::optional<double> rightNumber = WholeTextNumber(right);
  if (leftNumber && rightNumber) return *leftNumber < *rightNumber;
  if (leftNumber || rightNumber) return leftNumber.has_value();
  return left < right;
}

bool IsBeforeIgnoringCase(const std::string& left, const std::string& right) {
  return InLowerCase(left) < InLowerCase(right);
}

}  // namespace

std::vector<std::size_t> PlainSortedRows(const PlanetGrid& grid, std::size_t column,
                                         SortDirection direction, std::vector<std::size_t> order) {
  const auto compare = grid.Columns.at(column).IsText ? IsBeforeIgnoringCase : IsBefore;
  std::ranges::stable_sort(order, [&](std::size_t left, std::size_t right) {
    if (direction == SortDirection::Descending) std::swap(left, right);
    return compare(grid.Rows[left].Cells[column], grid.Rows[right].Cells[column]);
  });
  return order;
}

}  // namespace quorvane::reference

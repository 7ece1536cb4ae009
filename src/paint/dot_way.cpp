#include "paint/dot_way.h"

#include <algorithm>
#include <cmath>

namespace quorvane {
namespace {

// For values that an int can hold.
inline int RoundDown(double value) {
  const int whole = static_cast<int>(value);
  return whole - (value < whole ? 1 : 0);
}

}  // namespace

DotWay::DotWay(QPointF from, QPointF to, int diameter)
    : from_(from),
      way_(to - from),
      last_(static_cast<int>(std::ceil(std::max(std::abs(way_.x()), std::abs(way_.y()))))),
      steps_(std::max(last_, 1)),
      margin_((diameter - 1) / 2.0) {}

PixelPlace DotWay::Corner(int dot) const {
  const QPointF centre = Centre(dot);
  return {RoundDown(centre.x() - margin_), RoundDown(centre.y() - margin_)};
}

// The same as above, in a way that lets the processor compute several values at once: numbers above
// 0 are rounded down by leaving their fractions out.
bool DotWay::Corners(int first, std::span<int> columns, std::span<int> rows) const {
  const double fromX = from_.x();
  const double fromY = from_.y();
  const double wayX = way_.x();
  const double wayY = way_.y();
  const double steps = steps_;
  const double margin = margin_;
  const int count = static_cast<int>(columns.size());
  int* const column = columns.data();
  int* const row = rows.data();
  // Fractions in so many parts are far coarser than what rounding may change in a position.
  constexpr int kParts = 1 << 20;
  int least = kParts;
  int most = 0;
  for (int i = 0; i < count; ++i) {
    const double fraction = (first + i) / steps;
    const double x = fromX + wayX * fraction - margin;
    const double y = fromY + wayY * fraction - margin;
    column[i] = static_cast<int>(x);
    row[i] = static_cast<int>(y);
    const int xParts = static_cast<int>((x - column[i]) * kParts);
    const int yParts = static_cast<int>((y - row[i]) * kParts);
    least = std::min(least, std::min(xParts, yParts));
    most = std::max(most, std::max(xParts, yParts));
  }
  return least > 0 && most < kParts - 1;
}

}  // namespace quorvane

#include "platform/toolkit/dot_way.h"

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
void DotWay::Corners(int first, std::span<int> columns, std::span<int> rows) const {
  const double fromX = from_.x();
  const double fromY = from_.y();
  const double wayX = way_.x();
  const double wayY = way_.y();
  const double steps = steps_;
  const double margin = margin_;
  const int count = static_cast<int>(columns.size());
  int* const column = columns.data();
  int* const row = rows.data();
  for (int i = 0; i < count; ++i) {
    const double fraction = (first + i) / steps;
    column[i] = static_cast<int>(fromX + wayX * fraction - margin);
    row[i] = static_cast<int>(fromY + wayY * fraction - margin);
  }
}

}  // namespace quorvane

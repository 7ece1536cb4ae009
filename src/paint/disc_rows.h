#pragma once

#include <QPointF>
#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

namespace quorvane {

/// Pixels first … last of a row; none when last is before first.
struct PixelSpan {
  int First = 0;
  int Last = -1;

  bool IsEmpty() const { return First > Last; }
};

// For values that an int can hold. The library's functions are calls unless the program is built
// for newer processors only, and rows and lines are rounded by the ten thousand.
inline int RoundDown(double value) {
  const int whole = static_cast<int>(value);
  return whole - (value < whole ? 1 : 0);
}
inline int RoundUp(double value) { return -RoundDown(-value); }

/// The pixels of row `y` whose centres lie within the radius, cut to a picture of some width.
/// Inline: a redraw fills several hundred thousand rows of a few pixels.
inline PixelSpan SpanWithin(QPointF centre, double radius, int y, int width) {
  const double down = y + 0.5 - centre.y();
  const double halfWidthSquared = radius * radius - down * down;
  if (radius < 0 || !(halfWidthSquared >= 0)) return {};
  const double halfWidth = std::sqrt(halfWidthSquared);
  const double first = std::clamp(centre.x() - halfWidth - 0.5, 0.0, 1.0 * width);
  const double last = std::clamp(centre.x() + halfWidth - 0.5, -1.0, width - 1.0);
  return {RoundUp(first), RoundDown(last)};
}

/// A disc in pixels: finite, and as large as a pixel at least.
struct PixelDisc {
  QPointF Centre;
  double Radius = 0;
};

/// Many discs of one colour, where only the area that they cover together matters.
class DiscUnion {
 public:
  DiscUnion(std::span<const PixelDisc> discs, int width) : discs_(discs), width_(width) {}

  /// Looks at the rows top … last of the picture; a few of them at a time are best.
  void LookAt(int top, int last);
  /// What is covered in every one of these rows: some spans from left to right.
  const std::vector<PixelSpan>& InAllRows() const { return inAllRows_; }
  /// Calls a function with what else is covered in one of them, by parts that may overlap.
  template <typename Fill>
  void ForOthersIn(int y, const Fill& fill) const {
    for (const Edge& edge : edges_) {
      const PixelSpan all = SpanWithin(edge.Disc->Centre, edge.Disc->Radius, y, width_);
      if (edge.InAllRows.IsEmpty()) {
        fill(all);
        continue;
      }
      fill(PixelSpan{all.First, edge.InAllRows.First - 1});
      fill(PixelSpan{edge.InAllRows.Last + 1, all.Last});
    }
  }

 private:
  // A disc that covers more in some rows than what is covered in all of them.
  struct Edge {
    const PixelDisc* Disc;
    PixelSpan Widest;
    PixelSpan InAllRows;  // by this disc
  };

  void Join();
  bool CoversAllOf(PixelSpan span) const;

  std::span<const PixelDisc> discs_;
  int width_;
  std::vector<PixelSpan> inAllRows_;
  std::vector<Edge> edges_;
};

}  // namespace quorvane

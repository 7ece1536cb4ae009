#pragma once

#include <QPointF>
#include <span>

#include "paint/line_steps.h"

namespace quorvane {

/// Where the dots of a wide line lie: at least one to a pixel of its longer axis, evenly from its
/// one end to the other, both included.
class DotWay {
 public:
  /// @param from, to  in pixels, neither beyond `kFarthestPixel`
  /// @param diameter  of the dots
  DotWay(QPointF from, QPointF to, int diameter);

  /// The number of the last dot; the first one is 0.
  int Last() const { return last_; }
  /// A dot's centre.
  QPointF Centre(int dot) const { return from_ + way_ * (dot / steps_); }
  /// The pixel in the top left corner of a dot.
  PixelPlace Corner(int dot) const;
  /// Where the corners of many dots lie, the first of them having this number; all lie right of and
  /// below the picture's edges. Both have one size.
  /// @return whether they are the same for certain when the line is counted from its other end: no
  ///         dot lies so near to the border of two pixels that rounding may decide
  bool Corners(int first, std::span<int> columns, std::span<int> rows) const;

 private:
  QPointF from_;
  QPointF way_;
  int last_;
  double steps_;
  double margin_;  // from a dot's centre to the middle of its first pixel
};

}  // namespace quorvane

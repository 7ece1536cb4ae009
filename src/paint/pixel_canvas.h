#pragma once

#include <QPointF>
#include <QRgb>
#include <QSize>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "map/drawing_surface.h"
#include "paint/covered_tiles.h"
#include "paint/disc_rows.h"
#include "paint/dot_way.h"
#include "paint/line_steps.h"

namespace quorvane {

/// Pixels first … last of one row of a small shape, counted from the shape's own corner.
struct PixelRun {
  std::int16_t Y = 0;
  std::int16_t First = 0;
  std::int16_t Last = -1;
};

enum class DotShape { Square, Round };

/// The pixels of a dot: a square of them, or those whose centres lie within half the diameter of a
/// round dot's centre.
class DotMask {
 public:
  /// @param pictureWidth of the pictures that the dot is to be stamped into
  DotMask(DotShape shape, int diameter, int pictureWidth);

  int Diameter() const { return static_cast<int>(rows_.size()); }
  /// From the top row down, counted from the mask's left edge.
  const std::vector<PixelSpan>& Rows() const { return rows_; }
  /// All pixels, counted from the mask's top left corner through the rows of the picture: what
  /// small dots are stamped with. Empty for a large dot, which is filled row by row.
  const std::vector<qsizetype>& Offsets() const { return offsets_; }
  /// Nine lists of one length, one for each way that a line may take to the next dot, each the
  /// pixels of a dot that the dot before it does not have, with some of the others. The list for
  /// so many pixels right and down, each -1 … 1, is number 3 * down + right + 4. Empty for a large
  /// dot.
  const std::vector<qsizetype>& NewOffsets() const { return newOffsets_; }
  static constexpr int kWays = 9;

 private:
  bool IsOn(int x, int y) const;

  std::vector<PixelSpan> rows_;
  std::vector<qsizetype> offsets_;
  std::vector<qsizetype> newOffsets_;
};

/// Draws hard-edged shapes straight into the pixels of an RGB32 picture, whose rows follow each
/// other without gaps. Positions are in pixels, (0, 0) being the top left corner of the top left
/// pixel; shapes may lie anywhere, what is outside is cut off, and a position that is no number
/// draws nothing.
class PixelCanvas {
 public:
  PixelCanvas(QRgb* pixels, QSize size, DrawMode mode)
      : pixels_(pixels), width_(size.width()), height_(size.height()), mode_(mode) {}
  /// For a picture that is drawn from the top down: only free pixels are drawn into.
  PixelCanvas(QRgb* pixels, QSize size, CoveredTiles& covered)
      : pixels_(pixels), width_(size.width()), height_(size.height()), covered_(&covered) {}

  /// One dot; its mask keeps its shape wherever the dot lies.
  void Dot(double x, double y, const DotMask& mask, QRgb colour);
  /// A line with round ends, as wide as the mask; for a mask of one pixel, `LineSteps` says which
  /// pixels it has. A line to something infinite draws nothing.
  /// @return whether the line from its other end has no pixel that this has not and that is free in
  ///         a picture drawn from the top down; false when in doubt
  bool Line(QPointF from, QPointF to, const DotMask& mask, QRgb colour);
  /// A circle with an outline centred on the radius and a filled inside, either of which may be
  /// missing. However small it is, unless it is nothing, it shows at least one pixel.
  void Circle(QPointF centre, double radius, double outlineWidth, std::optional<QRgb> outline,
              std::optional<QRgb> fill);
  /// Filled circles of one colour, each pixel of them written once or little more often.
  void Discs(std::span<const PixelDisc> discs, QRgb colour);
  /// A shape of which every row is known, with its corner in that pixel.
  void Runs(PixelPlace corner, std::span<const PixelRun> runs, QRgb colour);

 private:
  // Calls a function with something that puts the colour into a pixel as the mode says.
  template <typename Draw>
  void WithPut(QRgb colour, const Draw& draw);
  // Puts something into each pixel of a line.
  template <typename Put>
  void Follow(const LineSteps& steps, Put put);
  // The same for the parts of it that are not hidden; the end is the line's or just behind.
  void FollowSeen(const LineSteps& steps, PixelPlace end, QRgb colour);
  bool IsInside(QPointF place) const {
    return place.x() >= 0 && place.y() >= 0 && place.x() <= width_ && place.y() <= height_;
  }
  // These four tell what `Line` does.
  bool WideLine(QPointF from, QPointF to, const DotMask& mask, QRgb colour);
  bool Dots(const DotWay& way, int first, int last, const DotMask& mask, QRgb colour);
  bool SeenDots(const DotWay& way, int first, int last, const DotMask& mask, QRgb colour);
  bool FewDots(const DotWay& way, int first, int last, const DotMask& mask, QRgb colour);
  bool HidesRing(QPointF centre, double outer, double inner, int top, int last) const;
  // Row by row, cut to the picture.
  void FillDot(double left, double top, const DotMask& mask, QRgb colour);
  void Fill(int y, PixelSpan span, QRgb colour);
  // The pixels of row y whose centres lie within the radius, cut to the picture.
  PixelSpan SpanWithin(QPointF centre, double radius, int y) const {
    return quorvane::SpanWithin(centre, radius, y, width_);
  }

  QRgb* pixels_;
  int width_;
  int height_;
  DrawMode mode_ = DrawMode::Copy;
  CoveredTiles* covered_ = nullptr;
};

}  // namespace quorvane

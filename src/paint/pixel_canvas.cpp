#include "paint/pixel_canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>

namespace quorvane {
namespace {

// The farthest that a pixel's own area reaches from its centre.
constexpr double kHalfPixelDiagonal = 0.70710678118654752;
constexpr int kLargestStamp = 32;
// What is left of a line when nothing more of it is looked for that is hidden; and how many dots
// are placed at once.
constexpr int kShortPart = 32;
constexpr int kDotsAtOnce = 64;
constexpr int kRowsAtOnce = 8;
constexpr int kUnionRowsAtOnce = 16;

// False for something that is no number.
bool IsBetween(double value, double low, double high) { return value >= low && value <= high; }

// Cuts the part of a line off that lies outside low … high in one direction; `start` and `end` are
// fractions of the line's way.
void CutLine(double from, double to, double low, double high, double& start, double& end) {
  if (from == to) {
    if (!IsBetween(from, low, high)) end = -1;
    return;
  }
  const double atLow = (low - from) / (to - from);
  const double atHigh = (high - from) / (to - from);
  start = std::max(start, std::min(atLow, atHigh));
  end = std::min(end, std::max(atLow, atHigh));
}

PixelBox BoxAround(PixelPlace one, PixelPlace other) {
  const auto [left, right] = std::minmax(one.X, other.X);
  const auto [top, bottom] = std::minmax(one.Y, other.Y);
  return {left, top, right, bottom};
}

PixelPlace PixelAt(QPointF point) { return {RoundDown(point.x()), RoundDown(point.y())}; }

// False for something that is no number.
bool IsNear(QPointF point) {
  return std::abs(point.x()) < kFarthestPixel && std::abs(point.y()) < kFarthestPixel;
}

// Moves an end that lies too far away in the first direction along its line.
void PullInEnd(double& value, double& other, double valueThere, double otherThere) {
  constexpr double kLimit = kFarthestPixel - 0.5;  // the centre of a pixel
  const double limited = std::clamp(value, -kLimit, kLimit);
  if (limited == value) return;
  other = std::lerp(other, otherThere, (limited - value) / (valueThere - value));
  value = limited;
}

// Shortens a line that goes too far, staying on it as well as a double can. False when nothing of
// it is left, or when an end is no finite place.
bool PullIn(QPointF& from, QPointF& to) {
  for (const double value : {from.x(), from.y(), to.x(), to.y()}) {
    if (!std::isfinite(value)) return false;
  }
  const auto isFar = [](double a, double b) {
    return std::min(a, b) > kFarthestPixel || std::max(a, b) < -kFarthestPixel;
  };
  if (isFar(from.x(), to.x())) return false;
  PullInEnd(from.rx(), from.ry(), to.x(), to.y());
  PullInEnd(to.rx(), to.ry(), from.x(), from.y());
  if (isFar(from.y(), to.y())) return false;
  PullInEnd(from.ry(), from.rx(), to.y(), to.x());
  PullInEnd(to.ry(), to.rx(), from.y(), from.x());
  return true;
}

}  // namespace

DotMask::DotMask(DotShape shape, int diameter, int pictureWidth) {
  const double radius = diameter / 2.0;
  for (int y = 0; y < diameter; ++y) {
    const double down = shape == DotShape::Round ? y + 0.5 - radius : 0;
    const double halfWidth = std::sqrt(radius * radius - down * down);
    const int first = static_cast<int>(std::ceil(radius - halfWidth - 0.5));
    rows_.push_back({first, diameter - 1 - first});
  }
  if (diameter > kLargestStamp) return;
  std::array<std::vector<qsizetype>, kWays> newOffsets;
  for (int y = 0; y < diameter; ++y) {
    for (int x = 0; x < diameter; ++x) {
      if (!IsOn(x, y)) continue;
      offsets_.push_back(static_cast<qsizetype>(y) * pictureWidth + x);
      int way = 0;
      for (std::vector<qsizetype>& offsets : newOffsets) {
        if (!IsOn(x + way % 3 - 1, y + way / 3 - 1)) offsets.push_back(offsets_.back());
        ++way;
      }
    }
  }
  // Loops of one length cost a fraction of those whose end the processor cannot foresee.
  const std::size_t length = std::ranges::max(newOffsets, {}, &std::vector<qsizetype>::size).size();
  for (std::vector<qsizetype>& offsets : newOffsets) {
    offsets.resize(length, offsets_.front());
    newOffsets_.insert(newOffsets_.end(), offsets.begin(), offsets.end());
  }
}

bool DotMask::IsOn(int x, int y) const {
  if (y < 0 || y >= Diameter()) return false;
  const PixelSpan row = rows_[static_cast<std::size_t>(y)];
  return x >= row.First && x <= row.Last;
}

template <typename Draw>
void PixelCanvas::WithPut(QRgb colour, const Draw& draw) {
  if (covered_ != nullptr) {
    // Without a branch, as the processor could not foresee it.
    static_assert(kFreePixel == 0);
    draw([colour](QRgb& pixel) { pixel |= colour & (QRgb{pixel != kFreePixel} - 1); });
  } else if (mode_ == DrawMode::Merge) {
    draw([colour](QRgb& pixel) { pixel |= colour; });
  } else {
    draw([colour](QRgb& pixel) { pixel = colour; });
  }
}

inline void PixelCanvas::Fill(int y, PixelSpan span, QRgb colour) {
  QRgb* row = pixels_ + static_cast<qsizetype>(y) * width_;
  WithPut(colour, [=](const auto& put) {
    for (int x = span.First; x <= span.Last; ++x) put(row[x]);
  });
}

void PixelCanvas::Dot(double x, double y, const DotMask& mask, QRgb colour) {
  const int diameter = mask.Diameter();
  const double left = x - (diameter - 1) / 2.0;
  const double top = y - (diameter - 1) / 2.0;
  const bool isWhole =
      left >= 0 && top >= 0 && left < width_ - diameter + 1 && top < height_ - diameter + 1;
  if (!isWhole || diameter > kLargestStamp || covered_ != nullptr) {
    FillDot(left, top, mask, colour);
    return;
  }
  QRgb* corner = pixels_ + static_cast<qsizetype>(top) * width_ + static_cast<qsizetype>(left);
  if (mode_ == DrawMode::Merge) {
    for (const qsizetype offset : mask.Offsets()) corner[offset] |= colour;
  } else {
    for (const qsizetype offset : mask.Offsets()) corner[offset] = colour;
  }
}

void PixelCanvas::FillDot(double left, double top, const DotMask& mask, QRgb colour) {
  const int diameter = mask.Diameter();
  if (!IsBetween(left, -diameter, width_) || !IsBetween(top, -diameter, height_)) return;
  const int x = static_cast<int>(std::floor(left));
  int y = static_cast<int>(std::floor(top));
  for (const PixelSpan& row : mask.Rows()) {
    if (y >= 0 && y < height_) {
      Fill(y, {std::max(x + row.First, 0), std::min(x + row.Last, width_ - 1)}, colour);
    }
    ++y;
  }
}

bool PixelCanvas::Line(QPointF from, QPointF to, const DotMask& mask, QRgb colour) {
  const bool isNear = IsNear(from) && IsNear(to);
  if (!isNear && !PullIn(from, to)) return true;
  if (covered_ != nullptr) {
    const int reach = mask.Diameter();
    const auto [left, top, right, bottom] = BoxAround(PixelAt(from), PixelAt(to));
    if (covered_->Hide({left - reach, top - reach, right + reach, bottom + reach})) return isNear;
  }
  // The way that a far end is pulled in depends on which one is first.
  if (mask.Diameter() > 1) return WideLine(from, to, mask, colour) && isNear;
  const LineSteps steps = StepsInside(PixelAt(from), PixelAt(to), {width_, height_});
  if (steps.Count == 0) return isNear;
  if (covered_ != nullptr) {
    FollowSeen(steps, LastPixelOf(steps), colour);
  } else {
    WithPut(colour, [&](const auto& put) { Follow(steps, put); });
  }
  return isNear;
}

void PixelCanvas::FollowSeen(const LineSteps& steps, PixelPlace end, QRgb colour) {
  if (covered_->Hide(BoxAround(steps.Start, end))) return;
  if (steps.Count <= kShortPart) {
    covered_->CountWork(1);
    WithPut(colour, [&](const auto& put) { Follow(steps, put); });
    return;
  }
  LineSteps half = steps;
  half.Count /= 2;
  const LineSteps rest = PartFrom(steps, half.Count);
  FollowSeen(half, rest.Start, colour);
  FollowSeen(rest, end, colour);
}

template <typename Put>
void PixelCanvas::Follow(const LineSteps& steps, Put put) {
  const qsizetype right = steps.Right;
  const qsizetype down = steps.Down * qsizetype{width_};
  const qsizetype along = steps.IsSteep ? down : right;
  const qsizetype across = steps.IsSteep ? right : down;
  QRgb* pixel = pixels_ + static_cast<qsizetype>(steps.Start.Y) * width_ + steps.Start.X;
  int balance = steps.Balance;
  for (int left = steps.Count; left > 0; --left) {
    put(*pixel);
    // Both outcomes are computed, as the processor could not foresee a branch.
    const int straight = balance + steps.Gain;
    const int turned = balance + (steps.Gain - steps.Turn);
    const bool turns = straight >= 0;
    balance = turns ? turned : straight;
    pixel += turns ? along + across : along;
  }
}

bool PixelCanvas::WideLine(QPointF from, QPointF to, const DotMask& mask, QRgb colour) {
  const double margin = mask.Diameter();
  double start = 0;
  double end = 1;
  if (!IsInside(from) || !IsInside(to)) {
    CutLine(from.x(), to.x(), -margin, width_ + margin, start, end);
    CutLine(from.y(), to.y(), -margin, height_ + margin, start, end);
    if (!(start <= end)) return true;
  }
  // Counted over the whole line, so that its dots are the same however much of it lies outside.
  const DotWay way(from, to, mask.Diameter());
  const int first = static_cast<int>(start * way.Last());
  const int last = static_cast<int>(end * way.Last());
  return covered_ != nullptr ? SeenDots(way, first, last, mask, colour)
                             : Dots(way, first, last, mask, colour);
}

bool PixelCanvas::SeenDots(const DotWay& way, int first, int last, const DotMask& mask,
                           QRgb colour) {
  // One pixel more all around, where the line from the other end may have its dots.
  const auto [left, top, right, bottom] = BoxAround(way.Corner(first), way.Corner(last));
  const int diameter = mask.Diameter();
  if (covered_->Hide({left - 1, top - 1, right + diameter, bottom + diameter})) return true;
  if (last - first < kShortPart) {
    covered_->CountWork(diameter);
    return Dots(way, first, last, mask, colour);
  }
  const int middle = first + (last - first) / 2;
  const bool isAlike = SeenDots(way, first, middle, mask, colour);
  return SeenDots(way, middle + 1, last, mask, colour) && isAlike;
}

bool PixelCanvas::Dots(const DotWay& way, int first, int last, const DotMask& mask, QRgb colour) {
  bool isAlike = true;
  for (; first <= last; first += kDotsAtOnce) {
    const int end = std::min(last, first + kDotsAtOnce - 1);
    isAlike = FewDots(way, first, end, mask, colour) && isAlike;
  }
  return isAlike;
}

bool PixelCanvas::FewDots(const DotWay& way, int first, int last, const DotMask& mask,
                          QRgb colour) {
  const int diameter = mask.Diameter();
  const PixelBox corners = BoxAround(way.Corner(first), way.Corner(last));
  const bool areWhole = corners.Left >= 0 && corners.Top >= 0 &&
                        corners.Right <= width_ - diameter && corners.Bottom <= height_ - diameter;
  if (!areWhole || diameter > kLargestStamp) {
    for (int i = first; i <= last; ++i) Dot(way.Centre(i).x(), way.Centre(i).y(), mask, colour);
    return false;
  }
  std::array<int, kDotsAtOnce> columns;
  std::array<int, kDotsAtOnce> rows;
  const std::size_t count = static_cast<std::size_t>(last) - static_cast<std::size_t>(first) + 1;
  const bool isAlike = way.Corners(first, {columns.data(), count}, {rows.data(), count});
  QRgb* const corner = pixels_ + static_cast<qsizetype>(rows[0]) * width_ + columns[0];
  const int length = static_cast<int>(mask.NewOffsets().size()) / DotMask::kWays;
  const qsizetype* const straight = mask.NewOffsets().data() + qsizetype{4} * length;
  const auto stamp = [&](const auto& put, auto newPixels) {
    QRgb* dot = corner;
    for (const qsizetype offset : mask.Offsets()) put(dot[offset]);
    for (std::size_t i = 1; i < count; ++i) {
      const int right = columns[i] - columns[i - 1];
      const int down = rows[i] - rows[i - 1];
      const qsizetype* const offsets = straight + qsizetype{3 * down + right} * newPixels;
      dot += static_cast<qsizetype>(down) * width_ + right;
      for (int k = 0; k < newPixels; ++k) put(dot[offsets[k]]);
    }
  };
  WithPut(colour, [&](const auto& put) {
    // Lines of two pixels are the most frequent ones; a number that the compiler knows is quicker.
    if (length == 3) {
      stamp(put, std::integral_constant<int, 3>());
    } else {
      stamp(put, length);
    }
  });
  return isAlike;
}

void PixelCanvas::Circle(QPointF centre, double radius, double outlineWidth,
                         std::optional<QRgb> outline, std::optional<QRgb> fill) {
  if (!std::isfinite(centre.x()) || !std::isfinite(centre.y()) || !(radius >= 0)) return;
  if (outline && outline == fill) {
    radius += outlineWidth / 2;
    outline.reset();  // the inside goes as far
  }
  const double halfOutline = outline ? outlineWidth / 2 : 0;
  const double outer = radius + halfOutline;
  if (outer < kHalfPixelDiagonal) {
    const std::optional<QRgb> colour = outline ? outline : fill;
    const DotMask pixel(DotShape::Square, 1, width_);
    if (outer > 0 && colour) Dot(centre.x(), centre.y(), pixel, *colour);
    return;
  }
  const int top = static_cast<int>(std::clamp(centre.y() - outer, 0.0, 1.0 * height_));
  const int bottom = static_cast<int>(std::clamp(centre.y() + outer + 1, 0.0, 1.0 * height_));
  const double inner = radius - halfOutline;
  for (int y = top; y < bottom; ++y) {
    if (covered_ != nullptr && (y - top) % kRowsAtOnce == 0) {
      const int last = std::min(y + kRowsAtOnce, bottom) - 1;
      if (HidesRing(centre, outer, outline && !fill ? inner : -1, y, last)) {
        y = last;
        continue;
      }
      covered_->CountWork(kRowsAtOnce / 8);
    }
    const PixelSpan all = SpanWithin(centre, outer, y);
    PixelSpan inside = outline ? SpanWithin(centre, inner, y) : all;
    if (inside.First > inside.Last) inside = {all.Last + 1, all.Last};
    if (fill) Fill(y, inside, *fill);
    if (!outline) continue;
    Fill(y, {all.First, inside.First - 1}, *outline);
    Fill(y, {inside.Last + 1, all.Last}, *outline);
  }
}

// The rows top … last of a circle: all within the outer radius but what lies within the inner one.
bool PixelCanvas::HidesRing(QPointF centre, double outer, double inner, int top, int last) const {
  const int middle = static_cast<int>(std::clamp<double>(centre.y(), top, last));
  const int end = 2 * centre.y() > top + last + 1 ? top : last;
  const PixelSpan widest = SpanWithin(centre, outer, middle);
  const PixelSpan hole = SpanWithin(centre, inner, end);
  if (hole.First > hole.Last) return covered_->Hide({widest.First, top, widest.Last, last});
  return covered_->Hide({widest.First, top, hole.First - 1, last}) &&
         covered_->Hide({hole.Last + 1, top, widest.Last, last});
}

void PixelCanvas::Discs(std::span<const PixelDisc> discs, QRgb colour) {
  std::vector<PixelDisc> large;
  for (const PixelDisc& disc : discs) {
    const bool isFinite = std::isfinite(disc.Centre.x()) && std::isfinite(disc.Centre.y());
    if (isFinite && disc.Radius >= kHalfPixelDiagonal && covered_ == nullptr) {
      large.push_back(disc);
    } else {
      Circle(disc.Centre, disc.Radius, 0, std::nullopt, colour);
    }
  }
  DiscUnion all(large, width_);
  for (int top = 0; top < height_ && !large.empty(); top += kUnionRowsAtOnce) {
    const int end = std::min(top + kUnionRowsAtOnce, height_);
    all.LookAt(top, end - 1);
    for (int y = top; y < end; ++y) {
      for (const PixelSpan& span : all.InAllRows()) Fill(y, span, colour);
      all.ForOthersIn(y, [&](PixelSpan span) { Fill(y, span, colour); });
    }
  }
}

void PixelCanvas::Runs(PixelPlace corner, std::span<const PixelRun> runs, QRgb colour) {
  if (covered_ != nullptr) covered_->CountWork(1 + static_cast<int>(runs.size() / 32));
  for (const PixelRun& run : runs) {
    const int y = corner.Y + run.Y;
    if (y < 0 || y >= height_) continue;
    Fill(y, {std::max(corner.X + run.First, 0), std::min(corner.X + run.Last, width_ - 1)}, colour);
  }
}

}  // namespace quorvane

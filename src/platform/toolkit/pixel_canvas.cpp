#include "platform/toolkit/pixel_canvas.h"

#include <algorithm>
#include <cmath>

namespace quorvane {
namespace {

// The farthest that a pixel's own area reaches from its centre.
constexpr double kHalfPixelDiagonal = 0.70710678118654752;
constexpr int kLargestStamp = 32;

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

}  // namespace

DotMask::DotMask(int diameter, int pictureWidth) {
  const double radius = diameter / 2.0;
  for (int y = 0; y < diameter; ++y) {
    const double down = y + 0.5 - radius;
    const double halfWidth = std::sqrt(radius * radius - down * down);
    const int first = static_cast<int>(std::ceil(radius - halfWidth - 0.5));
    rows_.push_back({first, diameter - 1 - first});
    if (diameter > kLargestStamp) continue;
    for (int x = first; x < diameter - first; ++x) {
      offsets_.push_back(static_cast<qsizetype>(y) * pictureWidth + x);
    }
  }
}

void PixelCanvas::Dot(double x, double y, const DotMask& mask, QRgb colour) {
  const int diameter = mask.Diameter();
  const double left = x - (diameter - 1) / 2.0;
  const double top = y - (diameter - 1) / 2.0;
  const bool isWhole =
      left >= 0 && top >= 0 && left < width_ - diameter + 1 && top < height_ - diameter + 1;
  if (!isWhole || diameter > kLargestStamp) {
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

void PixelCanvas::Line(QPointF from, QPointF to, const DotMask& mask, QRgb colour) {
  const double margin = mask.Diameter();
  double start = 0;
  double end = 1;
  CutLine(from.x(), to.x(), -margin, width_ + margin, start, end);
  CutLine(from.y(), to.y(), -margin, height_ + margin, start, end);
  if (!(start <= end)) return;
  const QPointF way = to - from;
  const double length = (end - start) * std::max(std::abs(way.x()), std::abs(way.y()));
  if (!IsBetween(length, 0, 2.0 * (width_ + height_) + 4 * margin)) return;
  const int steps = static_cast<int>(std::ceil(length));
  for (int i = 0; i <= steps; ++i) {
    const double part = steps > 0 ? start + (end - start) * i / steps : start;
    const QPointF at = from + way * part;
    Dot(at.x(), at.y(), mask, colour);
  }
}

void PixelCanvas::Circle(QPointF centre, double radius, double outlineWidth,
                         std::optional<QRgb> outline, std::optional<QRgb> fill) {
  if (!std::isfinite(centre.x()) || !std::isfinite(centre.y()) || !(radius >= 0)) return;
  const double halfOutline = outline ? outlineWidth / 2 : 0;
  const double outer = radius + halfOutline;
  if (outline && outer < kHalfPixelDiagonal) {
    Dot(centre.x(), centre.y(), DotMask(1, width_), *outline);
    return;
  }
  const int top = static_cast<int>(std::clamp(centre.y() - outer, 0.0, 1.0 * height_));
  const int bottom = static_cast<int>(std::clamp(centre.y() + outer + 1, 0.0, 1.0 * height_));
  for (int y = top; y < bottom; ++y) {
    const PixelSpan all = SpanWithin(centre, outer, y);
    PixelSpan inside = SpanWithin(centre, radius - halfOutline, y);
    if (inside.First > inside.Last) inside = {all.Last + 1, all.Last};
    if (fill) Fill(y, inside, *fill);
    if (!outline) continue;
    Fill(y, {all.First, inside.First - 1}, *outline);
    Fill(y, {inside.Last + 1, all.Last}, *outline);
  }
}

PixelSpan PixelCanvas::SpanWithin(QPointF centre, double radius, int y) const {
  const double down = y + 0.5 - centre.y();
  const double halfWidthSquared = radius * radius - down * down;
  if (radius < 0 || !(halfWidthSquared >= 0)) return {};
  const double halfWidth = std::sqrt(halfWidthSquared);
  const double first = std::ceil(centre.x() - halfWidth - 0.5);
  const double last = std::floor(centre.x() + halfWidth - 0.5);
  return {static_cast<int>(std::clamp(first, 0.0, 1.0 * width_)),
          static_cast<int>(std::clamp(last, -1.0, width_ - 1.0))};
}

void PixelCanvas::Fill(int y, PixelSpan span, QRgb colour) {
  QRgb* row = pixels_ + static_cast<qsizetype>(y) * width_;
  if (mode_ == DrawMode::Merge) {
    for (int x = span.First; x <= span.Last; ++x) row[x] |= colour;
  } else {
    for (int x = span.First; x <= span.Last; ++x) row[x] = colour;
  }
}

}  // namespace quorvane

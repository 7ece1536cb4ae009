#include "reference/plain_surface.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QString>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "paint/colours.h"

namespace quorvane::reference {
namespace {

struct PlainImage : SurfaceImage {
  explicit PlainImage(QImage picture) : Picture(std::move(picture)) {}

  QImage Picture;
};

QImage BlackPicture(QSize size, double ratio) {
  QImage picture((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
  picture.fill(Qt::black);
  picture.setDotsPerMeterX(qRound(96 * ratio / 0.0254));
  picture.setDotsPerMeterY(qRound(96 * ratio / 0.0254));
  return picture;
}

int Floor(double value) { return static_cast<int>(std::floor(value)); }

QString TextOf(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

PlainSurface::PlainSurface(QSize size, double ratio, QSizeF units)
    : size_(size),
      ratio_(ratio),
      units_(units),
      picture_(BlackPicture(size, ratio)),
      background_(picture_) {}

void PlainSurface::SetBackground(std::shared_ptr<const SurfaceImage> image) {
  const auto* given = dynamic_cast<const PlainImage*>(image.get());
  background_ = given != nullptr ? given->Picture : BlackPicture(size_, ratio_);
  Clear();
}

std::shared_ptr<const SurfaceImage> PlainSurface::Image() const {
  return std::make_shared<PlainImage>(picture_);
}

void PlainSurface::Point(SurfacePoint at, Colour colour) { Dot(DevicePoint(at), false, colour); }

void PlainSurface::Line(SurfacePoint from, SurfacePoint to, Colour colour) {
  if (pen_.Style == DrawStyle::NoOutline) return;
  if (DevicePenWidth() == 1) {
    ThinLine(DevicePoint(from), DevicePoint(to), colour);
  } else {
    WideLine(DevicePoint(from), DevicePoint(to), colour);
  }
}

void PlainSurface::Circle(SurfacePoint centre, double radius, Colour colour) {
  const bool hasOutline = pen_.Style == DrawStyle::Solid;
  const QPointF at = DevicePoint(centre);
  const double middle = radius * picture_.width() / units_.width();
  const double halfOutline = hasOutline ? DevicePenWidth() / 2.0 : 0;
  const double outer = middle + halfOutline;
  const double inner = middle - halfOutline;
  // So small that it may lie between the centres of all pixels.
  if (outer < std::sqrt(0.5)) {
    const bool isSeen = outer > 0 && (hasOutline || pen_.Filled);
    if (isSeen) Put(Floor(at.x()), Floor(at.y()), hasOutline ? colour : fillColour_);
    return;
  }
  for (int y = Floor(at.y() - outer); y <= at.y() + outer; ++y) {
    for (int x = Floor(at.x() - outer); x <= at.x() + outer; ++x) {
      const double right = x + 0.5 - at.x();
      const double down = y + 0.5 - at.y();
      const double squaredDistance = right * right + down * down;
      if (inner >= 0 && squaredDistance <= inner * inner) {
        if (pen_.Filled) Put(x, y, fillColour_);
      } else if (hasOutline && squaredDistance <= outer * outer) {
        Put(x, y, colour);
      }
    }
  }
}

void PlainSurface::Print(SurfacePoint topLeft, std::string_view text) {
  PrintInto(picture_, CornerOf(topLeft), text, foreColour_);
}

void PlainSurface::PrintOutline(SurfacePoint topLeft, std::string_view text, Colour colour) {
  const int reach = std::max(qRound(ratio_), 1);
  // The text alone, with more room around it than its letters take.
  const QFontMetrics metrics(Font());
  const int margin = metrics.height() + reach;
  const QSize size(metrics.horizontalAdvance(TextOf(text)) + 2 * margin, 3 * margin);
  QImage letters(size, picture_.format());
  letters.setDotsPerMeterX(picture_.dotsPerMeterX());
  letters.setDotsPerMeterY(picture_.dotsPerMeterY());
  letters.fill(Qt::black);
  PrintInto(letters, QPointF(margin, margin), text, {255, 255, 255});
  const QPoint corner = CornerOf(topLeft).toPoint() - QPoint(margin, margin);
  for (int y = 0; y < letters.height(); ++y) {
    for (int x = 0; x < letters.width(); ++x) {
      if (letters.pixel(x, y) == qRgb(0, 0, 0)) continue;
      for (int down = -reach; down <= reach; ++down) {
        for (int right = -reach; right <= reach; ++right) {
          const QPoint at = corner + QPoint(x + right, y + down);
          if (picture_.valid(at)) picture_.setPixel(at, RgbOf(colour));
        }
      }
    }
  }
}

QPointF PlainSurface::CornerOf(SurfacePoint topLeft) const {
  const QPointF at = DevicePoint(topLeft);
  return {std::floor(at.x() + 0.5), std::floor(at.y() + 0.5)};
}

void PlainSurface::PrintInto(QImage& picture, QPointF corner, std::string_view text,
                             Colour colour) const {
  QPainter painter(&picture);
  painter.setFont(Font());
  painter.setPen(QColor(RgbOf(colour)));
  painter.drawText(corner + QPointF(0, QFontMetricsF(Font()).ascent()), TextOf(text));
}

double PlainSurface::TextHeight() const {
  return QFontMetricsF(Font()).height() / (picture_.height() / units_.height());
}

double PlainSurface::TextWidth(std::string_view text) const {
  const double pixelsPerUnit = picture_.width() / units_.width();
  return QFontMetricsF(Font()).horizontalAdvance(TextOf(text)) / pixelsPerUnit;
}

int PlainSurface::WidthToCover(double distance) const {
  const double across = distance * picture_.width() / units_.width();
  const double down = distance * picture_.height() / units_.height();
  const double pixels = std::max(across, down) + 1e-6;
  int width = 1;
  while (qRound(width * ratio_) <= pixels) ++width;
  return width;
}

QPointF PlainSurface::DevicePoint(SurfacePoint point) const {
  return {point.X * (picture_.width() / units_.width()),
          point.Y * (picture_.height() / units_.height())};
}

int PlainSurface::DevicePenWidth() const { return std::max(qRound(pen_.Width * ratio_), 1); }

QFont PlainSurface::Font() const {
  QFont font(QStringLiteral("Arial"));
  font.setPointSizeF(fontPoints_);
  font.setStyleStrategy(QFont::NoAntialias);
  font.setHintingPreference(QFont::PreferFullHinting);
  return {font, &picture_};
}

void PlainSurface::Put(int x, int y, Colour colour) {
  if (!picture_.valid(x, y)) return;
  const QRgb before = pen_.Mode == DrawMode::Merge ? picture_.pixel(x, y) : 0;
  picture_.setPixel(x, y, before | RgbOf(colour));
}

void PlainSurface::Dot(QPointF at, bool isRound, Colour colour) {
  const int diameter = DevicePenWidth();
  const double radius = diameter / 2.0;
  const int left = Floor(at.x() - (diameter - 1) / 2.0);
  const int top = Floor(at.y() - (diameter - 1) / 2.0);
  for (int y = 0; y < diameter; ++y) {
    for (int x = 0; x < diameter; ++x) {
      const double right = x + 0.5 - radius;
      const double down = y + 0.5 - radius;
      const bool isIn = !isRound || right * right + down * down <= radius * radius;
      if (isIn) Put(left + x, top + y, colour);
    }
  }
}

void PlainSurface::ThinLine(QPointF from, QPointF to, Colour colour) {
  int along = Floor(from.x());
  int across = Floor(from.y());
  int alongEnd = Floor(to.x());
  int acrossEnd = Floor(to.y());
  const bool isSteep = std::abs(acrossEnd - across) > std::abs(alongEnd - along);
  if (isSteep) {
    std::swap(along, across);
    std::swap(alongEnd, acrossEnd);
  }
  if (along > alongEnd) {
    std::swap(along, alongEnd);
    std::swap(across, acrossEnd);
  }
  const std::int64_t length = alongEnd - along;
  const std::int64_t rise = std::abs(acrossEnd - across);
  for (std::int64_t i = 0; i <= length; ++i) {
    // i * rise / length to the nearest whole number, a half down.
    const std::int64_t way = length > 0 ? (2 * i * rise + length - 1) / (2 * length) : 0;
    const int a = static_cast<int>(along + i);
    const int b = static_cast<int>(acrossEnd < across ? across - way : across + way);
    Put(isSteep ? b : a, isSteep ? a : b, colour);
  }
}

void PlainSurface::WideLine(QPointF from, QPointF to, Colour colour) {
  const QPointF way = to - from;
  const double steps = std::ceil(std::max(std::abs(way.x()), std::abs(way.y())));
  for (double i = 0; i <= steps; ++i) {
    Dot(steps > 0 ? from + way * (i / steps) : from, true, colour);
  }
}

}  // namespace quorvane::reference

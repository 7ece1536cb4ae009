#include "platform/toolkit/picture_surface.h"

#include <QGlyphRun>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace quorvane {
namespace {

// Text sizes are given for this many dots per inch, whatever the screen has.
constexpr double kOrdinaryDotsPerInch = 96;
constexpr double kInchesPerMetre = 1 / 0.0254;
constexpr double kLargestFontPoints = 1000;

class PictureImage : public SurfaceImage {
 public:
  explicit PictureImage(QImage picture) : picture_(std::move(picture)) {}

  const QImage& Picture() const { return picture_; }

 private:
  QImage picture_;
};

QImage BlankPicture(QSize size, double ratio) {
  const QSize deviceSize = (QSizeF(size) * ratio).toSize().expandedTo({1, 1});
  QImage picture(deviceSize, QImage::Format_RGB32);
  picture.fill(Qt::black);
  const int dotsPerMetre = qRound(kOrdinaryDotsPerInch * ratio * kInchesPerMetre);
  picture.setDotsPerMeterX(dotsPerMetre);
  picture.setDotsPerMeterY(dotsPerMetre);
  return picture;
}

}  // namespace

PictureSurface::PictureSurface(QSize size, double ratio, QSizeF units)
    : size_(size), ratio_(ratio), units_(units) {
  MakePicture();
}

bool PictureSurface::Resize(QSize size, double ratio) {
  if (size == size_ && ratio == ratio_) return false;
  size_ = size;
  ratio_ = ratio;
  MakePicture();
  return true;
}

void PictureSurface::Clear() { picture_ = background_; }

void PictureSurface::SetBackground(std::shared_ptr<const SurfaceImage> image) {
  const auto* given = dynamic_cast<const PictureImage*>(image.get());
  const bool fits = given != nullptr && given->Picture().size() == deviceSize_;
  background_ = fits ? given->Picture() : blank_;
  Clear();
}

std::shared_ptr<const SurfaceImage> PictureSurface::Image() const {
  return std::make_shared<PictureImage>(picture_);
}

void PictureSurface::SetPen(const Pen& pen) {
  pen_ = pen;
  const int diameter = DevicePenWidth();
  if (diameter != dot_.Diameter()) dot_ = DotMask(diameter, deviceSize_.width());
}

void PictureSurface::SetFontSize(double points) {
  fontPoints_ = std::clamp(points, 1.0, kLargestFontPoints);
}

void PictureSurface::Point(SurfacePoint at, Colour colour) {
  Canvas().Dot(at.X * pixelsPerUnitX_, at.Y * pixelsPerUnitY_, dot_, RgbOf(colour));
}

void PictureSurface::Line(SurfacePoint from, SurfacePoint to, Colour colour) {
  if (pen_.Style == DrawStyle::NoOutline) return;
  Canvas().Line(DevicePoint(from), DevicePoint(to), dot_, RgbOf(colour));
}

void PictureSurface::Circle(SurfacePoint centre, double radius, Colour colour) {
  std::optional<QRgb> outline;
  std::optional<QRgb> fill;
  if (pen_.Style == DrawStyle::Solid) outline = RgbOf(colour);
  if (pen_.Filled) fill = fillColour_;
  Canvas().Circle(DevicePoint(centre), radius * pixelsPerUnitX_, DevicePenWidth(), outline, fill);
}

void PictureSurface::Print(SurfacePoint topLeft, std::string_view text) {
  const QPointF at = DevicePoint(topLeft);
  SizedFont& font = texts_.FontOf(fontPoints_, picture_);
  // A position that is no number fails here as well.
  const bool mayBeInPicture = at.x() < picture_.width() && at.y() < picture_.height() &&
                              at.y() > -font.Height && at.x() > -font.MostWidth(text);
  if (!mayBeInPicture) return;
  const TextLayout& layout = texts_.Of(font, text);
  if (!(at.x() > -layout.Width)) return;
  const QPointF corner(std::floor(at.x() + 0.5), std::floor(at.y() + 0.5));
  if (layout.Glyphs.isEmpty()) {
    PixelCanvas canvas(Pixels(), deviceSize_, DrawMode::Copy);
    canvas.Runs({static_cast<int>(corner.x()), static_cast<int>(corner.y())}, layout.Runs,
                foreColour_);
    return;
  }
  QPainter painter(&picture_);
  painter.setPen(QColor(foreColour_));
  for (const QGlyphRun& glyphs : layout.Glyphs) {
    painter.drawGlyphRun(corner + QPointF(0, layout.Drop), glyphs);
  }
}

double PictureSurface::TextWidth(std::string_view text) const {
  return texts_.Of(texts_.FontOf(fontPoints_, picture_), text).Width / pixelsPerUnitX_;
}

QRgb* PictureSurface::Pixels() { return reinterpret_cast<QRgb*>(picture_.bits()); }

PixelCanvas PictureSurface::Canvas() { return {Pixels(), deviceSize_, pen_.Mode}; }

int PictureSurface::DevicePenWidth() const { return std::max(qRound(pen_.Width * ratio_), 1); }

void PictureSurface::MakePicture() {
  blank_ = BlankPicture(size_, ratio_);
  deviceSize_ = blank_.size();
  background_ = blank_;
  picture_ = blank_;
  pixelsPerUnitX_ = deviceSize_.width() / units_.width();
  pixelsPerUnitY_ = deviceSize_.height() / units_.height();
  dot_ = DotMask(DevicePenWidth(), deviceSize_.width());
  texts_.Clear();
}

}  // namespace quorvane

#include "paint/picture_surface.h"

#include <QGlyphRun>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "paint/dot_grid.h"

namespace quorvane {
namespace {

// Text sizes are given for this many dots per inch, whatever the screen has.
constexpr double kOrdinaryDotsPerInch = 96;
constexpr double kInchesPerMetre = 1 / 0.0254;
constexpr double kLargestFontPoints = 1000;
// What a text that is drawn as outlines costs, in parts of a line.
constexpr int kLargeTextWork = 1000;

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

PixelBox PixelsOf(const QRectF& box) {
  const auto pixel = [](double value) {
    return static_cast<int>(std::clamp<double>(std::floor(value), -1, kFarthestPixel));
  };
  return {pixel(box.left()), pixel(box.top()), pixel(box.right()), pixel(box.bottom())};
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

void PictureSurface::Clear() {
  // Filling pixels that nobody else needs costs half of what a copy of blank ones would.
  const bool isBlank = background_.constBits() == blank_.constBits();
  if (isBlank && picture_.isDetached()) {
    picture_.fill(Qt::black);
  } else {
    picture_ = background_;
  }
}

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
  if (DevicePenWidth() != point_.Diameter()) MakeDots();
}

void PictureSurface::SetFontSize(double points) {
  fontPoints_ = std::clamp(points, 1.0, kLargestFontPoints);
}

bool PictureSurface::BeginTopDown(std::size_t drawings) {
  constexpr std::size_t kLeastDrawings = 1000;  // laying the whole over the picture takes its time
  if (drawings < kLeastDrawings) return false;
  QImage picture(deviceSize_, QImage::Format_ARGB32);
  picture.fill(kFreePixel);
  const auto* const pixels = reinterpret_cast<const QRgb*>(picture.constBits());
  topDown_ = TopDown{std::move(picture), CoveredTiles(pixels, deviceSize_),
                     QImage(deviceSize_, QImage::Format_RGB32)};
  return true;
}

void PictureSurface::EndTopDown() {
  if (!topDown_) return;  // the picture has another size by now
  const qsizetype count = qsizetype{deviceSize_.width()} * deviceSize_.height();
  const auto* const above = reinterpret_cast<const QRgb*>(topDown_->Picture.constBits());
  auto* const below = reinterpret_cast<QRgb*>(picture_.bits());
  for (qsizetype i = 0; i < count; ++i) below[i] = above[i] == kFreePixel ? below[i] : above[i];
  topDown_.reset();
}

void PictureSurface::Point(SurfacePoint at, Colour colour) {
  Canvas(pen_.Mode).Dot(at.X * pixelsPerUnitX_, at.Y * pixelsPerUnitY_, point_, RgbOf(colour));
}

void PictureSurface::Points(const PointGrid& grid) {
  if (pen_.Mode != DrawMode::Copy || topDown_) return DrawingSurface::Points(grid);
  DotGrid dots(grid, pixelsPerUnitX_, pixelsPerUnitY_, point_.Diameter(), deviceSize_.width(),
               deviceSize_.height());
  QRgb* row = reinterpret_cast<QRgb*>(picture_.bits());
  for (int y = 0; y < deviceSize_.height(); ++y, row += deviceSize_.width()) dots.Draw(y, row);
}

void PictureSurface::Line(SurfacePoint from, SurfacePoint to, Colour colour) {
  LineHidesItsReverse(from, to, colour);
}

bool PictureSurface::LineHidesItsReverse(SurfacePoint from, SurfacePoint to, Colour colour) {
  if (pen_.Style == DrawStyle::NoOutline) return true;
  return Canvas(pen_.Mode).Line(DevicePoint(from), DevicePoint(to), dot_, RgbOf(colour));
}

void PictureSurface::Circle(SurfacePoint centre, double radius, Colour colour) {
  std::optional<QRgb> outline;
  std::optional<QRgb> fill;
  if (pen_.Style == DrawStyle::Solid) outline = RgbOf(colour);
  if (pen_.Filled) fill = fillColour_;
  Canvas(pen_.Mode).Circle(DevicePoint(centre), radius * pixelsPerUnitX_, DevicePenWidth(), outline,
                           fill);
}

void PictureSurface::Discs(std::span<const DiscPlace> discs, Colour colour) {
  const bool isAllCopied = pen_.Filled && pen_.Mode == DrawMode::Copy && !topDown_;
  if (!isAllCopied) return DrawingSurface::Discs(discs, colour);
  SetFillColour(colour);
  const double halfOutline = pen_.Style == DrawStyle::Solid ? DevicePenWidth() / 2.0 : 0;
  std::vector<PixelDisc> pixelDiscs;
  for (const DiscPlace& disc : discs) {
    if (!(disc.Radius >= 0)) continue;
    pixelDiscs.push_back({DevicePoint(disc.Centre), disc.Radius * pixelsPerUnitX_ + halfOutline});
  }
  Canvas(pen_.Mode).Discs(pixelDiscs, RgbOf(colour));
}

void PictureSurface::Print(SurfacePoint topLeft, std::string_view text) {
  const std::optional<PlacedText> placed = PlaceText(topLeft, text, 0);
  if (!placed) return;
  const TextLayout& layout = placed->Layout;
  if (layout.Glyphs.isEmpty()) {
    Canvas(DrawMode::Copy).Runs(placed->Pixel(), layout.Runs, foreColour_);
  } else if (topDown_) {
    DrawGlyphsBelow(placed->Corner, layout, placed->Box);
  } else {
    DrawGlyphs(placed->Corner, layout, picture_);
  }
}

void PictureSurface::PrintOutline(SurfacePoint topLeft, std::string_view text, Colour colour) {
  const int reach = std::max(qRound(ratio_), 1);
  const std::optional<PlacedText> placed = PlaceText(topLeft, text, reach);
  if (!placed) return;
  if (placed->Layout.Glyphs.isEmpty()) {
    Canvas(DrawMode::Copy)
        .Runs(placed->Pixel(), texts_.OutlineOf(placed->Font, text, reach), RgbOf(colour));
    return;
  }
  const QRgb foreColour = std::exchange(foreColour_, RgbOf(colour));
  for (int down = -reach; down <= reach; ++down) {
    for (int right = -reach; right <= reach; ++right) {
      DrawGlyphs(placed->Corner + QPointF(right, down), placed->Layout, picture_);
    }
  }
  foreColour_ = foreColour;
}

std::optional<PictureSurface::PlacedText> PictureSurface::PlaceText(SurfacePoint topLeft,
                                                                    std::string_view text,
                                                                    int reach) {
  const QPointF at = DevicePoint(topLeft);
  SizedFont& font = texts_.FontOf(fontPoints_, picture_);
  const InkRange* const ink = font.InkOf(text);
  const double mostWidth = ink != nullptr
                               ? font.MostCharacterWidth * static_cast<double>(text.size())
                               : std::numeric_limits<double>::infinity();
  // A position that is no number fails here as well.
  const bool mayBeInPicture = at.x() < picture_.width() + reach &&
                              at.y() < picture_.height() + reach && at.x() > -mostWidth - reach &&
                              at.y() > -font.Height - reach;
  const QPointF corner(std::floor(at.x() + 0.5), std::floor(at.y() + 0.5));
  if (!mayBeInPicture) return std::nullopt;
  if (ink != nullptr && IsHidden(ink->Box(mostWidth).translated(corner))) return std::nullopt;
  const TextLayout& layout = texts_.Of(font, text);
  if (!(at.x() > -layout.Width - reach)) return std::nullopt;
  // Other characters may reach anywhere; what is kept of their texts does not.
  const double margin = layout.Glyphs.isEmpty() ? std::ceil(layout.Height) : kFarthestPixel;
  const QRectF box = (ink != nullptr ? ink->Box(layout.Width)
                                     : QRectF(0, 0, layout.Width, layout.Height)
                                           .marginsAdded({margin, margin, margin, margin}))
                         .translated(corner);
  if (IsHidden(box)) return std::nullopt;
  return PlacedText{font, layout, corner, box};
}

void PictureSurface::DrawGlyphs(QPointF corner, const TextLayout& layout, QImage& picture) const {
  QPainter painter(&picture);
  painter.setPen(QColor(foreColour_));
  for (const QGlyphRun& glyphs : layout.Glyphs) {
    painter.drawGlyphRun(corner + QPointF(0, layout.Drop), glyphs);
  }
}

void PictureSurface::DrawGlyphsBelow(QPointF corner, const TextLayout& layout, const QRectF& box) {
  const PixelBox seen = topDown_->Covered.SeenPart(PixelsOf(box));
  const auto rowOf = [](QImage& picture, int y) {
    return reinterpret_cast<QRgb*>(picture.scanLine(y));
  };
  for (int y = seen.Top; y <= seen.Bottom; ++y) {
    QRgb* const row = rowOf(topDown_->Glyphs, y);
    std::fill(row + seen.Left, row + seen.Right + 1, kFreePixel);
  }
  DrawGlyphs(corner, layout, topDown_->Glyphs);
  for (int y = seen.Top; y <= seen.Bottom; ++y) {
    const QRgb* const glyphs = rowOf(topDown_->Glyphs, y);
    QRgb* const row = rowOf(topDown_->Picture, y);
    for (int x = seen.Left; x <= seen.Right; ++x) {
      row[x] = row[x] == kFreePixel ? glyphs[x] : row[x];
    }
  }
  topDown_->Covered.CountWork(kLargeTextWork);
}

bool PictureSurface::IsHidden(const QRectF& box) {
  return topDown_ && topDown_->Covered.Hide(PixelsOf(box));
}

double PictureSurface::TextWidth(std::string_view text) const {
  return texts_.Of(texts_.FontOf(fontPoints_, picture_), text).Width / pixelsPerUnitX_;
}

double PictureSurface::TextHeight() const {
  return texts_.FontOf(fontPoints_, picture_).Height / pixelsPerUnitY_;
}

PixelCanvas PictureSurface::Canvas(DrawMode mode) {
  if (!topDown_) return {reinterpret_cast<QRgb*>(picture_.bits()), deviceSize_, mode};
  return {reinterpret_cast<QRgb*>(topDown_->Picture.bits()), deviceSize_, topDown_->Covered};
}

int PictureSurface::WidthToCover(double distance) const {
  constexpr double kHair = 1e-6;  // places are computed that exactly, at best
  const double pixels = std::ceil(distance * std::max(pixelsPerUnitX_, pixelsPerUnitY_) + kHair);
  return static_cast<int>(std::ceil((pixels - 0.5) / ratio_));  // as the pen's width is rounded
}

int PictureSurface::DevicePenWidth() const { return std::max(qRound(pen_.Width * ratio_), 1); }

void PictureSurface::MakePicture() {
  blank_ = BlankPicture(size_, ratio_);
  deviceSize_ = blank_.size();
  background_ = blank_;
  picture_ = blank_;
  pixelsPerUnitX_ = deviceSize_.width() / units_.width();
  pixelsPerUnitY_ = deviceSize_.height() / units_.height();
  topDown_.reset();
  MakeDots();
  texts_.Clear();
}

void PictureSurface::MakeDots() {
  point_ = DotMask(DotShape::Square, DevicePenWidth(), deviceSize_.width());
  dot_ = DotMask(DotShape::Round, DevicePenWidth(), deviceSize_.width());
}

}  // namespace quorvane

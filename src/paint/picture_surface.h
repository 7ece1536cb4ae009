#pragma once

#include <QImage>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "map/drawing_surface.h"
#include "paint/colours.h"
#include "paint/covered_tiles.h"
#include "paint/pixel_canvas.h"
#include "paint/text_layouts.h"
#include "paint/twips.h"

namespace quorvane {

/// A drawing surface whose picture is an image in memory, with the pixels of the screen that it is
/// shown on. Its logical scale always spans the whole picture. Needs no window; printing text needs
/// a running QGuiApplication.
class PictureSurface : public DrawingSurface {
 public:
  /// @param size    in pixels of an ordinary screen
  /// @param ratio   device pixels to one of these
  /// @param units   the logical scale
  explicit PictureSurface(QSize size, double ratio = 1,
                          QSizeF units = {kSurfaceUnits, kSurfaceUnits});

  /// Gives the picture another size: the new one is blank and has no background picture. Pen,
  /// colours and font stay.
  /// @return false, and nothing changes, when it has this size and ratio already
  bool Resize(QSize size, double ratio);

  /// What the surface shows, in device pixels.
  const QImage& Picture() const { return picture_; }
  /// The logical scale.
  QSizeF Units() const { return units_; }

  void Clear() override;
  /// A picture of another size, taken before a resize, counts as none.
  void SetBackground(std::shared_ptr<const SurfaceImage> image) override;
  std::shared_ptr<const SurfaceImage> Image() const override;

  void SetPen(const Pen& pen) override;
  Pen CurrentPen() const override { return pen_; }
  void SetFillColour(Colour colour) override { fillColour_ = RgbOf(colour); }
  void SetForeColour(Colour colour) override { foreColour_ = RgbOf(colour); }
  void SetFontSize(double points) override;

  bool BeginTopDown(std::size_t drawings) override;
  void EndTopDown() override;

  void Point(SurfacePoint at, Colour colour) override;
  void Points(const PointGrid& grid) override;
  void Line(SurfacePoint from, SurfacePoint to, Colour colour) override;
  bool LineHidesItsReverse(SurfacePoint from, SurfacePoint to, Colour colour) override;
  void Circle(SurfacePoint centre, double radius, Colour colour) override;
  void Discs(std::span<const DiscPlace> discs, Colour colour) override;
  void Print(SurfacePoint topLeft, std::string_view text) override;
  void PrintOutline(SurfacePoint topLeft, std::string_view text, Colour colour) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight() const override;

  int WidthInTwips() const override { return TwipsFromPixels(size_.width()); }
  int WidthToCover(double distance) const override;

 private:
  // A text that may have pixels in the picture.
  struct PlacedText {
    SizedFont& Font;
    const TextLayout& Layout;
    QPointF Corner;
    QRectF Box;  // around all its pixels

    PixelPlace Pixel() const {
      return {static_cast<int>(Corner.x()), static_cast<int>(Corner.y())};
    }
  };

  // What is drawn from the top down, before it is laid over the picture.
  struct TopDown {
    QImage Picture;
    CoveredTiles Covered;
    QImage Glyphs;  // of a large text, before they go below the picture
  };

  PixelCanvas Canvas(DrawMode mode);
  // Whether nothing in a box of the picture can be seen.
  bool IsHidden(const QRectF& box);
  // @param reach how many pixels beyond its letters belong to the text
  std::optional<PlacedText> PlaceText(SurfacePoint topLeft, std::string_view text, int reach);
  void DrawGlyphs(QPointF corner, const TextLayout& layout, QImage& picture) const;
  // The same below the picture that is drawn from the top down, when all lies in a box.
  void DrawGlyphsBelow(QPointF corner, const TextLayout& layout, const QRectF& box);
  QPointF DevicePoint(SurfacePoint point) const {
    return {point.X * pixelsPerUnitX_, point.Y * pixelsPerUnitY_};
  }
  int DevicePenWidth() const;
  void MakePicture();
  void MakeDots();

  QSize size_;        // in pixels of an ordinary screen
  QSize deviceSize_;  // in the picture's pixels
  double ratio_;
  QSizeF units_;
  double pixelsPerUnitX_ = 0;
  double pixelsPerUnitY_ = 0;
  // All three share their pixels as long as they show the same.
  QImage picture_;
  QImage blank_;
  QImage background_;
  std::optional<TopDown> topDown_;

  Pen pen_;
  // As wide as the pen: points close an area, the round dots of lines meet at every angle.
  DotMask point_{DotShape::Square, 1, 1};
  DotMask dot_{DotShape::Round, 1, 1};
  QRgb fillColour_ = RgbOf({0, 0, 0});
  QRgb foreColour_ = RgbOf({255, 255, 255});
  double fontPoints_ = 8.25;
  mutable TextLayouts texts_;  // filled as they are asked for
};

}  // namespace quorvane

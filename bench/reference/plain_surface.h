#pragma once

#include <QFont>
#include <QImage>
#include <QSize>
#include <QSizeF>
#include <memory>
#include <string_view>

#include "map/drawing_surface.h"

namespace quorvane::reference {

/// The map picture, written without any thought of speed: every pixel that may belong to a shape is
/// asked whether it does, and every text is laid out when it is drawn. It draws what
/// `PictureSurface` draws, pixel for pixel.
class PlainSurface : public DrawingSurface {
 public:
  /// @param size    in pixels of an ordinary screen
  /// @param ratio   device pixels to one of these
  /// @param units   the logical scale
  explicit PlainSurface(QSize size, double ratio = 1,
                        QSizeF units = {kSurfaceUnits, kSurfaceUnits});

  const QImage& Picture() const { return picture_; }

  void Clear() override { picture_ = background_; }
  void SetBackground(std::shared_ptr<const SurfaceImage> image) override;
  std::shared_ptr<const SurfaceImage> Image() const override;

  void SetPen(const Pen& pen) override { pen_ = pen; }
  Pen CurrentPen() const override { return pen_; }
  void SetFillColour(Colour colour) override { fillColour_ = colour; }
  void SetForeColour(Colour colour) override { foreColour_ = colour; }
  void SetFontSize(double points) override { fontPoints_ = points; }

  void Point(SurfacePoint at, Colour colour) override;
  void Line(SurfacePoint from, SurfacePoint to, Colour colour) override;
  void Circle(SurfacePoint centre, double radius, Colour colour) override;
  void Print(SurfacePoint topLeft, std::string_view text) override;
  void PrintOutline(SurfacePoint topLeft, std::string_view text, Colour colour) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight() const override;

  int WidthInTwips() const override { return size_.width() * 15; }
  int WidthToCover(double distance) const override;

 private:
  QPointF DevicePoint(SurfacePoint point) const;
  QPointF CornerOf(SurfacePoint topLeft) const;
  void PrintInto(QImage& picture, QPointF corner, std::string_view text, Colour colour) const;
  int DevicePenWidth() const;
  QFont Font() const;
  void Put(int x, int y, Colour colour);
  void Dot(QPointF at, bool isRound, Colour colour);
  void ThinLine(QPointF from, QPointF to, Colour colour);
  void WideLine(QPointF from, QPointF to, Colour colour);

  QSize size_;
  double ratio_;
  QSizeF units_;
  QImage picture_;
  QImage background_;
  Pen pen_;
  Colour fillColour_ = {0, 0, 0};
  Colour foreColour_ = {255, 255, 255};
  double fontPoints_ = 8.25;
};

}  // namespace quorvane::reference

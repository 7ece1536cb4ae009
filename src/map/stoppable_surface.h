#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

#include "map/drawing_surface.h"
#include "model/progress.h"

namespace quorvane {

/// A surface that lets the user give a redraw up: it passes everything on to another one until the
/// step is stopped, and draws nothing from then on. So only an overlay that has to think long about
/// each drawing needs to ask.
class StoppableSurface : public DrawingSurface {
 public:
  StoppableSurface(DrawingSurface& surface, const Progress& progress)
      : surface_(surface), progress_(progress) {}

  bool IsStopped() const override { return isStopped_; }

  void Clear() override { surface_.Clear(); }
  void SetBackground(std::shared_ptr<const SurfaceImage> image) override;
  std::shared_ptr<const SurfaceImage> Image() const override { return surface_.Image(); }

  void SetPen(const Pen& pen) override { surface_.SetPen(pen); }
  Pen CurrentPen() const override { return surface_.CurrentPen(); }
  void SetFillColour(Colour colour) override { surface_.SetFillColour(colour); }
  void SetForeColour(Colour colour) override { surface_.SetForeColour(colour); }
  void SetFontSize(double points) override { surface_.SetFontSize(points); }

  bool BeginTopDown(std::size_t drawings) override { return surface_.BeginTopDown(drawings); }
  void EndTopDown() override { surface_.EndTopDown(); }

  void Point(SurfacePoint at, Colour colour) override;
  void Points(const PointGrid& grid) override;
  void Line(SurfacePoint from, SurfacePoint to, Colour colour) override;
  bool LineHidesItsReverse(SurfacePoint from, SurfacePoint to, Colour colour) override;
  void Circle(SurfacePoint centre, double radius, Colour colour) override;
  void Discs(std::span<const DiscPlace> discs, Colour colour) override;
  void Print(SurfacePoint topLeft, std::string_view text) override;
  void PrintOutline(SurfacePoint topLeft, std::string_view text, Colour colour) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight() const override { return surface_.TextHeight(); }

  int WidthInTwips() const override { return surface_.WidthInTwips(); }
  int WidthToCover(double distance) const override { return surface_.WidthToCover(distance); }

 private:
  bool GoesOn();

  DrawingSurface& surface_;
  const Progress& progress_;
  int drawn_ = 0;
  bool isStopped_ = false;
};

}  // namespace quorvane

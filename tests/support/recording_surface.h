#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "map/drawing_surface.h"

namespace quorvane {

using Texts = std::vector<std::string>;

/// A drawing surface that keeps what is drawn on it as lines of text, each with all of the pen that
/// matters to it:
///   point 5000,5000 #ff0000 copy w4
///   line 0,0 10,20 #00ff00 copy solid w1
///   circle 5000,5000 r20 #000000 fill #ffffff copy solid w1
///   text 4800,5050 "Kestrel" #ffffff 6pt
///   outline 4800,5050 "Kestrel" #000000 6pt
///   background none, background of 3 lines, clear
class RecordingSurface : public DrawingSurface {
 public:
  /// Every character of a text is this wide.
  static constexpr double kCharacterWidth = 100;
  static constexpr double kTextHeight = 150;

  explicit RecordingSurface(int widthInTwips = 6675) : widthInTwips_(widthInTwips) {}

  /// Everything since the start, or since `Forget`.
  const Texts& Lines() const { return lines_; }
  void Forget() { lines_.clear(); }

  void Clear() override;
  void SetBackground(std::shared_ptr<const SurfaceImage> image) override;
  /// Holds what was drawn since the last clearing or background.
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
  double TextHeight() const override { return kTextHeight; }
  int WidthInTwips() const override { return widthInTwips_; }
  /// Text has no pixels to leave open: the overlays' own widths are seen.
  int WidthToCover(double) const override { return 1; }

 private:
  void Draw(const Texts& words);

  int widthInTwips_;
  Pen pen_;
  Colour fillColour_;
  Colour foreColour_;
  double fontPoints_ = 8.25;
  Texts lines_;
  Texts shown_;
};

}  // namespace quorvane

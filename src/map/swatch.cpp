#include "map/swatch.h"

#include "model/rounding.h"

namespace quorvane {

void PaintColourDiscs(Colour colour, DrawingSurface& surface, SurfacePoint centre, double step,
                      std::optional<Colour> outline) {
  constexpr int kDiscs = 10;
  surface.SetPen({.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = 1});
  for (int disc = kDiscs; disc > 0; --disc) {
    const auto dimmed = [disc](int component) {
      return ToWhole32(static_cast<double>(component) / disc);
    };
    const Colour shade = {dimmed(colour.Red), dimmed(colour.Green), dimmed(colour.Blue)};
    surface.SetFillColour(shade);
    surface.Circle(centre, step * disc, outline.value_or(shade));
  }
}

void PaintSwatch(Colour colour, DrawingSurface& surface, std::optional<Colour> outline) {
  constexpr double kRadiusStep = 150;
  PaintColourDiscs(colour, surface, {0, 0}, kRadiusStep, outline);
}

}  // namespace quorvane

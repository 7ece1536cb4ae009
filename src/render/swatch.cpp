#include "render/swatch.h"

#include "model/rounding.h"

namespace quorvane {

void PaintSwatch(Colour colour, DrawingSurface& surface) {
  constexpr int kDiscs = 10;
  constexpr double kRadiusStep = 150;
  surface.SetPen({.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = 1});
  for (int disc = kDiscs; disc > 0; --disc) {
    const auto dimmed = [disc](int component) {
      return ToWhole32(static_cast<double>(component) / disc);
    };
    const Colour shade = {dimmed(colour.Red), dimmed(colour.Green), dimmed(colour.Blue)};
    surface.SetFillColour(shade);
    surface.Circle({0, 0}, kRadiusStep * disc, shade);
  }
}

}  // namespace quorvane

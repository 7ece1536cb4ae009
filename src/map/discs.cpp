#include "map/discs.h"

#include <algorithm>

#include "map/map_key.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr Colour kUnexploredColour = {80, 60, 60};
constexpr double kUnexploredRadius = 30;
constexpr double kFullComponent = 255;

int RoundedComponent(double component) {
  return ToWhole16(std::clamp(component, 0.0, kFullComponent));
}

}  // namespace

void DrawDisc(DrawingSurface& surface, SurfacePoint at, double radius, Colour colour) {
  surface.SetFillColour(colour);
  surface.Circle(at, radius, colour);
}

void DrawUnexploredDisc(DrawingSurface& surface, SurfacePoint at) {
  DrawDisc(surface, at, kUnexploredRadius, kUnexploredColour);
}

KeyLine UnexploredKeyLine() {
  const auto draw = [](DrawingSurface& surface, SurfacePoint at) {
    surface.SetPen(kDiscPen);
    DrawUnexploredDisc(surface, at);
  };
  return {"dull: not explored", draw, kUnexploredRadius};
}

Colour RoundedColour(double red, double green, double blue) {
  return {RoundedComponent(red), RoundedComponent(green), RoundedComponent(blue)};
}

void PaintColourDiscs(Colour colour, DrawingSurface& surface, SurfacePoint centre, double step,
                      std::optional<Colour> outline) {
  constexpr int kDiscs = 10;
  surface.SetPen({.Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = true, .Width = 1});
  for (int disc = kDiscs; disc > 0; --disc) {
    const auto byDisc = [disc](int component) {
      return ToWhole32(static_cast<double>(component) / disc);
    };
    const Colour shade = {byDisc(colour.Red), byDisc(colour.Green), byDisc(colour.Blue)};
    surface.SetFillColour(shade);
    surface.Circle(centre, step * disc, outline.value_or(shade));
  }
}

void PaintSwatch(Colour colour, DrawingSurface& surface, std::optional<Colour> outline) {
  constexpr double kRadiusStep = 150;
  PaintColourDiscs(colour, surface, {0, 0}, kRadiusStep, outline);
}

}  // namespace quorvane

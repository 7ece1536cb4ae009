#include "map/discs.h"

#include <algorithm>

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

Colour RoundedColour(double red, double green, double blue) {
  return {RoundedComponent(red), RoundedComponent(green), RoundedComponent(blue)};
}

}  // namespace quorvane

#pragma once

#include "map/drawing_surface.h"

namespace quorvane {

/// The pen of overlays that show a value as a disc without an outline.
inline constexpr Pen kDiscPen = {
    .Mode = DrawMode::Copy, .Style = DrawStyle::NoOutline, .Filled = true, .Width = 1};

/// A disc of one colour, centred on a planet; its outline, if the pen has one, is of that colour as
/// well.
/// @param radius in surface units, whatever the zoom
void DrawDisc(DrawingSurface& surface, SurfacePoint at, double radius, Colour colour);

/// The dull little disc of a planet that nobody has explored.
void DrawUnexploredDisc(DrawingSurface& surface, SurfacePoint at);

/// A colour of three rounded components, each cut to 0 … 255.
Colour RoundedColour(double red, double green, double blue);

}  // namespace quorvane

#pragma once

#include <optional>

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

/// Width and height of a legend swatch, which is also its logical scale, in twips.
inline constexpr int kSwatchWidth = 645;
inline constexpr int kSwatchHeight = 330;

/// Paints a colour as ten discs around a point, dark at the rim and the full colour in the middle.
/// @param step    by how much each disc is wider than the one above it
/// @param outline of the discs; nothing: each disc's own colour
void PaintColourDiscs(Colour colour, DrawingSurface& surface, SurfacePoint centre, double step,
                      std::optional<Colour> outline);

/// Paints a race's colour around the top left corner of its swatch.
void PaintSwatch(Colour colour, DrawingSurface& surface,
                 std::optional<Colour> outline = std::nullopt);

}  // namespace quorvane

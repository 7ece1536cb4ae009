#pragma once

#include <optional>

#include "map/drawing_surface.h"

namespace quorvane {

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

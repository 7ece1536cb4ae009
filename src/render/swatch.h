#pragma once

#include "render/drawing_surface.h"

namespace quorvane {

/// Width and height of a legend swatch, which is also its logical scale, in twips.
inline constexpr int kSwatchWidth = 645;
inline constexpr int kSwatchHeight = 330;

/// Paints a race's colour as discs around the swatch's top left corner, dark at the rim and the
/// full colour in the middle.
void PaintSwatch(Colour colour, DrawingSurface& surface);

}  // namespace quorvane

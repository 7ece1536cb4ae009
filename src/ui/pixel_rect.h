#pragma once

#include <QRect>

#include "paint/twips.h"
#include "screens/main_layout.h"

namespace quorvane {

/// A rectangle of the layout in pixels of the screen.
inline QRect PixelRect(const TwipRect& rect) {
  return {PixelsFromTwips(rect.Left), PixelsFromTwips(rect.Top), PixelsFromTwips(rect.Width),
          PixelsFromTwips(rect.Height)};
}

}  // namespace quorvane

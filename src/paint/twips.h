#pragma once

#include <cmath>

namespace quorvane {

/// Twips (1/1440 inch) to a pixel of an ordinary screen of 96 dots per inch.
inline constexpr int kTwipsPerPixel = 15;

/// The nearest number of pixels for a length in twips.
inline int PixelsFromTwips(double twips) {
  return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

inline int TwipsFromPixels(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace quorvane

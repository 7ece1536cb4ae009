#pragma once

#include <QRgb>

#include "model/race_colours.h"

namespace quorvane {

/// A colour as the pixels of pictures hold it, and back.
inline QRgb RgbOf(Colour colour) { return qRgb(colour.Red, colour.Green, colour.Blue); }
inline Colour ColourFrom(QRgb pixel) { return {qRed(pixel), qGreen(pixel), qBlue(pixel)}; }

}  // namespace quorvane

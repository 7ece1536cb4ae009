#pragma once

#include <QSize>

namespace quorvane {

/// A pixel by its column and row; it may lie outside the picture.
struct PixelPlace {
  int X = 0;
  int Y = 0;
};

/// How far from the picture's corner the ends of a line may lie, in pixels.
inline constexpr int kFarthestPixel = 1 << 24;

/// The part of a line of one pixel's width that lies inside a picture, as a way from pixel to
/// pixel.
///
/// A line has one pixel for each step of its longer axis, both its end pixels included. In the
/// other direction, across, it is the nearest one; of two that are equally near, the one where the
/// line comes from, seen from its left end (its upper end when it is steeper than a diagonal). So
/// it has the same pixels whichever end comes first, and those inside the picture are the same
/// however much of it lies outside.
struct LineSteps {
  PixelPlace Start;
  /// How many pixels the line has inside the picture.
  int Count = 0;
  /// Which way the line goes: 1, or -1 for left and up.
  int Right = 1;
  int Down = 1;
  /// With each pixel it goes one down, otherwise one right (or the opposite).
  bool IsSteep = false;
  /// Below 0. `Gain` is added with each pixel; when that makes it 0 or more, the line moves one
  /// across as well, and `Turn` is subtracted.
  int Balance = 0;
  int Gain = 0;
  int Turn = 0;
};

/// The way from one pixel to another; no coordinate is beyond `kFarthestPixel` in either direction.
LineSteps StepsInside(PixelPlace from, PixelPlace to, QSize picture);

/// A line without so many of its first pixels; it has more.
LineSteps PartFrom(const LineSteps& line, int step);
/// The pixel where a line of some pixels ends.
PixelPlace LastPixelOf(const LineSteps& line);

}  // namespace quorvane

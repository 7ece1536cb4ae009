#include "paint/line_steps.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace quorvane {
namespace {

bool IsInside(PixelPlace place, QSize picture) {
  return place.X >= 0 && place.Y >= 0 && place.X < picture.width() && place.Y < picture.height();
}

// For a divisor above 0.
std::int64_t DivideUp(std::int64_t value, std::int64_t divisor) {
  return value > 0 ? (value - 1) / divisor + 1 : value / divisor;
}

struct Range {
  std::int64_t First = 0;
  std::int64_t Last = -1;
};

// How far something may go from `start`, up or down, to be on one of so many pixels.
Range WayInside(int start, int direction, int pixels) {
  if (direction > 0) return {-start, pixels - 1 - start};
  return {start - (pixels - 1), start};
}

// After i steps along, a line is (2 i Rise + Bias) / (2 Length) pixels across from its start,
// rounded down: the nearest pixel, as the bias is half the divisor or just less.
struct Course {
  std::int64_t Length = 0;
  std::int64_t Rise = 0;
  std::int64_t Bias = 0;

  // The first step from which on the line is so far across. For a rise above 0.
  std::int64_t FirstStepAt(std::int64_t across) const {
    return DivideUp(2 * across * Length - Bias, 2 * Rise);
  }
};

Range StepsInside(const Course& course, Range along, Range across) {
  const Range steps = {std::max<std::int64_t>(along.First, 0), std::min(along.Last, course.Length)};
  if (course.Rise == 0) return across.First <= 0 && across.Last >= 0 ? steps : Range{};
  return {std::max(steps.First, course.FirstStepAt(across.First)),
          std::min(steps.Last, course.FirstStepAt(across.Last + 1) - 1)};
}

// Moves the start of a line so many steps along.
void GoAlong(LineSteps& line, std::int64_t step) {
  if (step == 0) return;
  const std::int64_t dividend = step * line.Gain + line.Balance + line.Turn;
  const int along = static_cast<int>(step);
  const int across = static_cast<int>(dividend / line.Turn);
  line.Start.X += line.Right * (line.IsSteep ? across : along);
  line.Start.Y += line.Down * (line.IsSteep ? along : across);
  line.Balance = static_cast<int>(dividend % line.Turn) - line.Turn;
}

// Drops the pixels that lie outside the picture from a whole line.
void CutTo(QSize picture, LineSteps& line) {
  const Course course = {line.Turn / 2, line.Gain / 2, line.Balance + line.Turn};
  Range along = WayInside(line.Start.X, line.Right, picture.width());
  Range across = WayInside(line.Start.Y, line.Down, picture.height());
  if (line.IsSteep) std::swap(along, across);
  const Range steps = StepsInside(course, along, across);
  line.Count = static_cast<int>(std::max<std::int64_t>(steps.Last - steps.First + 1, 0));
  if (line.Count > 0) GoAlong(line, steps.First);
}

}  // namespace

LineSteps StepsInside(PixelPlace from, PixelPlace to, QSize picture) {
  const int right = to.X < from.X ? -1 : 1;
  const int down = to.Y < from.Y ? -1 : 1;
  const int width = std::abs(to.X - from.X);
  const int height = std::abs(to.Y - from.Y);
  const bool isSteep = height > width;
  const int length = std::max(width, height);
  const bool goesBack = (isSteep ? down : right) < 0;
  const int bias = length - (goesBack ? 0 : 1);
  LineSteps line = {.Start = from,
                    .Count = length + 1,
                    .Right = right,
                    .Down = down,
                    .IsSteep = isSteep,
                    .Balance = bias - 2 * length,
                    .Gain = 2 * std::min(width, height),
                    .Turn = 2 * length};
  if (!IsInside(from, picture) || !IsInside(to, picture)) CutTo(picture, line);
  return line;
}

LineSteps PartFrom(const LineSteps& line, int step) {
  LineSteps part = line;
  GoAlong(part, step);
  part.Count -= step;
  return part;
}

PixelPlace LastPixelOf(const LineSteps& line) { return PartFrom(line, line.Count - 1).Start; }

}  // namespace quorvane

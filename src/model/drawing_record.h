#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "model/race_colours.h"

namespace quorvane {

/// The colours of drawings, numbered from 1.
inline constexpr std::array<Colour, 7> DrawColours = {{{255, 255, 255},
                                                       {255, 0, 0},
                                                       {0, 255, 0},
                                                       {0, 0, 255},
                                                       {255, 255, 0},
                                                       {0, 255, 255},
                                                       {255, 0, 255}}};

enum class DrawingKind : char { Line = 'L', Circle = 'C', Text = 'T' };

/// One shape of the drawing layer, in game coordinates.
struct DrawingRecord {
  DrawingKind Kind = DrawingKind::Line;
  /// Where a line starts, a circle's centre, a text's top left corner.
  std::int32_t X = 0;
  std::int32_t Y = 0;
  /// Where a line ends.
  std::int32_t X2 = 0;
  std::int32_t Y2 = 0;
  /// A circle's radius in light years.
  std::int32_t Radius = 0;
  std::string Text;
  /// A text's font size in points; decimals only until the record was read from a file.
  double Size = 0;
  /// 1 … 7 of the drawing colours; other numbers have no colour and are not drawn.
  int ColourNumber = 1;

  bool operator==(const DrawingRecord&) const = default;
};

}  // namespace quorvane

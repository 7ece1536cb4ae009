#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/game_session.h"
#include "model/result.h"

namespace quorvane {

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

/// Reads drawing records: fields end at commas and line ends, blanks around them are dropped, a
/// quoted field may hold commas, numbers are rounded to whole ones. Other kinds are dropped field
/// by field; a record that the text cuts short ends the reading.
std::vector<DrawingRecord> ParseDrawing(std::string_view text);

/// A record as one line of the drawing layer, without its line end. A text that would not come back
/// whole is put between quotes.
std::string DrawingRecordText(const DrawingRecord& record);

/// The records one a line, each line ended by CR LF: the layer as the user sees it.
std::string DrawingLayerText(const std::vector<DrawingRecord>& records);

/// Reads the drawing file of the session's map. A missing file gives no records; the caller asks
/// for it where the difference matters.
Result<std::vector<DrawingRecord>> ReadDrawingFile(const GameSession& session);

}  // namespace quorvane

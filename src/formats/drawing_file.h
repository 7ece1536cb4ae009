#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/drawing_record.h"
#include "model/game_session.h"
#include "model/result.h"

namespace quorvane {

/// Reads drawing records: fields end at commas and line ends, blanks around them are dropped, a
/// quoted field may hold commas, numbers are rounded to whole ones. Other kinds are dropped field
/// by field; a record that the text cuts short ends the reading. `fileName` is named in messages.
/// Fails with file and line for a line of more than 64 KB, line ends within quotes included.
Result<std::vector<DrawingRecord>> ParseDrawing(std::string_view text, std::string_view fileName);

/// A record as one line of the drawing layer, without its line end. A text that would not come back
/// whole is put between quotes.
std::string DrawingRecordText(const DrawingRecord& record);

/// The records one a line, each line ended by CR LF: the layer as the user sees it.
std::string DrawingLayerText(const std::vector<DrawingRecord>& records);

/// What keeps a text from being drawn: a quote or a line break in it would not come back from the
/// drawing file.
/// @return the sentence for the user, or nothing for a text that can be kept
std::optional<std::string> DrawnTextFault(std::string_view text);

/// Reads the drawing file of the session's map. A missing file gives no records; the caller asks
/// for it where the difference matters. Fails with file, line and reason.
Result<std::vector<DrawingRecord>> ReadDrawingFile(const GameSession& session);

/// Replaces the drawing file of the session's map by the layer as the user sees it, hand-made lines
/// included, each line ended by CR LF. What could not be read back is not written.
/// @param layer lines ended by LF or CR LF
Result<void> WriteDrawingFile(const GameSession& session, std::string_view layer);

}  // namespace quorvane

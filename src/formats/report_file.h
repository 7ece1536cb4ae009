#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// The lines of the user's own report: all that follow the heading, each whole, without the empty
/// ones. The heading is one data item: what follows a comma in it counts as the first line.
std::vector<std::string_view> OwnReportLines(std::string_view text);

/// The lines of another player's report, each read as one data item: it ends at its first comma,
/// and the rest counts as the next line; quotes around its front are dropped. As many items are
/// taken as the file has lines behind the heading, so a report with commas loses as many items at
/// its end. Empty items are left out.
/// @param unquoted  keeps the lines that are not in the text as they stand
std::vector<std::string_view> OtherReportLines(std::string_view text,
                                               std::deque<std::string>& unquoted);

}  // namespace quorvane

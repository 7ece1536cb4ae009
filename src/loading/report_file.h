#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// The lines of the user's own report: all that follow the heading, each whole. The heading is one
/// data item: what follows a comma in it counts as the first line.
std::vector<std::string> OwnReportLines(std::string_view text);

/// The lines of another player's report, each read as one data item: it ends at its first comma,
/// and the rest counts as the next line; quotes around its front are dropped. As many items are
/// taken as the file has lines behind the heading, so a report with commas loses as many items at
/// its end.
std::vector<std::string> OtherReportLines(std::string_view text);

}  // namespace quorvane

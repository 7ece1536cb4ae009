#pragma once

#include <functional>
#include <string_view>

namespace quorvane {

/// Receives the lines of a report one by one; a line is good during the call only.
using VisitReportLine = std::function<void(std::string_view line)>;

/// The lines of the user's own report: all that follow the heading, each whole. The heading is one
/// data item: what follows a comma in it counts as the first line.
void ForEachOwnReportLine(std::string_view text, const VisitReportLine& visit);

/// The lines of another player's report, each read as one data item: it ends at its first comma,
/// and the rest counts as the next line; quotes around its front are dropped. As many items are
/// taken as the file has lines behind the heading, so a report with commas loses as many items at
/// its end.
void ForEachOtherReportLine(std::string_view text, const VisitReportLine& visit);

}  // namespace quorvane

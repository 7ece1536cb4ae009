#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "formats/report_line.h"
#include "loading/planet_index.h"
#include "model/result.h"

namespace quorvane {

/// Longer lines of a report are passed over: all planets of a name would keep a copy of what one
/// says. In bytes; the game's own lines have a few hundred.
inline constexpr std::size_t kLongestReportLine = 4096;

/// The text of a report. Fails with file and reason where it cannot be read, or has no heading.
Result<std::string> ReadReport(const std::filesystem::path& path);

/// Calls `use` with the number of the first planet that each line names and the line; what names
/// no planet of the map is passed over.
/// @param lines  as `OwnReportLines` and `OtherReportLines` give them
template <typename Use>
void UseReportLines(const PlanetIndex& index, const std::vector<std::string_view>& lines,
                    const Use& use) {
  for (const std::string_view text : lines) {
    if (text.size() > kLongestReportLine) continue;
    const ReportLine line(text);
    if (line.Count() == 0) continue;
    const int number = index.Find(line.Text(ReportField::PlanetName));
    if (number > 0) use(number, line);
  }
}

}  // namespace quorvane

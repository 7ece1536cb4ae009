#pragma once

#include <string>
#include <vector>

#include "generator/intelligence.h"
#include "generator/universe.h"

namespace quorvane::generator {

/// Whose report it is and when it was written.
struct ReportHead {
  int Author = 0;  // index into the universe's races
  int Year = kFirstYear;
  int Style = 0;  // `kNewReportStyle` or `kOldReportStyle`
};

/// The text of a planet report in the game's own shape, one line for every planet known, in the
/// game's single-byte encoding.
std::string ReportText(const Universe& universe, const ReportHead& head,
                       const std::vector<Sighting>& known);

/// Text of this program as the game writes it: Windows-1252. What that has no sign for stays.
std::string EncodeForGame(std::string_view text);

}  // namespace quorvane::generator

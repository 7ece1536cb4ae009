#pragma once

#include <array>
#include <filesystem>
#include <string>

namespace quorvane {

inline constexpr int kMaxPlayers = 16;
/// `ReportStyle` of per-player reports, which carry environment, scanner and stargate columns.
inline constexpr int kNewReportStyle = 30;
/// `ReportStyle` of the single old-style report.
inline constexpr int kOldReportStyle = 20;
inline constexpr int kSmallestSoiSetting = 50;
inline constexpr int kLargestSoiSetting = 500;

/// One report offered for loading.
struct ReportFileSlot {
  std::filesystem::path Path;  // empty: no report in this row
  std::string Included = "0";  // reads as 1 when the report is to be loaded
  std::string Year;            // the report's year as typed; empty until the choice is accepted

  bool operator==(const ReportFileSlot&) const = default;
};

/// Which game the user chose to load, and how: all that the open dialog decides.
struct GameChoice {
  std::filesystem::path MapFilePath;
  /// Folder of the map; a single blank while no map is chosen.
  std::filesystem::path MapDirectory = " ";
  /// Rows 1 … 16; row 0 is not used.
  std::array<ReportFileSlot, kMaxPlayers + 1> ReportFiles;
  int ReportStyle = kNewReportStyle;
  /// Row of the user's own race; 0: none chosen.
  int MyRaceRow = 0;
  /// The current game year; 0: not given.
  int GameYear = 0;
  /// The largest sphere of influence of any planet, 50 … 500 light years.
  int SoiSetting = 100;

  // Companion files, beside the map and named after it.
  std::filesystem::path DrawingFilePath;
  std::filesystem::path RaceColourFilePath;
  std::filesystem::path EmpireDataFilePath;
  std::filesystem::path YearsFilePath;
  std::filesystem::path RememberedRaceFilePath;
};

}  // namespace quorvane

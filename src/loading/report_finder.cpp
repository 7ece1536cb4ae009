#include "loading/report_finder.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "files/files.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using FileNames = std::vector<fs::path>;

constexpr std::size_t kExtensionLength = 4;  // the dot included

std::size_t Index(int row) { return static_cast<std::size_t>(row); }

void UseOldReport(GameChoice& choice, const fs::path& report, const std::string& gameYear) {
  choice.ReportStyle = kOldReportStyle;
  choice.ReportFiles[1] = {.Path = report, .Included = "1", .Year = gameYear};
  choice.MyRaceRow = 1;
}

// The report of that name in the map's folder, whose reports are listed.
std::optional<fs::path> FindReport(const GameChoice& choice, const FileNames& listed,
                                   const fs::path& report) {
  const std::optional<fs::path> name = NameAmong(listed, report);
  if (!name) return std::nullopt;
  return choice.MapFilePath.parent_path() / *name;
}

void UseNewReports(GameChoice& choice, const FileNames& listed) {
  choice.ReportStyle = kNewReportStyle;
  for (int row = 1; row <= kMaxPlayers; ++row) {
    const auto report = FindReport(choice, listed, ReportFileName(choice, row));
    if (!report) continue;
    choice.ReportFiles[Index(row)] = {.Path = *report, .Included = "1", .Year = ""};
    if (choice.MyRaceRow == 0) choice.MyRaceRow = row;
  }
}

bool AnyNewReport(const GameChoice& choice, const FileNames& listed) {
  for (int row = 0; row <= kMaxPlayers; ++row) {
    if (NameAmong(listed, ReportFileName(choice, row))) return true;
  }
  return false;
}

}  // namespace

fs::path GameFile(const fs::path& mapFile, const std::string& ending) {
  fs::path::string_type name = mapFile.filename().native();
  name.resize(name.size() - std::min(name.size(), kExtensionLength));
  fs::path file = mapFile.parent_path() / name;
  file += ending;
  return file;
}

fs::path ReportFileName(const GameChoice& choice, int row) {
  return GameFile(choice.MapFilePath, ".P" + std::to_string(row)).filename();
}

fs::path OldReportFileName(const GameChoice& choice) {
  return GameFile(choice.MapFilePath, ".PLA").filename();
}

void ChooseMap(GameChoice& choice, const fs::path& mapFile) {
  choice.MapFilePath = mapFile;
  choice.MapDirectory = mapFile.parent_path();
  choice.DrawingFilePath = GameFile(mapFile, ".QVL");
  choice.RaceColourFilePath = GameFile(mapFile, ".QVC");
  choice.EmpireDataFilePath = GameFile(mapFile, ".QVD");
  choice.YearsFilePath = GameFile(mapFile, ".YRS");
  choice.RememberedRaceFilePath = GameFile(mapFile, ".QVR");
}

bool FindReportFiles(GameChoice& choice, const std::string& gameYear, const AskForNewStyle& ask) {
  const fs::path pattern = GameFile(choice.MapFilePath, ".P").filename();
  const FileNames listed = FilesNamedLike(choice.MapFilePath.parent_path(), pattern, "");
  if (listed.empty()) return false;
  choice.ReportFiles.fill(ReportFileSlot());
  std::optional<fs::path> oldReport = FindReport(choice, listed, OldReportFileName(choice));
  if (oldReport && AnyNewReport(choice, listed) && ask()) oldReport.reset();
  choice.MyRaceRow = 0;
  if (oldReport) {
    UseOldReport(choice, *oldReport, gameYear);
  } else {
    UseNewReports(choice, listed);
  }
  return true;
}

}  // namespace quorvane

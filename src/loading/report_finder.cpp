#include "loading/report_finder.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/files/files.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using FileNames = std::vector<std::string>;

constexpr std::size_t kExtensionLength = 4;  // the dot included

std::size_t Index(int row) { return static_cast<std::size_t>(row); }

fs::path Beside(const GameChoice& choice, const std::string& fileName) {
  return choice.MapFilePath.parent_path() / PathFromText(fileName);
}

fs::path CompanionPath(const GameChoice& choice, const char* extension) {
  return Beside(choice, BaseNameOf(choice.MapFilePath) + extension);
}

void UseOldReport(GameChoice& choice, const fs::path& report, const std::string& gameYear) {
  choice.ReportStyle = kOldReportStyle;
  choice.ReportFiles[1] = {.Path = report, .Included = "1", .Year = gameYear};
  choice.MyRaceRow = 1;
}

// The report of that name in the map's folder, whose reports are listed.
std::optional<fs::path> FindReport(const GameChoice& choice, const FileNames& listed,
                                   const std::string& report) {
  const std::optional<std::string> name = NameAmong(listed, report);
  if (!name) return std::nullopt;
  return Beside(choice, *name);
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

std::string BaseNameOf(const fs::path& mapFile) {
  std::string name = TextFromPath(mapFile.filename());
  name.resize(name.size() - std::min(name.size(), kExtensionLength));
  return name;
}

std::string ReportFileName(const GameChoice& choice, int row) {
  return BaseNameOf(choice.MapFilePath) + ".P" + std::to_string(row);
}

std::string OldReportFileName(const GameChoice& choice) {
  return BaseNameOf(choice.MapFilePath) + ".PLA";
}

void ChooseMap(GameChoice& choice, const fs::path& mapFile) {
  choice.MapFilePath = mapFile;
  choice.MapDirectory = mapFile.parent_path();
  choice.DrawingFilePath = CompanionPath(choice, ".QVL");
  choice.RaceColourFilePath = CompanionPath(choice, ".QVC");
  choice.EmpireDataFilePath = CompanionPath(choice, ".QVD");
  choice.YearsFilePath = CompanionPath(choice, ".YRS");
  choice.RememberedRaceFilePath = CompanionPath(choice, ".QVR");
}

bool FindReportFiles(GameChoice& choice, const std::string& gameYear, const AskForNewStyle& ask) {
  const std::string pattern = BaseNameOf(choice.MapFilePath) + ".P";
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

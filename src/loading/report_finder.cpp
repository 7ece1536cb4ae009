#include "loading/report_finder.h"

#include <algorithm>
#include <optional>

#include "platform/files/files.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

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

void UseNewReports(GameChoice& choice) {
  choice.ReportStyle = kNewReportStyle;
  for (int row = 1; row <= kMaxPlayers; ++row) {
    const auto report = FindFile(Beside(choice, ReportFileName(choice, row)));
    if (!report) continue;
    choice.ReportFiles[Index(row)] = {.Path = *report, .Included = "1", .Year = ""};
    if (choice.MyRaceRow == 0) choice.MyRaceRow = row;
  }
}

bool AnyNewReport(const GameChoice& choice) {
  for (int row = 0; row <= kMaxPlayers; ++row) {
    if (FindFile(Beside(choice, ReportFileName(choice, row)))) return true;
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
  if (FilesNamedLike(choice.MapFilePath.parent_path(), pattern, "").empty()) return false;
  choice.ReportFiles.fill(ReportFileSlot());
  std::optional<fs::path> oldReport = FindFile(Beside(choice, OldReportFileName(choice)));
  if (oldReport && AnyNewReport(choice) && ask()) oldReport.reset();
  choice.MyRaceRow = 0;
  if (oldReport) {
    UseOldReport(choice, *oldReport, gameYear);
  } else {
    UseNewReports(choice);
  }
  return true;
}

}  // namespace quorvane

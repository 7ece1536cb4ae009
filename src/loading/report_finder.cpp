#include "loading/report_finder.h"

#include <optional>
#include <vector>

#include "files/files.h"
#include "formats/game_files.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using FileNames = std::vector<fs::path>;

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

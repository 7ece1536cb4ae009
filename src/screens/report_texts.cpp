#include "screens/report_texts.h"

#include <algorithm>

#include "files/files.h"
#include "screens/local_time.h"

namespace quorvane {
namespace {

std::string DateOf(int row, int reportStyle, const std::vector<GameFileStamp>& stamps) {
  const GameFileStamp* stamp = reportStyle == kOldReportStyle
                                   ? FindStamp(stamps, GameFileKind::OldReport, 0)
                                   : FindStamp(stamps, GameFileKind::Report, row);
  return stamp != nullptr ? LocalTimeText(stamp->Time) : "";
}

std::string WarningOf(const ReportFileSlot& slot, int gameYear, const ReportSurvey& survey) {
  if (!survey.Problem.empty()) return "Cannot be read: " + survey.Problem;
  const double year = NumericValue(slot.Year);
  if (gameYear <= 0 || year == 0 || year == gameYear) return "";
  return "Of " + NumberText(year) + ", the game is in " + std::to_string(gameYear);
}

ReportRow RowOf(const GameChoice& next, int row, const ReportSurvey& survey) {
  const ReportFileSlot& slot = next.ReportFiles.at(static_cast<std::size_t>(row));
  const bool isOwn = row == next.MyRaceRow;
  ReportRow texts = {.Row = row,
                     .File = TextFromPath(slot.Path.filename()),
                     .Race = survey.Race,
                     .Year = slot.Year,
                     .Warning = WarningOf(slot, next.GameYear, survey),
                     .IsTicked = IsReportTicked(slot, isOwn),
                     .IsOwn = isOwn};
  if (!survey.IsDone || !survey.Problem.empty()) return texts;
  texts.Planets = std::to_string(survey.Planets);
  texts.OnlyHere = std::to_string(survey.OnlyHere);
  if (survey.AverageAge) texts.AverageAge = OneDecimalText(*survey.AverageAge);
  return texts;
}

void AddPlayersWithoutReport(const GameSession& session, std::vector<ReportRow>& rows) {
  const std::size_t reports = rows.size();
  for (const PlayerRecord& player : session.Players()) {
    const auto isFrom = [&](const ReportRow& row) { return row.Race == player.Name(); };
    if (std::any_of(rows.begin(), rows.begin() + static_cast<long>(reports), isFrom)) continue;
    rows.push_back({.Race = player.Name(), .Warning = "No report"});
  }
}

}  // namespace

std::vector<ReportRow> DescribeReports(const GameSession& session, const GameChoice& next,
                                       const ReportSurveys& surveys,
                                       const std::vector<GameFileStamp>& stamps) {
  std::vector<ReportRow> rows;
  bool isSurveyed = true;
  for (int row = 1; row <= kMaxPlayers; ++row) {
    const auto slot = static_cast<std::size_t>(row);
    if (next.ReportFiles[slot].Path.empty()) continue;
    rows.push_back(RowOf(next, row, surveys[slot]));
    rows.back().Date = DateOf(row, next.ReportStyle, stamps);
    isSurveyed = isSurveyed && surveys[slot].IsDone;
  }
  if (isSurveyed && next.ReportStyle == kNewReportStyle) AddPlayersWithoutReport(session, rows);
  return rows;
}

}  // namespace quorvane

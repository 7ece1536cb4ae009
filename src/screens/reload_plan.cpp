#include "screens/reload_plan.h"

#include <algorithm>

#include "files/files.h"
#include "model/field_value.h"
#include "screens/local_time.h"

namespace quorvane {
namespace {

constexpr std::size_t kDateLength = 11;  // "2026-11-23 ", before the time

std::size_t Index(int row) { return static_cast<std::size_t>(row); }

bool TellsYear(const GameFileStamp& file) {
  return file.Kind == GameFileKind::Turn || file.Kind == GameFileKind::Host;
}

std::string TimeText(std::int64_t milliseconds, std::int64_t today) {
  const std::string time = LocalTimeText(milliseconds);
  const bool isToday = time.substr(0, kDateLength) == LocalTimeText(today).substr(0, kDateLength);
  return isToday && time.size() > kDateLength ? time.substr(kDateLength) : time;
}

std::string DescribeChange(const FileChange& change, std::int64_t today) {
  const std::string name = TextFromPath(change.File.Name);
  if (change.IsGone) return name + " is gone";
  if (TellsYear(change.File)) return name + " is of year " + std::to_string(*change.File.Year);
  return name + " is new (" + TimeText(change.File.Time, today) + ")";
}

// The map's file is written anew with every report, and is the same.
int PlaceInNews(const GameFileStamp& file, const GameChoice& game) {
  const bool isOwn = file.Row == game.MyRaceRow;
  switch (file.Kind) {
    case GameFileKind::OldReport:
      return 0;
    case GameFileKind::Report:
      return isOwn ? 0 : 2;
    case GameFileKind::Turn:
      return isOwn ? 1 : 4;
    case GameFileKind::Host:
      return 3;
    case GameFileKind::Map:
      break;
  }
  return 5;
}

bool HasChanged(const std::vector<FileChange>& changes, GameFileKind kind, int row) {
  return std::ranges::any_of(changes, [&](const FileChange& change) {
    return change.File.Kind == kind && change.File.Row == row && !change.IsGone;
  });
}

// The turn file that tells of which year the user's own report is.
std::optional<int> OwnTurnYear(const GameChoice& choice, const std::vector<GameFileStamp>& files) {
  if (choice.ReportStyle != kNewReportStyle) {
    const std::optional<YearOffer> offer = OfferYear(files, choice);
    return offer ? std::optional(offer->Year) : std::nullopt;
  }
  const GameFileStamp* turn = FindStamp(files, GameFileKind::Turn, choice.MyRaceRow);
  return turn != nullptr ? turn->Year : std::nullopt;
}

// Reports that came since are ticked, as in the open dialog; those that went are left out unless
// they are wanted.
void UpdateReports(GameChoice& choice, const std::vector<GameFileStamp>& now) {
  if (choice.ReportStyle != kNewReportStyle) return;
  for (int row = 1; row <= kMaxPlayers; ++row) {
    ReportFileSlot& slot = choice.ReportFiles[Index(row)];
    const GameFileStamp* report = FindStamp(now, GameFileKind::Report, row);
    if (report == nullptr) {
      if (!FieldValue(slot.Included).ReadsAs(1)) slot = {};
      continue;
    }
    if (slot.Path.empty()) slot.Included = "1";
    slot.Path = choice.MapFilePath.parent_path() / report->Name;
  }
}

std::string YearText(int year) { return year > 0 ? std::to_string(year) : ""; }

bool IsOwnReportNew(const GameChoice& game, const std::vector<FileChange>& changes) {
  return game.ReportStyle == kNewReportStyle
             ? HasChanged(changes, GameFileKind::Report, game.MyRaceRow)
             : HasChanged(changes, GameFileKind::OldReport, 0);
}

std::vector<int> OtherNewReports(const GameChoice& game, const std::vector<FileChange>& changes) {
  std::vector<int> rows;
  for (const FileChange& change : changes) {
    const bool isOther = change.File.Kind == GameFileKind::Report && !change.IsGone &&
                         change.File.Row != game.MyRaceRow;
    if (isOther && game.ReportStyle == kNewReportStyle) rows.push_back(change.File.Row);
  }
  return rows;
}

}  // namespace

std::vector<FileChange> FindChanges(const std::vector<GameFileStamp>& before,
                                    const std::vector<GameFileStamp>& now) {
  std::vector<FileChange> changes;
  for (const GameFileStamp& file : now) {
    const GameFileStamp* old = FindStamp(before, file.Kind, file.Row);
    const bool hasChanged = TellsYear(file)
                                ? file.Year && (old == nullptr || old->Year != file.Year)
                                : old == nullptr || *old != file;
    if (hasChanged) changes.push_back({.File = file});
  }
  for (const GameFileStamp& old : before) {
    if (TellsYear(old) || FindStamp(now, old.Kind, old.Row) != nullptr) continue;
    changes.push_back({.File = old, .IsGone = true});
  }
  return changes;
}

std::string DescribeChanges(std::vector<FileChange> changes, const GameChoice& game,
                            std::int64_t today) {
  std::ranges::stable_sort(
      changes, {}, [&](const FileChange& change) { return PlaceInNews(change.File, game); });
  std::string text;
  for (const FileChange& change : changes) {
    if (!text.empty()) text += ", ";
    text += DescribeChange(change, today);
  }
  return text;
}

bool BringReports(const std::vector<FileChange>& changes) {
  return std::ranges::any_of(
      changes, [](const FileChange& change) { return !change.IsGone && !TellsYear(change.File); });
}

ReloadPlan PlanReload(const GameChoice& loaded, const std::vector<GameFileStamp>& before,
                      const std::vector<GameFileStamp>& now) {
  ReloadPlan plan = {.Choice = loaded, .GameYear = YearText(loaded.GameYear)};
  UpdateReports(plan.Choice, now);
  const std::vector<FileChange> changes = FindChanges(before, now);
  const bool isOwnNew = IsOwnReportNew(loaded, changes);
  const std::optional<int> turnYear = OwnTurnYear(loaded, now);
  const bool isTurnNew = turnYear != OwnTurnYear(loaded, before);
  plan.IsOwnYearAsked = isOwnNew && !turnYear;
  if (turnYear && (isOwnNew || isTurnNew)) plan.GameYear = YearText(*turnYear);
  if (plan.IsOwnYearAsked) {
    const std::optional<YearOffer> offer = OfferYear(now, loaded);
    plan.GameYear = offer ? YearText(offer->Year) : "";
  }
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    plan.Years[row] = plan.Choice.ReportFiles[row].Year;
  }
  // An empty one stands for the game's year, which may still be asked.
  if (isOwnNew) plan.Years[Index(loaded.MyRaceRow)] = "";
  plan.ChangedRows = OtherNewReports(loaded, changes);
  for (const int row : plan.ChangedRows) plan.Years[Index(row)] = plan.GameYear;
  return plan;
}

RowYears TypedYears(const GameChoice& choice) {
  RowYears years;
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    const std::string& year = choice.ReportFiles[row].Year;
    if (year != YearText(choice.GameYear)) years[row] = year;
  }
  return years;
}

std::string AcceptReload(ReloadPlan& plan) {
  for (const ReportFileSlot& slot : plan.Choice.ReportFiles) {
    const bool isWanted = FieldValue(slot.Included).ReadsAs(1) && !slot.Path.empty();
    if (!isWanted || FindFile(slot.Path)) continue;
    return TextFromPath(slot.Path) + ": the report is gone, so the game was not loaded again";
  }
  return AcceptOpenInput(plan.Choice, {.Soi = std::to_string(plan.Choice.SoiSetting),
                                       .GameYear = plan.GameYear,
                                       .Years = plan.Years})
      .Message;
}

}  // namespace quorvane

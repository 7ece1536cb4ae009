#include "screens/import_plan.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "files/files.h"

namespace quorvane {
namespace {

constexpr const char* kNoYear = "A year is a number from 2400 to 9999";

std::string CountText(std::size_t count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

std::string SourceText(YearSource source) {
  switch (source) {
    case YearSource::TurnFile:
      return "turn file";
    case YearSource::FileName:
      return "file name";
    case YearSource::FolderName:
      return "folder name";
    case YearSource::Typed:
      return "typed";
    case YearSource::None:
      break;
  }
  return "not told: type it";
}

std::string ReportsText(const EarlierYear& found) {
  const std::string count = CountText(static_cast<std::size_t>(found.ReportCount), "report");
  return found.HasOwnReport ? count : count + ", yours is missing";
}

// The folder is told beside it.
std::string WithoutFolder(const std::string& message, const std::filesystem::path& folder) {
  const std::string front = TextFromPath(folder / "");
  return message.starts_with(front) ? message.substr(front.size()) : message;
}

std::string WholeText(const EarlierYear& found, const std::string& note) {
  std::string text = TextFromPath(found.Folder);
  for (const ReportFileSlot& slot : found.Choice.ReportFiles) {
    if (!slot.Path.empty()) text += "\n" + TextFromPath(slot.Path.filename());
  }
  return note.empty() ? text : text + "\n" + note;
}

}  // namespace

ImportPlan::ImportPlan(std::string gameName, std::vector<int> kept)
    : gameName_(std::move(gameName)), kept_(std::move(kept)) {}

void ImportPlan::Take(std::vector<EarlierYear> found) {
  rows_.clear();
  rows_.reserve(found.size());
  for (EarlierYear& reports : found) {
    Row row = {.Found = std::move(reports)};
    row.IsTicked = IsTickedAtFirst(row);
    rows_.push_back(std::move(row));
  }
}

bool ImportPlan::IsKept(const Row& row) const {
  return std::ranges::find(kept_, row.Found.Year) != kept_.end();
}

bool ImportPlan::IsTickedAtFirst(const Row& row) const {
  return row.Found.Year > 0 && row.Found.HasOwnReport && !IsKept(row);
}

std::string ImportPlan::NoteOf(const Row& row) const {
  if (!row.Failure.empty()) return row.Failure;
  if (!row.Typed.empty()) return kNoYear;
  if (row.IsImported) return "imported";
  return IsKept(row) ? "already kept" : "";
}

ImportRow ImportPlan::Describe(std::size_t number) const {
  const Row& row = rows_.at(number);
  const int year = row.Found.Year;
  const std::string note = NoteOf(row);
  return {.Name = row.Found.Name,
          .Year = year > 0 ? std::to_string(year) : row.Typed,
          .Source = SourceText(row.Found.Source),
          .Reports = ReportsText(row.Found),
          .Note = WithoutFolder(note, row.Found.Folder),
          .Whole = WholeText(row.Found, note),
          .IsTicked = row.IsTicked,
          .CanBeTicked = year > 0,
          .IsYearWrong = !row.Typed.empty(),
          .IsFailed = !row.Failure.empty()};
}

std::vector<std::size_t> ImportPlan::Ticked() const {
  std::vector<std::size_t> ticked;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (rows_[row].IsTicked) ticked.push_back(row);
  }
  return ticked;
}

PlanHint ImportPlan::Hint() const {
  if (rows_.empty()) return {"There are no old reports of " + gameName_ + " in this folder"};
  std::set<int> years;
  std::size_t replaced = 0;
  for (const Row& row : rows_) {
    if (!row.IsTicked) continue;
    if (!years.insert(row.Found.Year).second) {
      return {std::to_string(row.Found.Year) + " is ticked twice: leave one of them out"};
    }
    if (IsKept(row)) ++replaced;
  }
  if (years.empty()) return {"Tick the years that are to be read"};
  const std::string count = CountText(years.size(), "year") + " will be read";
  if (replaced == 0) return {count, true};
  const std::string verb = replaced == 1 ? " replaces" : " replace";
  return {count + "; " + std::to_string(replaced) + verb + " what is kept", true};
}

void ImportPlan::Tick(std::size_t number, bool isIn) {
  Row& row = rows_.at(number);
  row.IsTicked = isIn && row.Found.Year > 0;
}

void ImportPlan::TypeYear(std::size_t number, const std::string& typed) {
  Row& row = rows_.at(number);
  const bool hadYear = row.Found.Year > 0;
  row.IsImported = false;
  row.Failure.clear();
  if (SetYear(row.Found, typed)) {
    row.Typed.clear();
    row.IsTicked = hadYear ? row.IsTicked : IsTickedAtFirst(row);
  } else {
    row.Typed = typed;
    row.IsTicked = false;
  }
}

void ImportPlan::TakeOutcome(std::size_t number, const Result<void>& outcome) {
  Row& row = rows_.at(number);
  row.Failure = outcome.Message();
  row.IsImported = static_cast<bool>(outcome);
  if (!row.IsImported) return;
  row.IsTicked = false;
  if (!IsKept(row)) kept_.push_back(row.Found.Year);
}

std::string ImportedText(int imported, int failed, int planned) {
  std::string text = std::to_string(imported);
  if (imported < planned) text += " of " + std::to_string(planned);
  text += planned == 1 ? " year imported" : " years imported";
  return failed == 0 ? text : text + ", " + std::to_string(failed) + " failed";
}

}  // namespace quorvane

#include "loading/earlier_years.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

#include "files/files.h"
#include "formats/game_files.h"
#include "loading/game_file_stamps.h"
#include "model/text.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

constexpr int kFirstYear = 2400;
constexpr int kLastYear = 9999;

// Letters beyond ASCII count, whatever the encoding: all their bytes are above 127.
bool IsLetterOrDigit(char c) {
  const auto isWithin = [c](char first, char last) { return c >= first && c <= last; };
  return isWithin('0', '9') || isWithin('A', 'Z') || isWithin('a', 'z') ||
         static_cast<unsigned char>(c) > 127;
}

std::optional<int> WholeNumber(std::string_view text) {
  if (text.starts_with('0')) return std::nullopt;
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

std::optional<int> YearOf(std::string_view word) {
  const std::optional<int> year = WholeNumber(word);
  return year && *year >= kFirstYear && *year <= kLastYear ? year : std::nullopt;
}

// The years that stand alone in a name.
std::set<int> YearsIn(std::string_view name) {
  std::set<int> years;
  while (!name.empty()) {
    const auto* const end = std::ranges::find_if_not(name, IsLetterOrDigit);
    const auto length = static_cast<std::size_t>(end - name.begin());
    if (const std::optional<int> year = YearOf(name.substr(0, length))) years.insert(*year);
    name.remove_prefix(std::min(length + 1, name.size()));
  }
  return years;
}

// "Backup", "backup12": where the game itself puts the files of the last years.
bool IsBackup(std::string_view name) {
  constexpr std::string_view kBackup = "backup";
  return EqualIgnoringCase(name.substr(0, kBackup.size()), kBackup) &&
         name.find_first_not_of("0123456789", kBackup.size()) == name.npos;
}

// The year in what a name has beside the game's: apart from it, and alone.
std::optional<int> YearBeside(std::string_view rest) {
  const std::set<int> years = YearsIn(rest);
  const auto length = std::ranges::count_if(rest, IsLetterOrDigit);
  constexpr int kYearLength = 4;
  return years.size() == 1 && length == kYearLength ? std::optional(*years.begin()) : std::nullopt;
}

// The year in the name, without its extension, of a file that is named by its year.
std::optional<int> YearInFileName(std::string_view stem, std::string_view game) {
  if (stem.size() <= game.size()) return std::nullopt;
  const std::size_t rest = stem.size() - game.size();
  if (EqualIgnoringCase(stem.substr(0, game.size()), game) && !IsLetterOrDigit(stem[game.size()])) {
    return YearBeside(stem.substr(game.size()));
  }
  if (EqualIgnoringCase(stem.substr(rest), game) && !IsLetterOrDigit(stem[rest - 1])) {
    return YearBeside(stem.substr(0, rest));
  }
  return std::nullopt;
}

std::string NameOfFolder(const fs::path& folder) {
  const fs::path name = folder.has_filename() ? folder.filename() : folder.parent_path().filename();
  return TextFromPath(name.empty() ? folder : name);
}

// The subfolders that may hold old files.
std::vector<fs::path> ArchivesIn(const fs::path& folder, const std::function<bool()>& isStopped) {
  std::vector<fs::path> archives;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), last; !error && entry != last;
       entry.increment(error)) {
    if (isStopped()) break;
    std::error_code kindError;
    const std::string name = NameOfFolder(entry->path());
    const bool isNamedSo = IsBackup(name) || !YearsIn(name).empty();
    if (isNamedSo && entry->is_directory(kindError)) archives.push_back(entry->path());
  }
  std::ranges::sort(archives, IsBeforeInAlphabet, TextFromPath);
  return archives;
}

std::optional<std::string> BytesOf(const fs::path& file) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(file, error);
  if (error || size > kLargestTextFile) return std::nullopt;
  return ReadBeginning(file, size);
}

void UseYear(EarlierYear& reports, int year, YearSource source) {
  reports.Year = year;
  reports.Source = source;
  reports.Choice.GameYear = year;
  for (ReportFileSlot& slot : reports.Choice.ReportFiles) {
    slot.Year = slot.Path.empty() || year == 0 ? "" : std::to_string(year);
  }
}

class Finder {
 public:
  Finder(const GameChoice& game, const std::function<bool()>& isStopped)
      : game_(game),
        isStopped_([&isStopped] { return isStopped && isStopped(); }),
        name_(TextFromPath(GameFile(game.MapFilePath, "").filename())),
        map_(BytesOf(FindFile(game.MapFilePath).value_or(game.MapFilePath))) {}

  std::vector<EarlierYear> Find(const fs::path& folder) {
    Look(folder);
    for (const fs::path& archive : ArchivesIn(folder, isStopped_)) Look(archive);
    if (isStopped_()) return {};
    const auto place = [](const EarlierYear& found) {
      return found.Year > 0 ? found.Year : kLastYear + 1;
    };
    std::ranges::stable_sort(found_, {}, place);
    return std::move(found_);
  }

 private:
  void Look(const fs::path& folder) {
    const std::optional<fs::path> map = FindFile(folder / game_.MapFilePath.filename());
    if (isStopped_() || (map && !IsMap(*map))) return;
    AddPlainNames(folder);
    AddNamesWithYears(folder);
  }

  bool IsMap(const fs::path& file) const { return BytesOf(file) == map_; }

  bool IsFolderOfGame(const fs::path& folder) const {
    const fs::path own = game_.MapFilePath.parent_path();
    std::error_code error;
    return fs::equivalent(folder, own.empty() ? "." : own, error);
  }

  EarlierYear NoReports(const fs::path& folder, const std::string& name) const {
    EarlierYear none = {.Folder = folder, .Name = name, .Choice = game_};
    none.Choice.ReportFiles.fill(ReportFileSlot());
    none.Choice.MyRaceRow = 0;
    none.Choice.GameYear = 0;
    none.Choice.DrawingFilePath.clear();
    return none;
  }

  // The first file of a row stays.
  void AddReport(EarlierYear& reports, int row, const fs::path& file) const {
    ReportFileSlot& slot = reports.Choice.ReportFiles.at(static_cast<std::size_t>(row));
    if (!slot.Path.empty()) return;
    slot = {.Path = file, .Included = "1", .Year = ""};
    ++reports.ReportCount;
    if (row != game_.MyRaceRow) return;
    reports.Choice.MyRaceRow = row;
    reports.HasOwnReport = true;
  }

  void AddPlainNames(const fs::path& folder) {
    if (IsFolderOfGame(folder)) return;
    const auto stamps = StampGameFiles(folder / game_.MapFilePath.filename(), isStopped_);
    EarlierYear reports = NoReports(folder, NameOfFolder(folder));
    const bool isOldStyle = game_.ReportStyle == kOldReportStyle;
    const GameFileKind kind = isOldStyle ? GameFileKind::OldReport : GameFileKind::Report;
    for (const GameFileStamp& stamp : stamps) {
      if (stamp.Kind == kind) AddReport(reports, isOldStyle ? 1 : stamp.Row, folder / stamp.Name);
    }
    if (reports.ReportCount == 0) return;
    const auto drawing = FindFile(folder / GameFile(game_.MapFilePath, ".QVL").filename());
    if (drawing) reports.Choice.DrawingFilePath = *drawing;
    UseYearOfPlainNames(reports, stamps);
    found_.push_back(std::move(reports));
  }

  void UseYearOfPlainNames(EarlierYear& reports, const std::vector<GameFileStamp>& stamps) const {
    const auto offer = OfferYear(stamps, game_);
    const std::set<int> named = YearsIn(reports.Name);
    if (offer && offer->Year <= kLastYear) {
      UseYear(reports, offer->Year, YearSource::TurnFile);
    } else if (named.size() == 1) {
      UseYear(reports, *named.begin(), YearSource::FolderName);
    }
  }

  // The row of the report with that extension, or 0.
  int RowOf(std::string_view extension) const {
    if (game_.ReportStyle == kOldReportStyle) return EqualIgnoringCase(extension, ".PLA") ? 1 : 0;
    if (!EqualIgnoringCase(extension.substr(0, 2), ".P")) return 0;
    const int row = WholeNumber(extension.substr(2)).value_or(0);
    return row >= 1 && row <= kMaxPlayers ? row : 0;
  }

  void AddNamesWithYears(const fs::path& folder) {
    std::map<int, EarlierYear> years;
    std::set<int> others;  // years of which there is another game's map
    for (const fs::path& file : FilesNamedLike(folder, "", "")) {
      if (isStopped_()) return;
      const std::optional<int> year = YearInFileName(TextFromPath(file.stem()), name_);
      if (!year) continue;
      const std::string extension = TextFromPath(file.extension());
      const auto place =
          years.try_emplace(*year, NoReports(folder, name_ + " " + std::to_string(*year)));
      EarlierYear& reports = place.first->second;
      if (const int row = RowOf(extension); row > 0) AddReport(reports, row, folder / file);
      if (EqualIgnoringCase(extension, ".QVL")) reports.Choice.DrawingFilePath = folder / file;
      if (EqualIgnoringCase(extension, ".MAP") && !IsMap(folder / file)) others.insert(*year);
    }
    for (auto& [year, reports] : years) {
      if (reports.ReportCount == 0 || others.contains(year)) continue;
      UseYear(reports, year, YearSource::FileName);
      found_.push_back(std::move(reports));
    }
  }

  const GameChoice& game_;
  std::function<bool()> isStopped_;
  std::string name_;                // of the game
  std::optional<std::string> map_;  // its bytes
  std::vector<EarlierYear> found_;
};

}  // namespace

std::vector<EarlierYear> FindEarlierYears(const GameChoice& game, const fs::path& folder,
                                          const std::function<bool()>& isStopped) {
  return Finder(game, isStopped).Find(folder);
}

Result<void> SetYear(EarlierYear& reports, const std::string& typed) {
  const std::optional<int> year = YearOf(Trimmed(typed));
  UseYear(reports, year.value_or(0), year ? YearSource::Typed : YearSource::None);
  if (!year) return Failure{"A year is a number from 2400 to 9999"};
  return {};
}

}  // namespace quorvane

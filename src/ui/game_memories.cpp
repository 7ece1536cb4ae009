#include "ui/game_memories.h"

#include <QCryptographicHash>
#include <QUrl>
#include <algorithm>
#include <initializer_list>
#include <limits>
#include <string>

#include "formats/game_files.h"
#include "map/overlay_sets.h"
#include "model/field_value.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

using Texts = QMap<QString, QString>;

constexpr const char* kGroupBegin = "Game-";
constexpr std::size_t kMostGames = 50;  // of which the file keeps anything
constexpr int kLargestExtent = 32767;   // of a universe, as coordinates have 16 bits

// Not all names are text, so their bytes are kept.
QString KeptPath(const std::filesystem::path& path) {
  const std::u8string bytes = path.u8string();
  const QByteArray raw(reinterpret_cast<const char*>(bytes.data()),
                       static_cast<qsizetype>(bytes.size()));
  return QString::fromLatin1(raw.toPercentEncoding(" /\\:,()[]{}'!+=&"));
}

std::filesystem::path PathOfKept(const QString& kept) {
  const QByteArray raw = QByteArray::fromPercentEncoding(kept.toUtf8());
  return std::u8string(raw.begin(), raw.end());
}

QString GroupOf(const std::filesystem::path& map) {
  constexpr qsizetype kDigits = 16;
  const QByteArray hash =
      QCryptographicHash::hash(KeptPath(map).toUtf8(), QCryptographicHash::Sha1).toHex();
  return kGroupBegin + QString::fromLatin1(hash.left(kDigits));
}

QString Joined(std::initializer_list<qint64> numbers) {
  QStringList texts;
  for (const qint64 number : numbers) texts << QString::number(number);
  return texts.join(' ');
}

// The numbers of a text; none where it does not hold as many whole ones.
std::vector<qint64> NumbersIn(const QString& text, std::size_t count) {
  std::vector<qint64> numbers;
  for (const QString& part : text.split(' ', Qt::SkipEmptyParts)) {
    bool isNumber = false;
    numbers.push_back(part.toLongLong(&isNumber));
    if (!isNumber) return {};
  }
  return numbers.size() == count ? numbers : std::vector<qint64>();
}

int NumberIn(const Texts& texts, const char* key, int least, int most, int otherwise) {
  bool isNumber = false;
  const int number = texts.value(key).toInt(&isNumber);
  return isNumber && number >= least && number <= most ? number : otherwise;
}

QString ReportKey(std::size_t row) { return QString("Report%1").arg(row); }

void WriteChoice(const GameChoice& choice, Texts& texts) {
  texts["Map"] = KeptPath(choice.MapFilePath);
  texts["Style"] = QString::number(choice.ReportStyle);
  texts["Race"] = QString::number(choice.MyRaceRow);
  texts["Year"] = QString::number(choice.GameYear);
  texts["SphereOfInfluence"] = QString::number(choice.SoiSetting);
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    const ReportFileSlot& report = choice.ReportFiles[row];
    if (report.Path.empty()) continue;
    const char* tick = FieldValue(report.Included).ReadsAs(1) ? "1" : "0";
    texts[ReportKey(row)] =
        QStringList{tick, KeptPath(report.Path.filename()), ToQString(report.Year)}.join('|');
  }
}

GameChoice ReadChoice(const Texts& texts) {
  GameChoice choice;
  ChooseMap(choice, PathOfKept(texts.value("Map")));
  const bool isOld = texts.value("Style") == QString::number(kOldReportStyle);
  choice.ReportStyle = isOld ? kOldReportStyle : kNewReportStyle;
  choice.MyRaceRow = NumberIn(texts, "Race", 0, kMaxPlayers, 0);
  choice.GameYear = NumberIn(texts, "Year", 0, std::numeric_limits<int>::max(), 0);
  choice.SoiSetting =
      NumberIn(texts, "SphereOfInfluence", kSmallestSoiSetting, kLargestSoiSetting, 100);
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    const QStringList parts = texts.value(ReportKey(row)).split('|');
    if (parts.size() != 3) continue;
    choice.ReportFiles[row] = {
        .Path = choice.MapFilePath.parent_path() / PathOfKept(parts[1]).filename(),
        .Included = parts[0] == "1" ? "1" : "0",
        .Year = ToText(parts[2])};
  }
  return choice;
}

void WriteShown(const ShownState& shown, Texts& texts) {
  texts["Overlays"] = ToQString(OverlaysText(shown.Switches));
  texts["RaceOfEstimate"] = ToQString(shown.Switches.RaceName);
  texts["Selected"] = Joined({shown.SelectedX, shown.SelectedY});
  texts["Tab"] = QString::number(shown.Tab);
  if (shown.Zoom) {
    const auto& [xMin, xMax, yMin, yMax] = *shown.Zoom;
    texts["Zoom"] = Joined({xMin, xMax, yMin, yMax});
  }
}

ShownState ReadShown(const Texts& texts) {
  ShownState shown = {.Switches = OverlaysFromText(ToText(texts.value("Overlays")))};
  shown.Switches.RaceName = ToText(texts.value("RaceOfEstimate"));
  const auto isPlace = [](qint64 number) { return number >= 0 && number <= kLargestExtent; };
  const std::vector<qint64> selected = NumbersIn(texts.value("Selected"), 2);
  if (!selected.empty() && std::ranges::all_of(selected, isPlace)) {
    shown.SelectedX = static_cast<int>(selected[0]);
    shown.SelectedY = static_cast<int>(selected[1]);
  }
  const std::vector<qint64> zoom = NumbersIn(texts.value("Zoom"), 4);
  if (!zoom.empty() && std::ranges::all_of(zoom, isPlace)) {
    shown.Zoom = {.XMin = static_cast<int>(zoom[0]),
                  .XMax = static_cast<int>(zoom[1]),
                  .YMin = static_cast<int>(zoom[2]),
                  .YMax = static_cast<int>(zoom[3])};
  }
  constexpr int kMostTabs = 100;
  shown.Tab = NumberIn(texts, "Tab", 0, kMostTabs, 0);
  return shown;
}

constexpr const char* kNoYear = "-";

void WriteFiles(const std::vector<GameFileStamp>& files, Texts& texts) {
  int number = 0;
  for (const GameFileStamp& file : files) {
    const QString year = file.Year ? QString::number(*file.Year) : QString(kNoYear);
    texts[QString("File%1").arg(++number)] =
        QStringList{Joined({static_cast<qint64>(file.Kind), file.Row,
                            static_cast<qint64>(file.Size), file.Time}),
                    year, KeptPath(file.Name)}
            .join('|');
  }
}

std::vector<GameFileStamp> ReadFiles(const Texts& texts) {
  std::vector<GameFileStamp> files;
  for (int number = 1; texts.contains(QString("File%1").arg(number)); ++number) {
    const QStringList parts = texts.value(QString("File%1").arg(number)).split('|');
    const std::vector<qint64> numbers = NumbersIn(parts[0], 4);
    if (parts.size() != 3 || numbers.empty()) continue;
    if (numbers[0] < 0 || numbers[0] > static_cast<qint64>(GameFileKind::Host)) continue;
    GameFileStamp file = {.Kind = static_cast<GameFileKind>(numbers[0]),
                          .Row = static_cast<int>(numbers[1]),
                          .Name = PathOfKept(parts[2]).filename(),
                          .Size = static_cast<std::uintmax_t>(numbers[2]),
                          .Time = numbers[3]};
    if (parts[1] != kNoYear) file.Year = parts[1].toInt();
    files.push_back(file);
  }
  return files;
}

Texts TextsOf(const GameMemory& game) {
  Texts texts = {{"Opened", QString::number(game.Opened)}};
  WriteChoice(game.Choice, texts);
  WriteShown(game.Shown, texts);
  WriteFiles(game.Files, texts);
  return texts;
}

GameMemory MemoryIn(const Texts& texts) {
  return {.Choice = ReadChoice(texts),
          .Shown = ReadShown(texts),
          .Files = ReadFiles(texts),
          .Opened = texts.value("Opened").toLongLong()};
}

}  // namespace

GameMemories::GameMemories(PreferencesFile& preferences) : preferences_(preferences) {
  for (const QString& group : preferences.Groups()) {
    if (!group.startsWith(kGroupBegin)) continue;
    const GameMemory game = MemoryIn(preferences.TextsOf(group));
    // What was edited by hand may stand under another game's name.
    if (GroupOf(game.Choice.MapFilePath) == group) games_.push_back(game);
  }
  std::ranges::stable_sort(games_, std::ranges::greater(), &GameMemory::Opened);
}

std::int64_t GameMemories::TimeOfOpening(std::int64_t now) const {
  return games_.empty() ? now : std::max(now, games_.front().Opened + 1);
}

std::vector<std::filesystem::path> GameMemories::Folders() const {
  std::vector<std::filesystem::path> folders;
  for (const GameMemory& game : games_) {
    const std::filesystem::path folder = game.Choice.MapFilePath.parent_path();
    const bool isKnown = std::ranges::find(folders, folder) != folders.end();
    if (!isKnown && folders.size() < kMostRecent) folders.push_back(folder);
  }
  return folders;
}

const GameMemory* GameMemories::Find(const std::filesystem::path& map) const {
  const auto found = std::ranges::find_if(
      games_, [&](const GameMemory& game) { return game.Choice.MapFilePath == map; });
  return found != games_.end() ? &*found : nullptr;
}

void GameMemories::Keep(const GameMemory& game) {
  std::erase_if(games_, [&](const GameMemory& known) {
    return known.Choice.MapFilePath == game.Choice.MapFilePath;
  });
  const auto place = std::ranges::find_if(
      games_, [&](const GameMemory& known) { return known.Opened <= game.Opened; });
  games_.insert(place, game);
  preferences_.KeepTexts(GroupOf(game.Choice.MapFilePath), TextsOf(game));
  for (; games_.size() > kMostGames; games_.pop_back()) {
    preferences_.KeepTexts(GroupOf(games_.back().Choice.MapFilePath), {});
  }
}

}  // namespace quorvane

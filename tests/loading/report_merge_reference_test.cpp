// The merge of planet reports, value by value against a plain version of it, on many made-up games
// whose reports are as the game writes them and on damaged ones.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "generator/game_generator.h"
#include "generator/random.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "reference/plain_merge.h"
#include "support/temp_folder.h"

namespace quorvane {
namespace {

using generator::GameShape;
using generator::GeneratedGame;
using generator::Random;

constexpr int kGames = 40;

// What players' tools, other versions of the game and broken disks put into a field, between bars.
constexpr std::string_view kOddFields =
    "|0|-1| 0|-1 |  -1|-1x|Unknown|None|2|0.5|120|-3|x|3 years|1e2|&H10|45%|-0|999|1e9|-1e300|1e400"
    "|\"|a,b|\"q\"|12.%|-5%|-500%|97.92%|Space Dock|Death Star|Orbital Fort|250001|250 "
    "|Uninhabited";
// Name, owner, starbase, age, population, defences, mining, resources and gate.
constexpr std::size_t kDecidingFields[] = {0, 1, 2, 3, 4, 9, 13, 15, 19, 33, 34};

struct OddField {
  std::size_t Field = 0;
  std::string_view Text;
};

// Odd content that only shows when two fields have it.
constexpr std::array<OddField, 2> kOddPairs[] = {
    {{{2, "Death Star"}, {4, "0"}}}, {{{2, "Starter Colony"}, {4, "0"}}},
    {{{2, "Space Dock"}, {4, "0"}}}, {{{2, "Ultra Station"}, {4, " 0"}}},
    {{{4, "9000"}, {9, "-5%"}}},     {{{4, "9000"}, {9, "-90%"}}},
    {{{1, ""}, {9, "-400%"}}},       {{{33, "-1"}, {34, "-1"}}},
    {{{33, "-1x"}, {34, "-1 kT"}}},  {{{33, "20000"}, {34, "Unknown"}}},
    {{{3, "0.5"}, {19, "0"}}},       {{{3, "Unknown"}, {5, "-0%"}}}};
constexpr std::string_view kOddBytes[] = {"\t", "\t\t\t", ",",    "\"",   "%",        " ",
                                          "\r", "\n",     "\n\n", "\xBA", "\xC3\xA9", "-"};
constexpr std::string_view kOddHeadings[] = {"Planet,",    "\"Planet\tName\"", "",
                                             "\"a, b\",c", "  Planet",         "A,B,C,D"};
constexpr std::string_view kIncluded[] = {"1", "1", "1", " 1", "0", " 0", "-1", "yes"};

std::vector<std::string> SplitAt(std::string_view text, char separator) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == separator) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string text = parts.front();
  for (std::size_t i = 1; i < parts.size(); ++i) text.append(separator).append(parts[i]);
  return text;
}

// A line that is too short for the field becomes long enough.
void SetField(std::string& line, const OddField& odd) {
  std::vector<std::string> fields = SplitAt(line, '\t');
  fields.resize(std::max(fields.size(), odd.Field + 2));
  fields[odd.Field] = odd.Text;
  line = Join(fields, "\t");
}

void DamageLine(std::vector<std::string>& lines, std::size_t at, Random& random) {
  static const std::vector<std::string> oddFields = SplitAt(kOddFields, '|');
  std::string& line = lines[at];
  const auto place = static_cast<std::size_t>(random.Between(0, static_cast<int>(line.size())));
  switch (random.Between(0, 9)) {
    case 0:
      line.resize(place);
      break;
    case 1:
      line.insert(place, random.OneOf(kOddBytes));
      break;
    case 2:
      lines.push_back(line);
      break;
    case 3:
      line.append(static_cast<std::size_t>(random.Between(1, 20)), '\t').append("7\t8%");
      break;
    case 4:
      line = " " + random.OneOf(lines);
      break;
    case 5:
      if (place < line.size()) line[place] = static_cast<char>(random.Between(1, 255));
      break;
    case 6:
      line.insert(place, random.Chance(50) ? ",\"" : "\r\n\"").insert(0, "\"");
      break;
    case 7:
      for (const OddField& odd : random.OneOf(kOddPairs)) SetField(line, odd);
      break;
    default:
      SetField(line, {random.OneOf(kDecidingFields), random.OneOf(oddFields)});
  }
}

// A report with odd content in so many of a hundred lines.
std::string Damaged(const std::string& report, int percent, Random& random) {
  std::vector<std::string> lines = SplitAt(report, '\n');
  for (std::string& line : lines) {
    if (line.ends_with('\r')) line.pop_back();
  }
  lines.pop_back();
  if (random.Chance(percent)) {
    lines.front() = std::string(random.OneOf(kOddHeadings)) + lines.back();
    lines.pop_back();
  }
  for (std::size_t at = lines.size(); at-- > 1;) {
    while (random.Chance(percent)) DamageLine(lines, at, random);
  }
  constexpr std::string_view kLineEnds[] = {"\r\n", "\n"};
  const std::string text = Join(lines, random.OneOf(kLineEnds));
  return random.Chance(80) ? text + "\r\n" : text;
}

// A map with names that come twice, stand between blanks or stand in for an empty field.
std::string WithOddNames(const std::string& map, Random& random) {
  std::vector<std::string> lines = SplitAt(map, '\n');
  constexpr std::string_view kOddNames[] = {"Unknown", "\" \"", "007"};
  std::string lastName = "None";
  for (std::size_t at = 1; at + 1 < lines.size(); ++at) {
    std::vector<std::string> fields = SplitAt(lines[at], '\t');
    std::string& name = fields.back();
    name.pop_back();  // CR
    if (random.Chance(5)) name = lastName;
    lastName = name;
    if (random.Chance(5)) name = "\"  " + name + " \"";
    if (random.Chance(5)) name = random.OneOf(kOddNames);
    lines[at] = Join(fields, "\t") + "\r";
  }
  return Join(lines, "\n");
}

GameShape MakeShape(int seed, Random& random) {
  GameShape shape;
  shape.Seed = static_cast<std::uint64_t>(seed);
  shape.Side = 400 * random.Between(1, 2);
  shape.PlanetCount = random.Between(24, 150);
  shape.PlayerCount = random.Between(1, 16);
  shape.Style = random.Chance(25) ? kOldReportStyle : kNewReportStyle;
  shape.ReportCount = shape.Style == kOldReportStyle ? 1 : random.Between(1, shape.PlayerCount);
  shape.OwnSlot = random.Between(1, shape.ReportCount);
  shape.AgeSpread = random.Between(0, 12);
  return shape;
}

void WriteFiles(const GeneratedGame& game, const TempFolder& folder, int damage, Random& random) {
  for (const auto& [extension, content] : game.Files) {
    const bool isMap = extension == ".map";
    std::string text = content;
    if (isMap && damage > 0) text = WithOddNames(content, random);
    if (!isMap && damage > 0) text = Damaged(content, damage, random);
    folder.Write("Game" + extension, text);
  }
}

// What a user might choose in the open dialog for that game.
GameChoice MakeChoice(const GeneratedGame& game, const TempFolder& folder, Random& random) {
  GameChoice choice;
  ChooseMap(choice, folder / "Game.map");
  EXPECT_TRUE(FindReportFiles(choice, std::to_string(game.Year), [] { return true; }));
  choice.GameYear = random.Chance(20) ? 0 : game.Year;
  choice.SoiSetting = random.Between(50, 500);
  const auto reports = static_cast<int>(game.ReportYears.size());
  choice.MyRaceRow = random.OneOf(std::array{game.OwnSlot, 0, random.Between(0, reports)});
  for (int row = 1; row <= reports; ++row) {
    ReportFileSlot& slot = choice.ReportFiles[static_cast<std::size_t>(row)];
    const int year = game.ReportYears[static_cast<std::size_t>(row) - 1];
    slot.Year = random.Chance(80) ? std::to_string(year) : random.Chance(50) ? "" : " 2440.5";
    slot.Included = random.OneOf(kIncluded);
  }
  return choice;
}

std::string Described(const FieldValue& value) {
  constexpr const char* kKinds[] = {"empty", "text", "whole", "real"};
  return kKinds[static_cast<std::size_t>(value.Kind())] + (" [" + FieldText(value) + "]");
}

// Every field that reports decide; owner numbers and scores are computed from them later.
void ExpectSamePlanets(const GameSession& loaded, const GameSession& plain) {
  constexpr auto kOwnerIndex = static_cast<std::size_t>(PlanetField::OwnerIndex);
  constexpr auto kScoreValue = static_cast<std::size_t>(PlanetField::ScoreValue);
  EXPECT_EQ(loaded.MyRaceName, plain.MyRaceName);
  for (int planet = 1; planet <= plain.PlanetCount; ++planet) {
    for (std::size_t field = 1; field <= kPlanetFieldCount; ++field) {
      if (field == kOwnerIndex || field == kScoreValue) continue;
      ASSERT_EQ(Described(loaded.Planet(planet).Field(field)),
                Described(plain.Planet(planet).Field(field)))
          << "field " << field << " of planet " << planet << ", " << plain.Planet(planet).Name();
      ASSERT_EQ(loaded.Planet(planet).Field(field), plain.Planet(planet).Field(field));
    }
  }
}

// Writes a game with so much damage, loads it and compares. @return planets that reports tell of
int CompareMerges(int seed, int damage) {
  Random random(static_cast<std::uint64_t>(seed), "merge " + std::to_string(damage));
  const GeneratedGame game = generator::GenerateGame(MakeShape(seed, random));
  const TempFolder folder;
  WriteFiles(game, folder, damage, random);
  const GameChoice choice = MakeChoice(game, folder, random);
  const std::string myRaceName = random.Chance(50) ? "" : "Somebody";
  const Result<GameSession> loaded = LoadGame(choice, myRaceName, nullptr);
  EXPECT_TRUE(loaded) << loaded.Message();
  if (!loaded) return 0;
  GameSession plain = reference::SessionBeforeReports(*loaded, myRaceName);
  reference::PlainMergeReports(plain);
  ExpectSamePlanets(*loaded, plain);
  return static_cast<int>(std::ranges::count_if(
      plain.PlanetTable, [](const PlanetRecord& planet) { return !planet.AgeText().empty(); }));
}

TEST(ReportMergeReference, EqualsThePlainMergeOnReportsAsTheGameWritesThem) {
  int reportedPlanets = 0;
  for (int seed = 1; seed <= kGames; ++seed) {
    SCOPED_TRACE("game " + std::to_string(seed));
    reportedPlanets += CompareMerges(seed, 0);
  }
  EXPECT_GT(reportedPlanets, 20 * kGames);
}

TEST(ReportMergeReference, EqualsThePlainMergeOnDamagedReports) {
  constexpr int kDamages[] = {3, 10, 30, 60};  // percent of the lines
  int reportedPlanets = 0;
  for (int seed = 1; seed <= kGames; ++seed) {
    for (const int damage : kDamages) {
      SCOPED_TRACE("game " + std::to_string(seed) + ", damage " + std::to_string(damage));
      reportedPlanets += CompareMerges(seed, damage);
    }
  }
  EXPECT_GT(reportedPlanets, 80 * kGames);
}

}  // namespace
}  // namespace quorvane

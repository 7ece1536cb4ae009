#include "screens/reload_plan.h"

#include <gtest/gtest.h>

#include <ctime>

#include "files/files.h"
#include "formats/game_files.h"
#include "model/field_value.h"
#include "support/game_folder.h"

namespace quorvane {
namespace {

using Stamps = std::vector<GameFileStamp>;

GameFileStamp Report(int row, std::int64_t time) {
  return {.Kind = GameFileKind::Report,
          .Row = row,
          .Name = "Demo.P" + std::to_string(row),
          .Time = time};
}

GameFileStamp Turn(int row, int year) {
  return {
      .Kind = GameFileKind::Turn, .Row = row, .Name = "Demo.m" + std::to_string(row), .Year = year};
}

GameFileStamp Host(int year) {
  return {.Kind = GameFileKind::Host, .Name = "Demo.hst", .Year = year};
}

std::int64_t LocalTime(int day, int hour, int minute) {
  std::tm time = {};
  time.tm_year = 126;
  time.tm_mon = 10;
  time.tm_mday = day;
  time.tm_hour = hour;
  time.tm_min = minute;
  time.tm_isdst = -1;
  return std::mktime(&time) * std::int64_t{1000};
}

TEST(DescribeChanges, TellsWhichFilesAreNewAndOfWhichYear) {
  const std::int64_t today = LocalTime(23, 18, 0);
  GameChoice game;
  game.MyRaceRow = 4;
  Stamps before = {Report(1, 1), Report(3, 1), Turn(1, 2450), Turn(2, 2450)};
  EXPECT_EQ(DescribeChanges(FindChanges(before, before), game, today), "");
  GameFileStamp ordersGiven = Turn(2, 2450);
  ordersGiven.Time = today;
  const GameFileStamp map = {.Name = "Demo.map", .Time = today};
  GameFileStamp damaged = Turn(4, 0);
  damaged.Year.reset();
  const Stamps now = {map,
                      Report(1, LocalTime(23, 14, 2)),
                      Report(4, LocalTime(22, 9, 30)),
                      Turn(1, 2451),
                      ordersGiven,
                      damaged,
                      Host(2451)};
  EXPECT_EQ(DescribeChanges(FindChanges(before, now), game, today),
            "Demo.P4 is new (2026-11-22 09:30), Demo.P1 is new (14:02), Demo.P3 is gone, "
            "Demo.hst is of year 2451, Demo.m1 is of year 2451, Demo.map is new (18:00)");
}

// A game of 2450, loaded with the reports 1, the own one, and 3, which is of 2449; 4 is not ticked.
class ReloadPlans : public testing::Test {
 protected:
  ReloadPlans() {
    folder.Write("Demo.P4", "x");
    ChooseMap(choice, folder / "Demo.MAP");
    choice.MyRaceRow = 1;
    choice.GameYear = 2450;
    choice.ReportFiles[1] = {.Path = folder / "Demo.P1", .Included = "1", .Year = "2450"};
    choice.ReportFiles[3] = {.Path = folder / "Demo.P3", .Included = " 1", .Year = "2449"};
    choice.ReportFiles[4] = {.Path = folder / "Demo.P4", .Included = " 0", .Year = "2450"};
  }
  // The game's year, then the years with which the reports would be loaded.
  std::string Years(const Stamps& now) {
    ReloadPlan plan = PlanReload(choice, before, now);
    std::string years = plan.IsOwnYearAsked ? "? " : "";
    const std::string problem = AcceptReload(plan);
    if (!problem.empty()) return problem;
    years += std::to_string(plan.Choice.GameYear);
    for (int row = 1; row <= kMaxPlayers; ++row) {
      const ReportFileSlot& report = plan.Choice.ReportFiles.at(static_cast<std::size_t>(row));
      if (report.Path.empty()) continue;
      years += ", " + std::to_string(row) + ":" + report.Year;
      if (!FieldValue(report.Included).ReadsAs(1)) years += " not";
    }
    for (const int row : plan.ChangedRows) years += " offered " + std::to_string(row);
    return years;
  }

  GameFolder folder;
  GameChoice choice;
  Stamps before = {Report(1, 1), Report(3, 1), Report(4, 1), Turn(1, 2450), Turn(2, 2450)};
};

TEST_F(ReloadPlans, GiveTheNewYearsToReportsThatAreNew) {
  const Stamps same = {Report(3, 1), Report(4, 1)};
  struct Case {
    Stamps Now;
    const char* Years;
  };
  const Case cases[] = {
      {{Report(1, 1), Turn(1, 2450)}, "2450, 1:2450, 3:2449, 4:2450 not"},
      {{Report(1, 2), Turn(1, 2451)}, "2451, 1:2451, 3:2449, 4:2450 not"},
      // A turn file of another year without its report: what is known is a year older.
      {{Report(1, 1), Turn(1, 2452)}, "2452, 1:2450, 3:2449, 4:2450 not"},
      // Nothing tells the year of the own report; another file may help.
      {{Report(1, 2)}, "You have entered Years for player files but not for the Game"},
      {{Report(1, 2), Turn(2, 2451)}, "? 2451, 1:2451, 3:2449, 4:2450 not"},
      {{Report(1, 2), Turn(2, 2451), Host(2452)}, "? 2452, 1:2452, 3:2449, 4:2450 not"},
      // A report that came since is ticked, and of the game's year as far as anybody knows.
      {{Report(1, 2), Turn(1, 2451), Report(7, 2)},
       "2451, 1:2451, 3:2449, 4:2450 not, 7:2451 offered 7"},
  };
  folder.Write("Demo.P7", "x");
  for (const Case& each : cases) {
    Stamps now = each.Now;
    now.insert(now.end(), same.begin(), same.end());
    EXPECT_EQ(Years(now), each.Years);
  }
  EXPECT_EQ(Years({Report(1, 2), Turn(1, 2451), Report(3, 2), Report(4, 2)}),
            "2451, 1:2451, 3:2451, 4:2451 not offered 3 offered 4");
}

TEST_F(ReloadPlans, MissReportsThatAreWantedAndGone) {
  std::filesystem::remove(folder / "Demo.P4");
  EXPECT_EQ(Years({Report(1, 1), Report(3, 1)}), "2450, 1:2450, 3:2449");
  std::filesystem::remove(folder / "Demo.P3");
  EXPECT_EQ(Years({Report(1, 1)}), TextFromPath(folder / "Demo.P3") +
                                       ": the report is gone, so the game was not loaded again");
}

TEST_F(ReloadPlans, KnowTheSingleReportOfTheOldStyle) {
  folder.AddOldReport();
  choice.ReportStyle = kOldReportStyle;
  choice.ReportFiles.fill({});
  choice.ReportFiles[1] = {.Path = folder / "Demo.PLA", .Included = "1", .Year = "2450"};
  const GameFileStamp old = {.Kind = GameFileKind::OldReport, .Name = "Demo.PLA"};
  GameFileStamp changed = old;
  changed.Size = 1;
  before = {old, Turn(4, 2450)};
  EXPECT_EQ(Years({old, Turn(4, 2450)}), "2450, 1:2450");
  EXPECT_EQ(Years({changed, Turn(4, 2451), Report(1, 1)}), "2451, 1:2451");
}

}  // namespace
}  // namespace quorvane

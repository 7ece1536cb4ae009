#include "loading/game_file_stamps.h"

#include <gtest/gtest.h>

#include <string>

#include "formats/turn_file.h"
#include "loading/settled_files.h"
#include "support/game_folder.h"

namespace quorvane {
namespace {

using Stamps = std::vector<GameFileStamp>;

TEST(TurnYear, IsToldByAWholeFirstBlockOnly) {
  EXPECT_EQ(TurnYear(TurnBlock(2400)), 2400);
  EXPECT_EQ(TurnYear(TurnBlock(2451)), 2451);
  EXPECT_EQ(TurnYear(TurnBlock(2400 + 65535) + "more"), 2400 + 65535);
  const std::string block = TurnBlock(2451);
  EXPECT_EQ(TurnYear(block.substr(0, block.size() - 1)), std::nullopt);
  EXPECT_EQ(TurnYear(""), std::nullopt);
  for (const std::size_t damaged : {0U, 1U, 2U, 5U}) {
    std::string other = block;
    ++other[damaged];
    EXPECT_EQ(TurnYear(other), std::nullopt) << damaged;
  }
}

class GameFileStamps : public testing::Test {
 protected:
  Stamps Look() const { return StampGameFiles(folder / "Demo.MAP"); }
  std::optional<YearOffer> Offer(int race, int style = kNewReportStyle) const {
    GameChoice choice;
    choice.ReportStyle = style;
    choice.MyRaceRow = race;
    return OfferYear(Look(), choice);
  }

  TempFolder folder;
};

TEST_F(GameFileStamps, FindTheFilesOfTheGameAndTheirYears) {
  for (const char* name : {"Demo.MAP", "demo.p1", "DEMO.P16", "Demo.PLA", "Demo.p17", "Demo.x1"}) {
    folder.Write(name, "12345");
  }
  folder.Write("demo.M2", TurnBlock(2450));
  folder.Write("demo.hst", TurnBlock(2451));
  folder.Write("Demo.m3", "no turn");
  folder.Write("Demon.m4", TurnBlock(2460));
  std::string found;
  for (const GameFileStamp& file : Look()) {
    found += file.Name.string() + " " + std::to_string(file.Row) + " " + std::to_string(file.Size) +
             " " + std::to_string(file.Year.value_or(0)) + "\n";
  }
  EXPECT_EQ(found,
            "Demo.MAP 0 5 0\ndemo.p1 1 5 0\nDEMO.P16 16 5 0\nDemo.PLA 0 5 0\n"
            "demo.M2 2 18 2450\nDemo.m3 3 7 0\ndemo.hst 0 18 2451\n");
  EXPECT_EQ(StampGameFiles(folder / "Demo.MAP", [] { return true; }), Stamps());
}

TEST_F(GameFileStamps, OfferTheYearOfTheOwnTurnFileBeforeOthers) {
  EXPECT_EQ(Offer(1), std::nullopt);
  folder.Write("Demo.m2", TurnBlock(2450));
  folder.Write("Demo.m3", TurnBlock(2452));
  EXPECT_EQ(Offer(2), (YearOffer{2450, "Demo.m2"}));
  EXPECT_EQ(Offer(1), (YearOffer{2452, "Demo.m3"}));
  folder.Write("Demo.HST", TurnBlock(2451));
  EXPECT_EQ(Offer(2), (YearOffer{2450, "Demo.m2"}));
  EXPECT_EQ(Offer(1), (YearOffer{2451, "Demo.HST"}));
  EXPECT_EQ(Offer(2, kOldReportStyle), (YearOffer{2451, "Demo.HST"}));  // row 2 is no player there
}

// What a file is known as, and what looks at it find, until it counts.
TEST(SettledFiles, CountWhenTheyHaveRestedForTwoSeconds) {
  const GameFileStamp old = {.Kind = GameFileKind::Report, .Row = 2, .Name = "Demo.p2", .Size = 9};
  GameFileStamp half = old;
  half.Size = 4;
  GameFileStamp whole = old;
  whole.Size = 12;
  whole.Time = -5;  // the clock was set back
  const GameFileStamp map = {.Name = "Demo.MAP"};
  SettledFiles files({map, old});
  EXPECT_TRUE(files.IsAtRest());
  struct Step {
    Stamps Found;
    std::int64_t Now;
    Stamps Counts;
    bool IsAtRest;
  };
  const Step steps[] = {
      {{map}, 1000, {map, old}, false},        // deleted
      {{map, half}, 2000, {map, old}, false},  // written anew, in two pieces
      {{map, whole}, 3500, {map, old}, false},
      {{map, whole}, 5499, {map, old}, false},
      {{map, whole}, 5500, {map, whole}, true},
      {{map, whole, half}, 9000, {map, whole}, false},  // the last of a name is the file
      {{map, whole}, 9500, {map, whole}, true},         // and is what it was
      {{map}, 10000, {map, whole}, false},
      {{map}, 12000, {map}, true},  // gone for good
  };
  for (const Step& step : steps) {
    files.Look(step.Found, step.Now);
    EXPECT_EQ(files.Files(), step.Counts) << step.Now;
    EXPECT_EQ(files.IsAtRest(), step.IsAtRest) << step.Now;
  }
}

}  // namespace
}  // namespace quorvane

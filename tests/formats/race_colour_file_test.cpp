#include "formats/race_colour_file.h"

#include <gtest/gtest.h>

#include "support/game_builder.h"

namespace quorvane {
namespace {

GameSession GameOf(std::initializer_list<const char*> races) {
  GameBuilder builder;
  for (const char* race : races) builder.Player(race);
  return builder.Build();
}

TEST(RaceColours, GiveKnownRacesTheirSlotAndOthersTheLowestFreeOne) {
  GameSession saved = GameOf({"A", "B", "a \"quoted\" name"});
  saved.RaceColours[0] = {1, 2, 3};
  const std::string text = *RaceColoursText(saved);
  EXPECT_EQ(text, "\"A\",1,1,2,3\r\n\"B\",2,0,255,0\r\n");
  GameSession loaded = GameOf({"B", "C"});
  ApplyRaceColours(text, loaded);
  EXPECT_EQ(loaded.Player(1).ColourSlot(), 2);
  EXPECT_EQ(loaded.Player(2).ColourSlot(), 1);
  EXPECT_EQ(*loaded.ColourOf(2), (Colour{1, 2, 3}));
}

TEST(RaceColours, LetARaceNamedTwiceGiveItsFirstSlotToOthers) {
  GameSession session = GameOf({"A", "B"});
  std::string text;
  for (int slot = 1; slot <= 16; ++slot) text += "\"A\"," + std::to_string(slot) + ",1,2,3\r\n";
  ApplyRaceColours(text, session);
  EXPECT_EQ(session.Player(1).ColourSlot(), 16);
  EXPECT_EQ(session.Player(2).ColourSlot(), 1);
}

TEST(RaceColours, PassOverRecordsOutOfRangeOrCutShort) {
  for (const char* record :
       {"\"A\",17,1,2,3\r\n", "\"A\",0,1,2,3\r\n", "\"A\",2,256,2,3\r\n", "\"A\",2,1,-1,3\r\n",
        "\"A\",x,1,2,3\r\n", "\"A\",2,1,2\r\n", "\"A\",2"}) {
    GameSession session = GameOf({"A"});
    ApplyRaceColours(record, session);
    EXPECT_EQ(session.Player(1).ColourSlot(), 1) << record;
    EXPECT_EQ(session.RaceColours, kDefaultRaceColours) << record;
  }
}

}  // namespace
}  // namespace quorvane

#include "screens/empire_statistics.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quorvane {
namespace {

using Averages = std::array<std::string, kAverageCount>;

TEST(AverageTexts, RoundsWholeTotalsDownAndMineralsToThreeDecimals) {
  PlayerRecord player;
  for (std::size_t field = 4; field <= 7; ++field) player.Field(field) = field == 4 ? 1000 : 11;
  player[PlayerField::TotalIron] = 10;
  player[PlayerField::TotalBora] = 0.002;
  player[PlayerField::TotalGerm] = 15.0;
  player[PlayerField::PlanetsOwned] = 0;
  EXPECT_EQ(AverageTexts(player), Averages());
  player[PlayerField::PlanetsOwned] = 3;
  EXPECT_EQ(AverageTexts(player), (Averages{"333", "3", "3", "3", "3.333", "0.001", "5"}));
  player[PlayerField::PlanetsOwned] = 4;  // 0.0005 lies between two, the even one is 0
  EXPECT_EQ(AverageTexts(player), (Averages{"250", "2", "2", "2", "2.5", "0", "3.75"}));
}

PlayerRecord Race() {
  PlayerRecord race;
  race[PlayerField::Name] = "Drask";
  const double ranges[] = {0.5, 2, -100, 100, 20, 80};
  for (std::size_t i = 0; i < 6; ++i) race.Field(8 + i) = ranges[i];
  return race;
}

TEST(SetRangeLimit, KeepsEveryLimitOnItsScaleAndOnItsSideOfTheOther) {
  using Text = const char*;
  // The limit; the lowest that it may be and what is too low, the highest and what is too high.
  const std::tuple<PlayerField, Text, Text, Text, Text> cases[] = {
      {PlayerField::GravMin, "0.12", "0.11", "2", "2.01"},
      {PlayerField::GravMax, "0.5", "0.49", "8", "8.01"},
      {PlayerField::TempMin, "-200", "-200.01", "100", "100.01"},
      {PlayerField::TempMax, "-100", "-100.01", "200", "200.01"},
      {PlayerField::RadMin, "0", "-0.01", "80", "80.01"},
      {PlayerField::RadMax, "20", "19.99", "100", "100.01"}};
  for (const auto& [limit, lowest, tooLow, highest, tooHigh] : cases) {
    for (const char* answer : {lowest, tooLow, highest, tooHigh}) {
      PlayerRecord race = Race();
      PlayerRecord expected = race;
      const bool isAllowed = answer == lowest || answer == highest;
      if (isAllowed) expected[limit] = NumericValue(answer);
      EXPECT_EQ(SetRangeLimit(race, limit, answer), isAllowed) << answer;
      EXPECT_EQ(race, expected) << answer;
    }
  }
}

TEST(SetRangeLimit, ReadsTheNumberThatTheAnswerBeginsWith) {
  PlayerRecord race = Race();
  EXPECT_TRUE(SetRangeLimit(race, PlayerField::GravMin, "0.125 g"));
  EXPECT_EQ(RangeCaption(race, PlayerField::GravMin), "0.12");
  EXPECT_TRUE(SetRangeLimit(race, PlayerField::RadMin, "none"));
  EXPECT_EQ(RangeCaption(race, PlayerField::RadMin), "0");
}

TEST(RangePrompt, NamesLimitAndRaceAndExplainsDecimalsOfGravity) {
  EXPECT_EQ(RangePrompt(Race(), PlayerField::GravMax),
            "Enter New Maximum Gravity Value for Drask\r\n\r\n((Enter Decimals using a dot . ))");
  EXPECT_TRUE(RangePrompt(Race(), PlayerField::RadMin).ends_with("Radiation Value for Drask"));
}

}  // namespace
}  // namespace quorvane

#include "screens/change_texts.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(ChangeTextsTest, SayItInPlainWords) {
  GameSession session;
  session.GameYear = 2451;
  session.MapFilePath = "Demo.map";
  session.CreatePlanetTable(1);
  session.Planet(1)[PlanetField::Name] = "Kestrel";
  session.Planet(1)[PlanetField::Starbase] = "Space Dock";
  using enum ChangeKind;
  const std::pair<PlanetChange, const char*> kCases[] = {
      {{Taken, 1, "Drask", "Vantari", 5, 120000},
       "Kestrel: taken from the Drask by the Vantari, 120,000 people"},
      {{Taken, 1, "The Others", "Drask", 5, 0}, "Kestrel: taken from The Others by the Drask"},
      {{Lost, 1, "Drask", "", 5, 0}, "Kestrel: lost by the Drask"},
      {{Settled, 1, "", "Drask", 0, 2500}, "Kestrel: settled by the Drask, 2,500 people"},
      {{FirstSeen, 1, "", "Drask", 0, 1234567},
       "Kestrel: first seen, held by the Drask, 1,234,567 people"},
      {{StarbaseNew, 1, "Drask", "Drask"}, "Kestrel: new starbase of the Drask, Space Dock"},
      {{StarbaseGone, 1, "Drask", ""}, "Kestrel: starbase gone"},
      {{GateNew, 1, "", "", 0, 300}, "Kestrel: new stargate, 300 light years"},
      {{GateNew, 1, "", "", 0, kUnlimitedGate}, "Kestrel: new stargate, unlimited"},
      {{GateGone, 1, "", "", 300, 0}, "Kestrel: stargate gone"},
      {{Population, 1, "Drask", "Drask", 100000, 125000},
       "Kestrel: population of the Drask up by 25 %, 100,000 to 125,000"},
      {{Population, 1, "Drask", "Drask", 300, 100},
       "Kestrel: population of the Drask down by 67 %, 300 to 100"},
      {{Population, 1, "Drask", "Drask", 0, 999},
       "Kestrel: population of the Drask up from 0 to 999"},
      {{HabKnown, 1, "", "", 0, -12}, "Kestrel: habitability known now, -12 %"},
      {{Explored, 1, "", ""}, "Kestrel: newly explored"},
      {{ReportYounger, 1, "", "", 5, 1}, "Kestrel: report younger, 5 years old to 1 year old"},
  };
  for (const auto& [change, text] : kCases) {
    const std::vector<ChangeRow> expected = {{1, text}};
    EXPECT_EQ(DescribePlanetChanges({change}, session), expected);
  }
  GameSession before;
  before.GameYear = 2450;
  EXPECT_EQ(ChangesText({{1, "A line"}}, before, session, ""),
            "Demo: year 2451 against 2450, all races\n\nA line\n");
  EXPECT_EQ(ChangesSummary(1, 2450) + ", " + ChangesSummary(20, 2450),
            "1 change since 2450, 20 changes since 2450");
}

}  // namespace
}  // namespace quorvane

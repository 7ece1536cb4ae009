#include "screens/planet_details.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/game_builder.h"

namespace quorvane {
namespace {

using Texts = std::vector<std::string>;

// The texts of the given labels.
Texts Described(const GameSession& session, const Texts& labels) {
  Texts chosen;
  const auto details = DescribePlanet(session, 1);
  for (const std::string& label : labels) {
    const auto found = std::ranges::find(details, label, &DetailText::Label);
    chosen.push_back(found != details.end() ? found->Text : "no such label");
  }
  return chosen;
}

TEST(DescribePlanet, ShowsReportsAsTheyStandAndSaysWhatIsNotKnown) {
  GameBuilder explored;
  explored.Planet("Alpha", {1500, 1500}).OwnedBy("Drask").With(PlanetField::SoiRadius, 93.9);
  explored.With(PlanetField::AgeText, "  5 years old").With(PlanetField::HabValue, "-12");
  explored.With(PlanetField::IronMC, 54).With(PlanetField::IronMR, "Remote");
  explored.With(PlanetField::BoraMR, 7).With(PlanetField::StoredGerm, 1979);
  explored.With(PlanetField::Gravity, "1.20g").With(PlanetField::Temperature2, "-40ºC");
  GameSession session = explored.Build();
  EXPECT_EQ(
      Described(session, {"PlanetName", "Owner", "Owner2", "ReportAge", "ReportAge2", "HabValue",
                          "SOI", "IronMCT", "BoraMR", "GermS", "Grav1", "Temp2", "Rad1"}),
      (Texts{"Alpha", "Drask", "Drask", "5 years old", "5 years old", "-12%", "93 l.y.", "54 ",
             "Remote ", "1979 ", "1.2g", "-40°C", "0mR"}));
  session.ReportStyle = kOldReportStyle;
  session.Planet(1)[PlanetField::IronMR] = 3;
  EXPECT_EQ(Described(session, {"Grav1", "Rad2", "BoraMR"}),
            (Texts{"Unavailable", "Unavailable", "7 "}));

  const GameSession unexplored = GameBuilder().Planet("Beta", {1500, 1500}).Build();
  EXPECT_EQ(Described(unexplored, {"Owner", "ReportAge", "ReportAge2", "HabValue", "SOI"}),
            (Texts{"None", "Unexplored", "", "?%", "0 l.y."}));
}

TEST(HabTexts, GivesEveryPlayerAPercentageOnceTheEnvironmentIsKnown) {
  GameBuilder game;
  game.Player("Immune").WithPlayerField(PlayerField::GravImmune, 1);
  game.WithPlayerField(PlayerField::TempImmune, 1).WithPlayerField(PlayerField::RadImmune, 1);
  game.Planet("Alpha", {1500, 1500}).With(PlanetField::Radiation, "50mR");
  game.Planet("Beta", {1500, 1500}).With(PlanetField::Radiation, "0mR");
  EXPECT_EQ(HabTexts(game.Build(), 1), Texts{"100%"});
  EXPECT_EQ(HabTexts(game.Build(), 2), Texts{"N/A"});
}

TEST(DescribeStargate, ListsGatesUpToItsRangeAsSafeAndUpToFiveTimesItAsDangerous) {
  GameBuilder game;
  game.Planet("Sender", {1100, 1500}).With(PlanetField::GateRange, 100);
  game.With(PlanetField::GateMass, kUnlimitedGate);
  for (const int distance : {100, 101, 250, 500, 501}) {
    game.Planet("P" + std::to_string(distance), {1100.0 + distance, 1500});
    game.With(PlanetField::GateRange, 1);
  }
  game.Planet("No gate", {1110, 1500}).With(PlanetField::GateRange, 0);
  game.Planet("Diagonal", {1101, 1501}).With(PlanetField::GateRange, 5);  // 1.41 light years
  GameSession session = game.Build();
  StargateDetails gate = DescribeStargate(session, 1);
  EXPECT_EQ(gate.Type, "Inf Kt / 100 l.y.");
  EXPECT_EQ(gate.Safe, (Texts{"P100  (100 l.y.)", "Diagonal  (1 l.y.)"}));
  EXPECT_EQ(gate.Dangerous, (Texts{"P101  (101 l.y.)", "P250  (250 l.y.)", "P500  (500 l.y.)"}));

  session.Planet(1)[PlanetField::GateRange] = kUnlimitedGate;
  session.Planet(1)[PlanetField::GateMass] = " 300 ";
  gate = DescribeStargate(session, 1);
  EXPECT_EQ(gate.Type, "300 Kt / Inf l.y.");
  EXPECT_EQ(gate.Safe.size(), 6U);

  gate = DescribeStargate(session, 7);
  EXPECT_TRUE(gate.Type == "None Detected" && gate.Safe.empty() && gate.Dangerous.empty());
}

}  // namespace
}  // namespace quorvane

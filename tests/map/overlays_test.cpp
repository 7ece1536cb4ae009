#include "map/overlays.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

#include "map/discs.h"
#include "support/drawn.h"

namespace quorvane {
namespace {

// The one disc that is drawn, or nothing.
Texts DiscOf(const std::string& colour, const std::string& radius = "50",
             const std::string& pen = "copy solid w1") {
  return colour.empty() ? Texts() : Texts{Disc(radius, colour, pen)};
}

const MapView kZoomed = Zoomed(300, 300, 500);  // four times, 20 units to a light year

TEST(DrawPlanets, MarksGrowWithTheZoomAndEndAtTheWindow) {
  GameBuilder game;
  game.Planet("West edge", {1300, 1500}).Planet("East edge", {1800, 1500});
  game.Planet("North edge", {1400, 1700}).Planet("South edge", {1400, 1200});
  game.Planet("Inside", {1400, 1500});
  EXPECT_EQ(Drawn(DrawPlanets, game.Build(), kZoomed),
            (Texts{"circle 2000,4000 r40 #000000 fill #000000 copy solid w2",
                   "circle 2000,4000 r20 #ffffff fill #ffffff copy solid w2"}));
}

TEST(DrawOwnedPlanets, AllBlackDiscsComeBeforeTheFirstColouredOne) {
  GameBuilder game;
  game.Planet("Alpha", {1400, 1500}).OwnedBy("Humanoid").With(PlanetField::Starbase, "Space Dock");
  game.Planet("Beta", {1500, 1500}).OwnedBy("Drask").With(PlanetField::Starbase, kNoStarbase);
  game.WithPlayerField(PlayerField::ColourSlot, 8);
  game.Planet("Nobody's", {1600, 1500});
  game.Planet("Gamma", {1700, 1500}).OwnedBy("Ilyr").WithPlayerField(PlayerField::ColourSlot, 0);
  EXPECT_EQ(Drawn(DrawOwnedPlanets, game.Build(), kZoomed),
            (Texts{"circle 2000,4000 r160 #000000 fill #000000 copy solid w2",
                   "circle 4000,4000 r80 #000000 fill #000000 copy solid w2",
                   "circle 2000,4000 r60 #000000 fill #ff0000 copy solid w2",
                   "circle 2000,4000 r140 #ffff00 hollow copy solid w2",
                   "circle 4000,4000 r60 #000000 fill #ff8000 copy solid w2"}));
}

TEST(DrawScannedPlanets, PenetratingRangesLieAboveNormalOnesAndPointsAboveBoth) {
  GameBuilder game;
  game.Planet("Alpha", {1400, 1500}).With(PlanetField::ScanRange, 50);
  game.With(PlanetField::PenScanRange, 20).With(PlanetField::AgeText, "Current");
  game.Planet("Beta", {1500, 1500}).With(PlanetField::ScanRange, 10);
  game.With(PlanetField::PenScanRange, -1).With(PlanetField::AgeText, " Current");
  GameSession session = game.Build();
  const Texts points = {"point 2000,4000 #ffff00 copy w4"};
  EXPECT_EQ(Drawn(DrawScannedPlanets, session, kZoomed),
            (Texts{"circle 2000,4000 r1000 #600000 fill #600000 copy solid w1",
                   "circle 4000,4000 r200 #600000 fill #600000 copy solid w1",
                   "circle 2000,4000 r400 #606000 fill #606000 copy solid w1", points[0]}));
  session.ReportStyle = kOldReportStyle;
  EXPECT_EQ(Drawn(DrawScannedPlanets, session, kZoomed), points);
}

TEST(DrawPlanetNames, SitCentredBelowThePlanetInTheOwnersColourAndGrowWithTheZoom) {
  GameBuilder game;
  game.Planet("Alpha", {1500, 1500}).OwnedBy("Humanoid").Planet("007", {1500, 1500});
  const std::pair<int, Texts> cases[] = {
      // the window's width, then what is printed with 100 units to a character
      {1000,  // half a point rounds to none
       {"text 4750,5050 \"Alpha\" #ff0000 6pt", "text 4850,5050 \"007\" #ffffff 6pt"}},
      {500, {"text 4750,5100 \"Alpha\" #ff0000 7pt", "text 4850,5100 \"007\" #ffffff 7pt"}},
      {200, {"text 4750,5250 \"Alpha\" #ff0000 8pt", "text 4850,5250 \"007\" #ffffff 8pt"}}};
  for (const auto& [width, printed] : cases) {
    const MapView view = Zoomed(500 - width / 2, 500 - width / 2, width);
    EXPECT_EQ(Drawn(DrawPlanetNames, game.Build(), view, NameStyle{.Coloured = true}), printed);
  }
}

TEST(DrawPlanetNames, OutlinesComeBeforeAllLetters) {
  GameBuilder game;
  game.Planet("Alpha", {1500, 1500}).Planet("Beta", {1510, 1500});
  EXPECT_EQ(
      Drawn(DrawPlanetNames, game.Build(), FullView(), NameStyle{.Outlined = true}),
      (Texts{"outline 4750,5050 \"Alpha\" #000000 6pt", "outline 4900,5050 \"Beta\" #000000 6pt",
             "text 4750,5050 \"Alpha\" #ffffff 6pt", "text 4900,5050 \"Beta\" #ffffff 6pt"}));
}

TEST(DrawPlanetNames, FewerLeaveOutWhatOverlapsANameThatMattersMore) {
  // Each overlaps the next one; names are 100 units a character wide and 150 high.
  GameBuilder game;
  game.Planet("Crowd", {1500, 1500}).With(PlanetField::Population, 900'000);
  game.With(PlanetField::Starbase, kNoStarbase);
  game.Planet("Base", {1530, 1500}).With(PlanetField::Starbase, "Space Dock");
  game.Planet("Mine", {1560, 1500}).OwnedBy("Humanoid");
  game.With(PlanetField::Starbase, kNoStarbase);
  game.Planet("Empty", {1590, 1500}).Planet("Twin", {1600, 1510}).Planet("Apart", {1500, 1520});
  GameSession session = game.Build();
  session.MyRaceName = "Humanoid";
  const auto names = [&](std::optional<StoredPoint> selected) {
    std::string shown;
    const NameStyle style = {.Fewer = true, .Selected = selected};
    for (const std::string& line : Drawn(DrawPlanetNames, session, FullView(), style)) {
      shown += line.substr(line.find('"'), line.rfind('"') - line.find('"')) + " ";
    }
    return shown;
  };
  EXPECT_EQ(names({}), "\"Crowd \"Mine \"Twin \"Apart ");
  EXPECT_EQ(names(StoredPoint{530, 500}), "\"Base \"Empty \"Apart ");
}

TEST(DrawReportAge, GoesFromGreenToRedWithTheYears) {
  const std::tuple<double, const char*, const char*> cases[] = {{0, "Current", "#00ff00"},
                                                                {3, "  3 years old", "#1ee100"},
                                                                {25, " 25 years old", "#fa0500"},
                                                                {26, " 26 years old", "#ff0000"},
                                                                {9999, "9999 years old", "#ff0000"},
                                                                {0, "", ""},
                                                                {-2, " -2 years old", ""}};
  for (const auto& [years, age, colour] : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).With(PlanetField::ReportAge, years);
    game.With(PlanetField::AgeText, age);
    EXPECT_EQ(Drawn(DrawReportAge, game.Build()), DiscOf(colour, "60")) << years;
  }
}

TEST(DrawCurrentHabValues, DiscTellsTheClassByItsColourAndTheValueByItsSize) {
  const std::tuple<const char*, const char*, const char*, const char*> cases[] = {
      {"-45", "Current", "150", "#ff0000"},
      {"-50", "Current", "166", "#ff0000"},
      {"-11", "Current", "37", "#ff0000"},
      {"-10", "Current", "150", "#ff00ff"},
      {"-1", "Current", "42", "#ff00ff"},
      {"0", "Current", "30", "#ffff00"},
      {"10", "Current", "150", "#ffff00"},
      {"11", "Current", "30", "#00ff00"},
      {"21", "Current", "32", "#00ff00"},
      {"100", "Current", "150", "#00ff00"},
      {"100", "", "100", "#00ff00"},
      {"-20", "", "30", "#ff0000"},
      {"", "Current", "", ""}};
  for (const auto& [value, age, radius, colour] : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).With(PlanetField::AgeText, age);
    game.With(PlanetField::HabValue, value);
    EXPECT_EQ(Drawn(DrawCurrentHabValues, game.Build()),
              DiscOf(colour, radius, "merge no-outline w1"))
        << value;
  }
}

TEST(DrawEstimatedHabValues, CarriesTheValueOverToAPlanetWhoseEnvironmentIsNotKnown) {
  GameBuilder game;
  game.Player("Ilyr").Player("Drask").WithPlayerField(PlayerField::GravImmune, 1);
  game.WithPlayerField(PlayerField::TempImmune, 1).WithPlayerField(PlayerField::RadImmune, 1);
  game.Planet("Unknown", {1100, 1500}).With(PlanetField::AgeText, "Current");
  game.Planet("Outside", {1900, 1500}).With(PlanetField::Radiation, "50mR");
  game.Planet("Unexplored", {1200, 1500}).With(PlanetField::Radiation, "50mR");
  game.Planet("Carried", {1500, 1500}).With(PlanetField::AgeText, "  2 years old");
  const MapView view = Zoomed(50, 50, 800);
  const Texts discs = {"circle 625,5625 r30 #ffff00 fill #ffff00 merge no-outline w1",
                       "circle 1875,5625 r30 #503c3c fill #503c3c merge no-outline w1",
                       "circle 5625,5625 r150 #00ff00 fill #00ff00 merge no-outline w1"};
  EXPECT_EQ(Drawn(DrawEstimatedHabValues, game.Build(), view, "Drask"), discs);
  for (const char* nobody : {"drask", ""}) {
    EXPECT_EQ(Drawn(DrawEstimatedHabValues, game.Build(), view, nobody), Texts{discs[1]});
  }
}

TEST(DrawValueAfterTerraforming, DrawsDullDiscsThenRedOnesThenGreenOnes) {
  GameBuilder game;
  game.Planet("Good", {1500, 1500}).With(PlanetField::TerraValue, "97%");
  game.Planet("Bad", {1500, 1500}).With(PlanetField::TerraValue, "-50%");
  game.Planet("Unknown", {1500, 1500});
  const char* const pen = "copy no-outline w1";
  EXPECT_EQ(Drawn(DrawValueAfterTerraforming, game.Build()),
            (Texts{Disc("30", "#503c3c", pen), Disc("166", "#ff0000", pen),
                   Disc("146", "#00ff00", pen)}));
}

TEST(DrawDifficultyOfAttack, RisesWithThePopulationAndTheStarbase) {
  const std::tuple<int, const char*, const char*> cases[] = {
      {1'000'000, "None", "#cc3300"}, {1'000'000, "", "#cc3300"}, {1'000'000, "Dock", "#fe0100"},
      {1'250'000, "Dock", "#ff0000"}, {100, "None", "#00ff00"},   {0, "Dock", ""}};
  for (const auto& [population, starbase, colour] : cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).With(PlanetField::Population, population);
    game.With(PlanetField::Starbase, starbase);
    EXPECT_EQ(Drawn(DrawDifficultyOfAttack, game.Build()), DiscOf(colour)) << population;
  }
}

TEST(DrawGrowth, ComparesThePopulationWithWhatTheHabitabilityAllows) {
  using Text = const char*;
  // What, habitability, population, owner, starbase, resources, mines, mining rate; the colour.
  const std::tuple<Text, Text, int, Text, Text, int, int, Text, Text> cases[] = {
      {"half full", "50%", 250'000, "Me", "None", 1, 50, "8", "#807f00"},
      {"5 % at least", "3%", 25'000, "Me", "None", 1, 50, "8", "#807f00"},
      {"0 %, mined", "0%", 25'000, "Me", "Dock", 1, 9, "8", "#807f00"},
      {"overfull", "10%", 250'000, "Me", "None", 1, 50, "8", "#ff0000"},
      {"nobody can live", "-20%", 100, "Me", "None", 1, 50, "8", "#8e00ff"},
      {"mined from orbit", "100%", 1'500'000, "Me", "Dock", 1, 9, "8", "#807f00"},
      {"no starbase", "100%", 500'000, "Me", "None", 1, 9, "8", "#807f00"},
      {"remote mining", "100%", 500'000, "Me", "Dock", 1, 9, "Remote", "#807f00"},
      {"another race's", "50%", 250'000, "You", "None", 1, 50, "8", ""},
      {"no resources", "50%", 250'000, "Me", "None", 0, 50, "8", ""}};
  for (const auto& [what, hab, population, owner, starbase, resources, mines, rate, colour] :
       cases) {
    GameBuilder game;
    game.Planet("Alpha", {1500, 1500}).OwnedBy(owner);
    game.With(PlanetField::HabValue, hab).With(PlanetField::Population, population);
    game.With(PlanetField::Starbase, starbase).With(PlanetField::Resources, resources);
    game.With(PlanetField::Mines, mines).With(PlanetField::IronMR, rate);
    GameSession session = game.Build();
    session.MyRaceName = "Me";
    EXPECT_EQ(Drawn(DrawGrowth, session), DiscOf(colour)) << what;
  }
}

using Minerals = std::array<FieldValue, 3>;

Texts Plain(const char* radius, const char* colour) {
  return DiscOf(colour, radius, "copy no-outline w1");
}

// What an overlay draws for one planet of these concentrations on a surface left in this mode.
template <typename Draw>
Texts DrawnFor(const Draw& draw, const Minerals& minerals, const char* age, const char* hab = "0",
               DrawMode mode = DrawMode::Merge) {
  GameBuilder game;
  game.Planet("Alpha", {1500, 1500}).With(PlanetField::AgeText, age);
  game.With(PlanetField::HabValue, hab).With(PlanetField::IronMC, minerals[0]);
  game.With(PlanetField::BoraMC, minerals[1]).With(PlanetField::GermMC, minerals[2]);
  RecordingSurface surface;
  surface.SetPen({.Mode = mode, .Width = 3});
  draw(game.Build(), FullView(), surface);
  return surface.Lines();
}

TEST(DrawConcentration, KeepsTheModeThatTheSurfaceWasLeftIn) {
  const auto draw = [](const auto& overlay, const Minerals& minerals, const char* age) {
    return DrawnFor(overlay, minerals, age, "0", DrawMode::Copy);
  };
  EXPECT_EQ(draw(DrawIroniumConcentration, {"50", "1", "2"}, "Current"), Plain("50", "#0000ff"));
  EXPECT_EQ(DrawnFor(DrawIroniumConcentration, {"50", "1", "2"}, "Current"),
            DiscOf("#0000ff", "50", "merge no-outline w1"));
  const Minerals unknown = {"Unknown", "Unknown", "Unknown"};
  EXPECT_EQ(draw(DrawIroniumConcentration, unknown, "Current"), Plain("0", "#0000ff"));
  EXPECT_EQ(draw(DrawIroniumConcentration, unknown, ""), Plain("30", "#503c3c"));
  EXPECT_EQ(draw(DrawBoraniumConcentration, {"1", "60", "2"}, ""), Plain("60", "#00ff00"));
  EXPECT_EQ(draw(DrawGermaniumConcentration, {"1", "2", "70"}, ""), Plain("70", "#ffff00"));
}

TEST(DrawAverageMineralConcentration, MixesTheColourOfAllThree) {
  const std::tuple<Minerals, const char*, const char*> cases[] = {
      {{30, 60, 90}, "60", "#e6994c"},
      {{10, 150, 10}, "57", "#1aff1a"},
      {{1, 2, 2}, "2", "#050503"},
      {{"30", "Unknown", "90"}, "30", "#503c3c"}};
  for (const auto& [minerals, radius, colour] : cases) {
    EXPECT_EQ(DrawnFor(DrawAverageMineralConcentration, minerals, "Current"),
              Plain(radius, colour));
  }
}

TEST(DrawEmpireExpansion, ValuesMineralsAndHabitabilityTogether) {
  const std::tuple<Minerals, const char*, const char*, const char*> cases[] = {
      {{40, 40, 40}, "50%", "100", "#ffe600"},    {{40, 40, 40}, "-20%", "50", "#ff002d"},
      {{100, 100, 100}, "25%", "125", "#00ff00"}, {{100, 100, 100}, "100%", "125", "#bfff00"},
      {{100, 100, 100}, "5%", "100", "#ff9a00"},  {{45, 90, 90}, "1%", "100", "#ff8500"},
      {{40, 40, 40}, "", "50", "#ff0000"},        {{200, 200, 200}, "-45%", "50", "#ff00ff"},
      {{40, 0, 40}, "50%", "30", "#503c3c"}};
  for (const auto& [minerals, hab, radius, colour] : cases) {
    EXPECT_EQ(DrawnFor(DrawEmpireExpansion, minerals, "Current", hab), Plain(radius, colour))
        << hab;
  }
}

TEST(PaintSwatch, GoesFromADarkRimToTheFullColour) {
  RecordingSurface surface;
  PaintSwatch({255, 128, 5}, surface);
  ASSERT_EQ(surface.Lines().size(), 10U);
  EXPECT_EQ(surface.Lines().front(), "circle 0,0 r1500 #1a0d00 fill #1a0d00 copy solid w1")
      << "from 25.5, 12.8 and 0.5";
  EXPECT_EQ(surface.Lines().back(), "circle 0,0 r150 #ff8005 fill #ff8005 copy solid w1");
}

// Two gates, on a map of 10 units to a light year.
GameSession Gates(GamePoint first, int firstRange, GamePoint second, int secondRange) {
  GameBuilder game;
  game.Planet("First", first).With(PlanetField::GateRange, firstRange);
  game.Planet("Between", {1500, 1500}).With(PlanetField::GateRange, 0);
  game.Planet("Second", second).With(PlanetField::GateRange, secondRange);
  return game.Build();
}

std::string Arrow(const char* ends) {
  return std::string("line ") + ends + " #00c800 copy solid w1";
}

TEST(DrawStargates, ArrowheadsPointAtTheReceivingGateWhereverItLies) {
  // Where the other gate lies, and the mark a third of the way from the gate at 5000,5000.
  const std::tuple<const char*, GamePoint, Texts> cases[] = {
      {"east", {1530, 1500}, {Arrow("5100,5000 5060,4960"), Arrow("5100,5000 5060,5040")}},
      {"west", {1470, 1500}, {Arrow("4900,5000 4940,5040"), Arrow("4900,5000 4940,4960")}},
      {"north", {1500, 1530}, {Arrow("5000,4900 4960,4940"), Arrow("5000,4900 5040,4940")}},
      {"south", {1500, 1470}, {Arrow("5000,5100 5040,5060"), Arrow("5000,5100 4960,5060")}},
      {"south east", {1530, 1470}, {Arrow("5100,5100 5100,5050"), Arrow("5100,5100 5050,5100")}}};
  for (const auto& [what, to, mark] : cases) {
    const Texts lines =
        Drawn(DrawStargates, Gates({1500, 1500}, 50, to, 1), FullView(), false, std::nullopt);
    ASSERT_EQ(lines.size(), 5U) << what;
    EXPECT_EQ(Texts(lines.begin(), lines.begin() + 2), mark) << what;
  }
}

TEST(DrawStargates, EachDirectionIsJudgedByTheRangeOfTheGateThatSends) {
  const std::string there = "line 4000,5000 6000,5000 #00ff00 copy solid w1";
  const std::string back = "line 6000,5000 4000,5000 ";
  const std::tuple<int, int, bool, Texts> cases[] = {
      {200, 100, false, {there}},
      {200, 100, true, {there, back + "#ffbf00 copy solid w1"}},
      {200, 40, true, {there, back + "#ff0000 copy solid w1"}},
      {200, 39, true, {there}},
      {10000, 199, true, {there, back + "#fffe00 copy solid w1"}},
      {0, 10000, true, {}}};
  for (const auto& [rangeThere, rangeBack, isComplete, expected] : cases) {
    const GameSession game = Gates({1400, 1500}, rangeThere, {1600, 1500}, rangeBack);
    Texts links = Drawn(DrawStargates, game, FullView(), isComplete, std::nullopt);
    std::erase_if(links,
                  [](const std::string& line) { return line.ends_with("#00c800 copy solid w1"); });
    EXPECT_EQ(links, expected) << rangeThere << " " << rangeBack;
  }
}

TEST(DrawStargates, OnePlanetsLinksComeAsAmongAll) {
  GameBuilder game;
  for (const double x : {1500, 1530, 1560, 1590}) {
    game.Planet("Gate", {x, 1500}).With(PlanetField::GateRange, 40);
  }
  const GameSession session = game.Build();
  const auto links = [&](std::optional<StoredPoint> only) {
    Texts lines;
    for (const std::string& line : Drawn(DrawStargates, session, FullView(), false, only)) {
      if (line.find("#00ff00") != line.npos) lines.push_back(line.substr(0, line.find(" #")));
    }
    return lines;
  };
  EXPECT_EQ(links({}).size(), 6U);
  EXPECT_EQ(links(StoredPoint{530, 500}),
            (Texts{"line 5000,5000 5300,5000", "line 5300,5000 5000,5000",
                   "line 5300,5000 5600,5000", "line 5600,5000 5300,5000"}));
  EXPECT_EQ(links(StoredPoint{1, 1}), Texts());
}

}  // namespace
}  // namespace quorvane

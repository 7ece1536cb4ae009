#include "map/map_key.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "map/overlay_stack.h"
#include "support/game_builder.h"
#include "support/map_views.h"
#include "support/recording_surface.h"

namespace quorvane {
namespace {

using Kind = OverlayKind;
using Field = PlanetField;

OverlaySwitches Only(Kind kind) {
  OverlaySwitches switches;
  switches.Set(kind, true);
  switches.RaceName = "Humanoid";
  return switches;
}

std::vector<KeySection> KeyOf(const GameSession& session, const OverlaySwitches& switches) {
  return MapKey({.Session = session, .Switches = switches, .View = FullView()});
}

// What the map shows of a planet in the middle.
struct Shown {
  const char* Words;
  std::vector<std::pair<Field, FieldValue>> Fields;
  // Whether the sample is as large as on the map: ranges and territories are not.
  bool IsAsLarge = true;
};

GameSession GameWith(const Shown& shown) {
  GameBuilder game;
  game.Planet("Abc", {1500, 1500}).OwnedBy("Humanoid").With(Field::AgeText, kCurrentAge);
  game.With(Field::Starbase, kNoStarbase).With(Field::Radiation, 50);
  for (const auto& [field, value] : shown.Fields) game.With(field, value);
  game.Planet("Far", {1540, 1500}).OwnedBy("Humanoid").With(Field::GateRange, 1);
  GameSession session = game.Build();
  session.MyRaceName = "Humanoid";
  session.InfluenceGrid.At(325, 325) = {1, 100};
  session.InfluenceGrid.At(330, 330) = {1, 50};
  return session;
}

// The parts of a line that do not tell its place or size.
std::string ColoursOf(const std::string& line) {
  std::string colours = line.substr(0, line.find(' '));
  for (size_t at = line.find('#'); at != line.npos; at = line.find('#', at + 1)) {
    colours += line.substr(at, 7);
  }
  return colours;
}

TEST(MapKey, SamplesLookLikeWhatTheOverlaysDraw) {
  const Shown hostile = {"red: hostile, the larger the worse", {{Field::HabValue, -20}}};
  const FieldValue unseen = "";
  const std::pair<Kind, std::vector<Shown>> overlays[] = {
      {Kind::InfluenceBorders,
       {{"territory in its holder's colour", {}, false}, {"darker: held less firmly", {}, false}}},
      {Kind::ScannedPlanets,
       {{"dark red: in range of a scanner", {{Field::ScanRange, 50}}, false},
        {"dark yellow: of a penetrating one, too", {{Field::PenScanRange, 50}}, false},
        {"yellow: a report of this year", {}}}},
      {Kind::CompleteStargateNetwork,
       {{"green: safe, the way the arrows point", {{Field::GateRange, 40}}, false},
        {"yellow: just beyond the gate's range", {{Field::GateRange, 39}}, false},
        {"red: five times the range, great losses", {{Field::GateRange, 8}}, false}}},
      {Kind::Planets, {{"white: a planet", {}}}},
      {Kind::CurrentHabValues,
       {hostile,
        {"magenta: habitable after terraforming", {{Field::HabValue, -5}}},
        {"yellow: barely habitable, up to 10\u00a0%", {{Field::HabValue, 5}}},
        {"green: habitable, the larger the better", {{Field::HabValue, 50}}}}},
      {Kind::OwnedPlanets,
       {{"in its owner's colour: an owned planet", {}},
        {"with a yellow ring: a starbase orbits it", {{Field::Starbase, "Space Dock"}}}}},
      {Kind::DifficultyOfAttack,
       {{"green: hardly anybody lives there", {{Field::Population, 1000}}},
        {"olive: 600,000 people", {{Field::Population, 600'000}}},
        {"red: a million people and a starbase",
         {{Field::Population, 1'000'000}, {Field::Starbase, "Space Dock"}}}}},
      {Kind::Growth,
       {{"green: nearly empty",
         {{Field::Resources, 1}, {Field::Population, 100}, {Field::HabValue, 100}}},
        {"olive: half full",
         {{Field::Resources, 1}, {Field::Population, 500'000}, {Field::HabValue, 100}}},
        {"red: full",
         {{Field::Resources, 1}, {Field::Population, 1'000'000}, {Field::HabValue, 100}}},
        {"purple: hostile",
         {{Field::Resources, 1}, {Field::Population, 1000}, {Field::HabValue, -20}}},
        {"blue: as hostile as can be",
         {{Field::Resources, 1}, {Field::Population, 1000}, {Field::HabValue, -45}}}}},
      {Kind::QvlDrawing, {{"lines, circles and texts: drawn by hand", {}, false}}},
      {Kind::NamesColoured,
       {{"in its owner's colour: an owned planet", {}, false},
        {"white: a planet's name", {{Field::Owner, ""}}, false}}},
      {Kind::NamesWhite, {{"white: a planet's name", {}, false}}},
      {Kind::IroniumConcentration,
       {{"blue: ironium, the wider the richer", {{Field::IronMC, 90}}},
        {"dull: not explored", {{Field::AgeText, unseen}}}}},
      {Kind::BoraniumConcentration,
       {{"green: boranium, the wider the richer", {{Field::BoraMC, 90}}},
        {"dull: not explored", {{Field::AgeText, unseen}}}}},
      {Kind::GermaniumConcentration,
       {{"yellow: germanium, the wider the richer", {{Field::GermMC, 90}}},
        {"dull: not explored", {{Field::AgeText, unseen}}}}},
      {Kind::AverageMineralConcentration,
       {{"blue: mostly ironium", {{Field::IronMC, 100}, {Field::BoraMC, 20}, {Field::GermMC, 20}}},
        {"green: mostly boranium",
         {{Field::IronMC, 20}, {Field::BoraMC, 100}, {Field::GermMC, 20}}},
        {"red: mostly germanium", {{Field::IronMC, 20}, {Field::BoraMC, 20}, {Field::GermMC, 100}}},
        {"white: rich in all, the wider the richer",
         {{Field::IronMC, 100}, {Field::BoraMC, 100}, {Field::GermMC, 100}}},
        {"dull: minerals not known", {}}}},
      {Kind::ReportAgeOverlay,
       {{"green: a report of this year", {}},
        {"olive: of 13 years ago", {{Field::AgeText, "13 years"}, {Field::ReportAge, 13}}},
        {"red: of 26 years ago and older",
         {{Field::AgeText, "40 years"}, {Field::ReportAge, 40}}}}},
      {Kind::ValueAfterTerraforming,
       {{"dull: worth nothing, or not known", {}},
        {"red: stays hostile, the larger the worse", {{Field::TerraValue, -20}}},
        {"green: habitable then, the larger the better", {{Field::TerraValue, 50}}}}},
      {Kind::EmpireExpansion,
       {{"green to yellow, large: well worth settling",
         {{Field::IronMC, 100}, {Field::BoraMC, 100}, {Field::GermMC, 100}, {Field::HabValue, 40}}},
        {"orange to yellow: worth something",
         {{Field::IronMC, 100}, {Field::BoraMC, 100}, {Field::GermMC, 100}, {Field::HabValue, 10}}},
        {"red to magenta, small: worth nothing",
         {{Field::IronMC, 100},
          {Field::BoraMC, 100},
          {Field::GermMC, 100},
          {Field::HabValue, -10}}},
        {"dull: minerals not known", {}}}},
      {Kind::TerritoryEdges, {{"lines in both holders' colours: a border", {}, false}}}};
  for (const auto& [kind, shown] : overlays) {
    std::vector<std::string> words;
    for (const Shown& each : shown) {
      GameSession session = GameWith(each);
      session.Planet(1)[Field::OwnerIndex] = session.FindPlayerByName(session.Planet(1).Owner());
      MapState state = {.View = FullView()};
      RecordingSurface map;
      RecordingSurface twin;
      const std::vector<DrawingRecord> layer = {{.X = 1100, .Y = 1100, .X2 = 1200, .Y2 = 1200}};
      DrawOverlayStack({session, state, Only(kind), map, twin, {}, layer});

      const std::vector<KeySection> key = KeyOf(session, Only(kind));
      ASSERT_EQ(key.size(), 1U);
      const auto line = std::ranges::find(key[0].Lines, each.Words, &KeyLine::Words);
      ASSERT_NE(line, key[0].Lines.end()) << each.Words;
      words.emplace_back(each.Words);
      EXPECT_EQ(key[0].Lines.size(), shown.size()) << key[0].Title;
      RecordingSurface sample;
      line->Draw(sample, {5000, 5000});
      for (const std::string& drawn : sample.Lines()) {
        const bool isThere = std::ranges::any_of(map.Lines(), [&](const std::string& onMap) {
          return each.IsAsLarge ? onMap == drawn : ColoursOf(onMap) == ColoursOf(drawn);
        });
        EXPECT_TRUE(isThere) << key[0].Title << ", " << each.Words << ": " << drawn;
      }
      EXPECT_FALSE(sample.Lines().empty()) << each.Words;
    }
    EXPECT_EQ(std::set(words.begin(), words.end()).size(), shown.size());
  }
}

// The least and the most of red, green and blue in what is called so.
const std::map<std::string, std::pair<Colour, Colour>> kNamedColours = {
    {"red", {{230, 0, 0}, {255, 60, 60}}},       {"green", {{0, 230, 0}, {60, 255, 60}}},
    {"blue", {{0, 0, 230}, {60, 60, 255}}},      {"yellow", {{250, 240, 0}, {255, 255, 0}}},
    {"magenta", {{255, 0, 255}, {255, 0, 255}}}, {"white", {{255, 255, 255}, {255, 255, 255}}},
    {"olive", {{110, 115, 0}, {140, 140, 0}}},   {"orange", {{255, 128, 0}, {255, 190, 0}}},
    {"purple", {{110, 0, 220}, {160, 0, 255}}},  {"dark", {{96, 0, 0}, {96, 96, 0}}},
    {"dull", {{80, 60, 60}, {80, 60, 60}}}};

TEST(MapKey, ColoursAreCalledByTheirNames) {
  const GameSession session = GameWith({});
  int seen = 0;
  for (const OverlayTexts& overlay : kOverlayTable) {
    for (const KeySection& section : KeyOf(session, Only(overlay.Kind))) {
      for (const KeyLine& line : section.Lines) {
        const auto named =
            kNamedColours.find(line.Words.substr(0, line.Words.find_first_of(" ,:")));
        if (named == kNamedColours.end()) continue;  // in a race's colour
        RecordingSurface sample;
        line.Draw(sample, {});
        const std::string& drawn = sample.Lines().back();
        const unsigned long rgb = std::stoul(drawn.substr(drawn.find('#') + 1, 6), nullptr, 16);
        const auto& [least, most] = named->second;
        const auto isWithin = [&](int shift, int Colour::*part) {
          const int value = static_cast<int>(rgb >> shift & 0xFF);
          return least.*part <= value && value <= most.*part;
        };
        EXPECT_TRUE(isWithin(16, &Colour::Red) && isWithin(8, &Colour::Green) &&
                    isWithin(0, &Colour::Blue))
            << section.Title << ", " << line.Words << ": " << drawn;
        ++seen;
      }
    }
  }
  EXPECT_GT(seen, 40);
}

TEST(MapKey, FollowsTheSwitchesInTheOrderOfDrawing) {
  GameSession session = GameWith({});
  OverlaySwitches switches = Only(Kind::TerritoryEdges);
  for (const Kind kind : {Kind::ZoomIn, Kind::EmpireExpansion, Kind::EstimateHabValues,
                          Kind::InfluenceBorders, Kind::SafeStargateDistances}) {
    switches.Set(kind, true);
  }
  Texts titles;
  for (const KeySection& section : KeyOf(session, switches)) titles.push_back(section.Title);
  EXPECT_EQ(titles, (Texts{"Influence Borders", "Safe Startgate Distances", "Estimate Hab Values",
                           "Empire Expansion", "Territory Edges"}));
  switches = Only(Kind::EstimateHabValues);
  EXPECT_EQ(KeyOf(session, switches).at(0).Lines.size(), 5U);
  switches.RaceName = "Nobody";
  EXPECT_EQ(KeyOf(session, switches).at(0).Lines.size(), 1U) << "only the dull discs are drawn";
  session.ReportStyle = kOldReportStyle;
  EXPECT_EQ(KeyOf(session, Only(Kind::ScannedPlanets)).at(0).Lines.size(), 1U);
  EXPECT_TRUE(KeyOf(session, OverlaySwitches()).empty());
}

TEST(ScaleBarLength, IsTheLongestRoundOneThatHasRoom) {
  const std::tuple<double, double, int> cases[] = {{1, 200, 200},   {1, 199.9, 100},
                                                   {0.5, 200, 200}, {0.35, 200, 500},
                                                   {28, 200, 5},    {300, 200, 0}};
  for (const auto& [pixels, most, lightYears] : cases) {
    EXPECT_EQ(ScaleBarLength(pixels, most), lightYears) << pixels;
  }
}

}  // namespace
}  // namespace quorvane

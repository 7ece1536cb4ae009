#include "screens/planet_filter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

#include "model/text.h"
#include "rules/estimated_hab.h"
#include "support/game_builder.h"
#include "support/loaded_game.h"

namespace quorvane {
namespace {

using Field = PlanetField;

std::string FaultOf(const std::string& search, const GameSession& session) {
  const auto made = PlanetFilter::Make(search, session);
  const auto* fault = std::get_if<QueryFault>(&made);
  return fault != nullptr ? fault->Sentence : "";
}

std::vector<int> Found(const std::string& search, const GameSession& session,
                       const SearchFacts& facts) {
  const auto made = PlanetFilter::Make(search, session);
  EXPECT_TRUE(std::holds_alternative<PlanetFilter>(made))
      << search << ": " << FaultOf(search, session);
  if (!std::holds_alternative<PlanetFilter>(made)) return {-1};
  return FindPlanets(std::get<PlanetFilter>(made), session, facts);
}

// 1 is mine, 2 the Drask's, 3 the Drask Outcasts', sighted only; 4 was looked at and is empty; 5
// was never seen.
GameSession SmallGame() {
  GameBuilder game;
  game.Planet("Old Harrow", {1100, 1100}).OwnedBy("Vantari");
  game.With(Field::Population, "482000")
      .With(Field::HabValue, 88.0)
      .With(Field::Starbase, "Space Dock");
  game.With(Field::AgeText, kCurrentAge).With(Field::ReportAge, 0.0).With(Field::GateRange, 300.0);
  game.Planet("Kestrel", {1200, 1100}).OwnedBy("Drask").With(Field::Population, "90000");
  game.With(Field::AgeText, "  2 years old")
      .With(Field::ReportAge, 2.0)
      .With(Field::DefencePercent, "45%");
  game.Planet("base", {1300, 1100})
      .OwnedBy("Drask Outcasts")
      .With(Field::Population, "Uninhabited");
  game.With(Field::AgeText, "  9 years old")
      .With(Field::ReportAge, 9.0)
      .With(Field::IronMC, kUnknown);
  game.Planet("Örn", {1400, 1100}).With(Field::Population, "Uninhabited").With(Field::IronMC, "71");
  game.With(Field::AgeText, "  2 years old")
      .With(Field::ReportAge, 2.0)
      .With(Field::HabValue, -13.0);
  game.Planet("Cairn", {1500, 1100});
  GameSession session = game.Build();
  session.MyRaceName = "Vantari";
  session.Planet(3)[Field::HabValue] = 0.0;
  session.Planet(3).LeftOut().set(static_cast<std::size_t>(Field::HabValue));
  return session;
}

TEST(PlanetFilter, FindsWhatTheWordsSay) {
  const GameSession session = SmallGame();
  SearchFacts facts = FactsOf(session);
  facts.Selected = 2;
  facts.Changed = {false, false, true, false, true, false};
  const std::pair<const char*, std::vector<int>> cases[] = {
      {"", {1, 2, 3, 4, 5}},
      {"OLD", {1}},
      {"old harrow", {1}},
      {"\"d h\"", {1}},
      {"\"harrow old\"", {}},
      {"örn", {4}},
      {"base", {1}},
      {"\"base\"", {3}},
      {"BASE or \"Base\"", {1, 3}},
      {"mine", {1}},
      {"owned", {1, 2, 3}},
      {"gate", {1}},
      {"unexplored", {5}},
      {"changed", {2, 4}},
      {"owner:none", {4, 5}},
      {"owner:drask", {2}},
      {"owner:\"drask o\"", {3}},
      {"owner:van", {1}},
      {"base:dock", {1}},
      {"pop>100k", {1}},
      {"pop<=90k", {2, 4}},
      {"pop=0", {4}},
      {"unknown(pop)", {3, 5}},
      {"hab<50", {4}},
      {"not hab<50", {1, 2, 3, 5}},
      {"unknown(hab)", {2, 3, 5}},
      {"hab!=88%", {4}},
      {"age>=2 age<9", {2, 4}},
      {"iron>60", {4}},
      {"gate>=300", {1}},
      {"x=1300", {3}},
      {"near<=100", {1, 2}},
      {"near=0", {1}},
      {"dist>100", {4, 5}},
      {"near(kestrel, 100)", {1, 2, 3}},
      {"near(Old Harrow, 99.9)", {1}},
      {"not mine owned", {2, 3}},
      {"not (mine or owned)", {4, 5}},
      {"mine or owned age>5", {1, 3}},
      {"mine and owned or unexplored", {1, 5}},
      {"hab(Drask)>-200 or unknown(hab(Drask))", {1, 2, 3, 4, 5}},
  };
  for (const auto& [search, planets] : cases) {
    EXPECT_EQ(Found(search, session, facts), planets) << search;
  }
  EXPECT_EQ(Found("dist>=0 or changed", session, FactsOf(session)), std::vector<int>());
}

TEST(PlanetFilter, SaysWhichNameItDoesNotFind) {
  const GameSession session = SmallGame();
  const std::pair<const char*, const char*> cases[] = {
      {"owner:humanoid", "No race is called \"humanoid\"."},
      {"owner:dras", "Several races begin with \"dras\": Drask, Drask Outcasts."},
      {"owner:\"none\"", "No race is called \"none\"."},
      {"mine hab(x)>1", "No race is called \"x\"."},
      {"not (near(Kest, 5) or near(Nowhere, 5))", "No planet is called \"Nowhere\"."},
      {"owner:\"\"", "Several races begin with \"\": Vantari, Drask and others."}};
  for (const auto& [search, sentence] : cases) EXPECT_EQ(FaultOf(search, session), sentence);
}

// A search and, worked out another way, which planets it is about.
struct PlainSearch {
  std::string Text;
  std::function<bool(int planet)> Holds;
};

// Makes up searches about a game, and answers them planet by planet from the bare fields.
class SearchMaker {
 public:
  SearchMaker(const GameSession& session, int selected, std::uint32_t seed)
      : session_(session), selected_(selected), dice_(seed) {}

  PlainSearch Any(int depth) {
    switch (depth > 0 ? Roll(6) : 5) {
      case 0:
        return Joined(Any(depth - 1), Any(depth - 1), Roll(2) == 0 ? " " : " and ", true);
      case 1:
        return Joined(Any(depth - 1), Any(depth - 1), " or ", false);
      case 2: {
        PlainSearch inside = Any(depth - 1);
        return {"not (" + inside.Text + ")",
                [inside](int planet) { return !inside.Holds(planet); }};
      }
      default:
        return Word();
    }
  }

 private:
  std::size_t Roll(std::size_t sides) { return dice_() % sides; }
  const PlanetRecord& At(int planet) const { return session_.Planet(planet); }

  // The old-style report does not tell whose it is.
  bool IsMine(int planet) const {
    return !session_.MyRaceName.empty() && At(planet).Owner() == session_.MyRaceName;
  }

  static PlainSearch Joined(PlainSearch left, PlainSearch right, const std::string& joint,
                            bool both) {
    return {"(" + left.Text + ")" + joint + "(" + right.Text + ")", [=](int planet) {
              const bool first = left.Holds(planet);
              const bool second = right.Holds(planet);
              return both ? first && second : first || second;
            }};
  }

  PlainSearch Word() {
    switch (Roll(7)) {
      case 0:
        return Name();
      case 1:
        return Owner();
      case 2:
        return Flag();
      case 3:
        return NearPlanet();
      default:
        return Comparison();
    }
  }

  PlainSearch Name() {
    const std::string& name =
        At(1 + static_cast<int>(Roll(static_cast<std::size_t>(session_.PlanetCount)))).Name();
    const std::string part = InLowerCase(name.substr(Roll(name.size()), 1 + Roll(4)));
    return {"\"" + part + "\"", [this, part](int planet) {
              return InLowerCase(At(planet).Name()).find(part) != std::string::npos;
            }};
  }

  PlainSearch Owner() {
    if (Roll(3) == 0) {
      return {"owner:none", [this](int planet) { return At(planet).OwnerIndex() == 0; }};
    }
    const int player = 1 + static_cast<int>(Roll(static_cast<std::size_t>(session_.PlayerCount)));
    return {"owner:\"" + InLowerCase(session_.Player(player).Name()) + "\"",
            [this, player](int planet) { return At(planet).OwnerIndex() == player; }};
  }

  PlainSearch Flag() {
    switch (Roll(5)) {
      case 0:
        return {"mine", [this](int planet) { return IsMine(planet); }};
      case 1:
        return {"owned", [this](int planet) { return At(planet).OwnerIndex() > 0; }};
      case 2:
        return {"base", [this](int planet) {
                  const std::string& base = At(planet).Starbase();
                  return base != "" && base != "None";
                }};
      case 3:
        return {"gate", [this](int planet) { return At(planet).Field(35).Number() > 0; }};
      default:
        return {"unexplored", [this](int planet) { return At(planet).Field(7).Text().empty(); }};
    }
  }

  double Way(int from, int to) const {
    return std::hypot(At(from).X() - At(to).X(), At(from).Y() - At(to).Y());
  }

  PlainSearch NearPlanet() {
    const int centre = 1 + static_cast<int>(Roll(static_cast<std::size_t>(session_.PlanetCount)));
    const int reach = static_cast<int>(Roll(400));
    return {"near(" + At(centre).Name() + ", " + std::to_string(reach) + ")",
            [this, centre, reach](int planet) { return Way(centre, planet) <= reach; }};
  }

  // The words' numbers as the reports have them: one that does not stand there is not known.
  using Value = std::function<std::optional<double>(int planet)>;
  std::pair<std::string, Value> AnyValue() {
    static const std::pair<const char*, std::size_t> kFieldWords[] = {
        {"hab", 10},      {"terra", 25}, {"age", 24},  {"res", 13},  {"mines", 11}, {"fact", 12},
        {"def", 14},      {"soi", 9},    {"iron", 21}, {"bora", 22}, {"germ", 23},  {"siron", 15},
        {"sbora", 16},    {"sgerm", 17}, {"grav", 29}, {"temp", 30}, {"rad", 31},   {"gate", 35},
        {"gatemass", 39}, {"scan", 36},  {"pen", 37},  {"score", 38}};
    const std::size_t roll = Roll(std::size(kFieldWords) + 6);
    if (roll < std::size(kFieldWords)) {
      const auto [word, number] = kFieldWords[roll];
      return {word, [this, number = number](int planet) -> std::optional<double> {
                const FieldValue& field = At(planet).Field(number);
                const std::string text = FieldText(field);
                const bool isTold = text.find_first_of("0123456789") != std::string::npos;
                if (!isTold || At(planet).LeftOut()[number]) return std::nullopt;
                return field.Number();
              }};
    }
    const int race = 1 + static_cast<int>(Roll(static_cast<std::size_t>(session_.PlayerCount)));
    switch (roll - std::size(kFieldWords)) {
      case 0:
        return {"pop", [this](int planet) -> std::optional<double> {
                  const std::string text = FieldText(At(planet).Field(8));
                  if (text == "Uninhabited" && At(planet).OwnerIndex() == 0) return 0;
                  if (text.empty() || text == "Uninhabited") return std::nullopt;
                  return std::stod(text);
                }};
      case 1:
        return {"x", [this](int planet) { return At(planet).X() + 1000.0; }};
      case 2:
        return {"y", [this](int planet) { return 1.0 * session_.UniverseExtent - At(planet).Y(); }};
      case 3:
        return {"dist", [this](int planet) { return Way(selected_, planet); }};
      case 4:
        return {"near", [this](int planet) -> std::optional<double> {
                  double nearest = 1e9;
                  for (int other = 1; other <= session_.PlanetCount; ++other) {
                    if (IsMine(other)) nearest = std::min(nearest, Way(planet, other));
                  }
                  return nearest < 1e9 ? std::optional(nearest) : std::nullopt;
                }};
      default:
        return {"hab(" + session_.Player(race).Name() + ")",
                [this, race](int planet) -> std::optional<double> {
                  const int estimate = EstimatedHab(session_, race, planet);
                  return estimate == -100 ? std::nullopt : std::optional<double>(estimate);
                }};
    }
  }

  PlainSearch Comparison() {
    const auto [word, value] = AnyValue();
    if (Roll(8) == 0) {
      return {"unknown(" + word + ")", [value = value](int planet) { return !value(planet); }};
    }
    // Near a value that some planet has, so that few searches find all or nothing.
    const int planet = 1 + static_cast<int>(Roll(static_cast<std::size_t>(session_.PlanetCount)));
    const double number = std::floor(value(planet).value_or(30));
    const char* signs[] = {"=", "!=", "<", "<=", ">", ">="};
    const std::size_t sign = Roll(6);
    return {word + signs[sign] + NumberText(number), [=, value = value](int each) {
              const std::optional<double> known = value(each);
              if (!known) return false;
              const double difference = *known - number;
              const bool results[] = {difference == 0, difference != 0,
                                      difference<0, difference <= 0, difference> 0,
                                      difference >= 0};
              return results[sign];
            }};
  }

  const GameSession& session_;
  int selected_;
  std::mt19937 dice_;
};

TEST(PlanetFilter, AgreesWithAPlainPredicateOnAThousandSearches) {
  std::size_t found = 0;
  for (const int style : {kNewReportStyle, kOldReportStyle}) {
    const TempFolder folder;
    const GameSession session =
        LoadGenerated(folder, generator::GenerateGame({.Seed = 15, .Style = style}));
    SearchFacts facts = FactsOf(session);
    facts.Selected = 7;
    SearchMaker maker(session, facts.Selected, 100);
    for (int search = 0; search < 500; ++search) {
      const PlainSearch plain = maker.Any(3);
      std::vector<int> expected;
      for (int planet = 1; planet <= session.PlanetCount; ++planet) {
        if (plain.Holds(planet)) expected.push_back(planet);
      }
      ASSERT_EQ(Found(plain.Text, session, facts), expected) << plain.Text;
      const std::size_t all = static_cast<std::size_t>(session.PlanetCount);
      if (!expected.empty() && expected.size() < all) ++found;
    }
  }
  EXPECT_GT(found, 500) << "searches that tell planets apart";
}

}  // namespace
}  // namespace quorvane

#include "history/planet_changes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

namespace quorvane {
namespace {

PlanetRecord Planet(const char* name, const char* owner, int people, const char* starbase = "None",
                    double gate = 0, int age = 0) {
  PlanetRecord planet;
  planet[PlanetField::Name] = name;
  planet[PlanetField::Owner] = owner;
  planet[PlanetField::Population] = people;
  planet[PlanetField::Starbase] = starbase;
  planet[PlanetField::GateRange] = gate;
  planet[PlanetField::ReportAge] = age;
  planet[PlanetField::AgeText] = age == 0 ? "Current" : "old";
  return planet;
}

PlanetRecord Unexplored(const char* name) {
  PlanetRecord planet;
  planet[PlanetField::Name] = name;
  return planet;
}

GameSession Year(const std::vector<PlanetRecord>& planets) {
  GameSession session;
  session.CreatePlanetTable(static_cast<int>(planets.size()));
  std::ranges::copy(planets, session.PlanetTable.begin() + 1);
  session.MyRaceName = "Own";
  return session;
}

TEST(PlanetChangesTest, NameWhatBecameOfAPlanet) {
  struct Case {
    PlanetRecord Before, After;
    std::vector<PlanetChange> Changes;
  };
  PlanetRecord valued = Planet("A", "", 0, "None", 0, 3);
  valued[PlanetField::HabValue] = 45;
  using enum ChangeKind;
  const Case kCases[] = {
      {Planet("A", "Drask", 9000),
       Planet("A", "Own", 120),
       {{Taken, 1, "Drask", "Own", 9000, 120}}},
      {Planet("A", "Drask", 9000), Planet("A", "", 0), {{Lost, 1, "Drask", "", 9000, 0}}},
      {Planet("A", "", 0), Planet("A", "Own", 25), {{Settled, 1, "", "Own", 0, 25}}},
      {Unexplored("A"), Planet("A", "Own", 25, "Fort", 300), {{FirstSeen, 1, "", "Own", 0, 25}}},
      {Unexplored("A"), valued, {{Explored, 1, "", "", 0, 45}}},
      {Planet("A", "", 0), Unexplored("A"), {}},
      {Planet("A", "Own", 100),
       Planet("A", "Own", 119, "Fort", 300),
       {{StarbaseNew, 1, "Own", "Own", 0, 0}, {GateNew, 1, "Own", "Own", 0, 300}}},
      {Planet("A", "Own", 100, "Fort", 300),
       Planet("A", "Own", 120),
       {{StarbaseGone, 1, "Own", "Own", 0, 0},
        {GateGone, 1, "Own", "Own", 300, 0},
        {Population, 1, "Own", "Own", 100, 120}}},
      {Planet("A", "Own", 100), Planet("A", "Own", 81), {}},
      {Planet("A", "Own", 100), Planet("A", "Own", 80), {{Population, 1, "Own", "Own", 100, 80}}},
      {Planet("A", "", 0, "None", 0, 3), valued, {{HabKnown, 1, "", "", 0, 45}}},
      {Planet("A", "", 0, "None", 0, 3), Planet("A", "", 0), {{ReportYounger, 1, "", "", 3, 0}}},
      {Planet("A", "", 0), Planet("A", "", 0, "None", 0, 1), {}},
  };
  for (const Case& each : kCases) {
    EXPECT_EQ(FindPlanetChanges(Year({each.Before}), Year({each.After})), each.Changes)
        << &each - kCases;
  }
}

TEST(PlanetChangesTest, ComeByWeightThenOwnThenPeople) {
  const GameSession before = Year({Planet("A", "X", 100), Planet("B", "Y", 10), Planet("C", "X", 7),
                                   Planet("D", "", 0), Planet("E", "Own", 5)});
  const GameSession after = Year({Planet("A", "X", 200), Planet("B", "X", 10), Planet("C", "Y", 70),
                                  Planet("D", "Y", 9999), Planet("E", "X", 1)});
  std::vector<int> order;
  for (const PlanetChange& change : FindPlanetChanges(before, after)) {
    order.push_back(change.Planet);
  }
  EXPECT_EQ(order, (std::vector<int>{5, 3, 2, 4, 1}));
  EXPECT_EQ(FindPlanetChanges(before, after, "Own").size(), 1U);
}

// What a person would do with two lists and a ruler.
std::vector<PlanetChange> PlainChanges(const GameSession& before, const GameSession& after) {
  std::vector<PlanetChange> changes;
  for (int late = 1; late <= after.PlanetCount; ++late) {
    for (int early = 1; early <= before.PlanetCount; ++early) {
      const PlanetRecord& b = before.Planet(early);
      const PlanetRecord& a = after.Planet(late);
      const bool isSame = b.Name() == a.Name() && b.X() == a.X() && b.Y() == a.Y();
      if (!isSame || a.AgeText().empty()) continue;
      const auto add = [&](ChangeKind kind, double from, double to) {
        changes.push_back({kind, late, b.Owner(), a.Owner(), from, to});
      };
      const double people = b.Population(), now = a.Population();
      const double hab = a[PlanetField::HabValue].Number();
      if (b.AgeText().empty()) {
        if (a.Owner().empty()) add(ChangeKind::Explored, 0, hab);
        if (!a.Owner().empty()) add(ChangeKind::FirstSeen, 0, now);
        continue;
      }
      const std::size_t first = changes.size();
      if (b.Owner() != a.Owner() && a.Owner().empty()) add(ChangeKind::Lost, people, now);
      if (b.Owner() != a.Owner() && b.Owner().empty()) add(ChangeKind::Settled, people, now);
      if (b.Owner() != a.Owner() && !a.Owner().empty() && !b.Owner().empty()) {
        add(ChangeKind::Taken, people, now);
      }
      if (b.Owner() == a.Owner() && !a.Owner().empty() && now != people &&
          (now >= people * 1.2 || now <= people * 0.8)) {
        add(ChangeKind::Population, people, now);
      }
      if (!b.HasStarbase() && a.HasStarbase()) add(ChangeKind::StarbaseNew, 0, 0);
      if (b.HasStarbase() && !a.HasStarbase()) add(ChangeKind::StarbaseGone, 0, 0);
      const double gate = b[PlanetField::GateRange].Number();
      const double newGate = a[PlanetField::GateRange].Number();
      if (gate == 0 && newGate > 0) add(ChangeKind::GateNew, gate, newGate);
      if (gate > 0 && newGate == 0) add(ChangeKind::GateGone, gate, newGate);
      if (b[PlanetField::HabValue].IsEmpty() && !a[PlanetField::HabValue].IsEmpty()) {
        add(ChangeKind::HabKnown, 0, hab);
      }
      const double age = b[PlanetField::ReportAge].Number();
      const double newAge = a[PlanetField::ReportAge].Number();
      if (changes.size() == first && newAge < age) add(ChangeKind::ReportYounger, age, newAge);
    }
  }
  return changes;
}

// What comes first: the weightier kind, then what is the user's own, then what concerns more
// people.
bool IsInOrder(const std::vector<PlanetChange>& changes) {
  return std::ranges::is_sorted(changes, {}, [](const PlanetChange& change) {
    double people = 0;
    if (change.Kind <= ChangeKind::FirstSeen) people = std::max(change.Before, change.After);
    if (change.Kind == ChangeKind::Population) people = std::abs(change.After - change.Before);
    const bool isOwn = change.From == "Own" || change.To == "Own";
    return std::tuple(change.Kind, isOwn ? 0 : 1, -people, change.Planet);
  });
}

std::vector<std::string> Told(const std::vector<PlanetChange>& changes) {
  std::vector<std::string> told;
  for (const PlanetChange& change : changes) {
    told.push_back(std::to_string(static_cast<int>(change.Kind)) + " " +
                   std::to_string(change.Planet) + change.From + ">" + change.To + " " +
                   NumberText(change.Before) + " " + NumberText(change.After));
  }
  std::ranges::sort(told);
  return told;
}

TEST(PlanetChangesTest, EqualAPlainComparisonOfRandomGames) {
  std::mt19937 random(7);
  const auto upTo = [&random](int most) { return static_cast<int>(random() % (most + 1)); };
  const auto randomYear = [&](bool isShuffled) {
    const char* kOwners[] = {"", "Own", "Drask", "Vantari"};
    const char* kBases[] = {"None", "", "Space Dock"};
    std::vector<PlanetRecord> planets;
    for (int number = 0; number < 30; ++number) {
      const std::string name = "Planet " + std::to_string(number);
      if (upTo(4) == 0) {
        planets.push_back(Unexplored(name.c_str()));
      } else {
        planets.push_back(Planet(name.c_str(), kOwners[upTo(3)], 10 * upTo(9), kBases[upTo(2)],
                                 100 * upTo(2), upTo(3)));
        if (upTo(1) == 0) planets.back()[PlanetField::HabValue] = upTo(100);
      }
      planets.back()[PlanetField::X] = upTo(9) == 0 ? 1 : number;
    }
    if (isShuffled) std::ranges::shuffle(planets, random);
    return Year(planets);
  };
  for (int pair = 0; pair < 200; ++pair) {
    const GameSession before = randomYear(pair % 2 == 0);
    const GameSession after = randomYear(pair % 4 < 2);
    const std::vector<PlanetChange> changes = FindPlanetChanges(before, after);
    ASSERT_EQ(Told(changes), Told(PlainChanges(before, after))) << pair;
    ASSERT_TRUE(IsInOrder(changes)) << pair;
  }
}

}  // namespace
}  // namespace quorvane

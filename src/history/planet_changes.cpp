#include "history/planet_changes.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace quorvane {
namespace {

using PlanetKey = std::tuple<std::string_view, int, int>;

PlanetKey KeyOf(const PlanetRecord& planet) { return {planet.Name(), planet.X(), planet.Y()}; }

// Finds planets of the earlier year. Mostly the map is the same one, and so are the numbers.
class EarlierPlanets {
 public:
  explicit EarlierPlanets(const GameSession& session) : session_(session) {}

  const PlanetRecord* Find(int number, const PlanetRecord& planet) {
    if (number <= session_.PlanetCount && KeyOf(session_.Planet(number)) == KeyOf(planet)) {
      return &session_.Planet(number);
    }
    if (index_.empty()) {
      for (const PlanetRecord& each : session_.Planets()) index_.emplace(KeyOf(each), &each);
    }
    const auto found = index_.find(KeyOf(planet));
    return found != index_.end() ? found->second : nullptr;
  }

 private:
  const GameSession& session_;
  std::map<PlanetKey, const PlanetRecord*> index_;
};

double NumberOf(const PlanetRecord& planet, PlanetField field) { return planet[field].Number(); }

// Tells of one planet what became of it.
class Comparison {
 public:
  Comparison(const PlanetRecord& before, const PlanetRecord& after, int number,
             std::vector<PlanetChange>& changes)
      : before_(before), after_(after), number_(number), changes_(changes) {}

  void Compare() {
    if (!after_.IsExplored()) return;
    if (!before_.IsExplored()) return CompareUnexplored();
    const std::size_t others = changes_.size();
    ComparePeople();
    CompareStarbases();
    CompareGates();
    if (before_[PlanetField::HabValue].IsEmpty() && !after_[PlanetField::HabValue].IsEmpty()) {
      Add(ChangeKind::HabKnown, 0, NumberOf(after_, PlanetField::HabValue));
    }
    const bool isAgeKnown = !before_[PlanetField::ReportAge].IsEmpty();
    const double age = NumberOf(before_, PlanetField::ReportAge);
    const double newAge = NumberOf(after_, PlanetField::ReportAge);
    if (changes_.size() == others && isAgeKnown && newAge < age) {
      Add(ChangeKind::ReportYounger, age, newAge);
    }
  }

 private:
  void CompareUnexplored() {
    if (!after_.Owner().empty()) {
      Add(ChangeKind::FirstSeen, 0, after_.Population());
    } else {
      Add(ChangeKind::Explored, 0, NumberOf(after_, PlanetField::HabValue));
    }
  }

  void ComparePeople() {
    const double people = before_.Population();
    const double newPeople = after_.Population();
    if (before_.Owner() != after_.Owner()) {
      Add(before_.Owner().empty()  ? ChangeKind::Settled
          : after_.Owner().empty() ? ChangeKind::Lost
                                   : ChangeKind::Taken,
          people, newPeople);
    } else if (!after_.Owner().empty() && people != newPeople &&
               5 * std::fabs(newPeople - people) >= people) {
      Add(ChangeKind::Population, people, newPeople);
    }
  }

  void CompareStarbases() {
    if (before_.HasStarbase() == after_.HasStarbase()) return;
    Add(after_.HasStarbase() ? ChangeKind::StarbaseNew : ChangeKind::StarbaseGone, 0, 0);
  }

  void CompareGates() {
    const double range = NumberOf(before_, PlanetField::GateRange);
    const double newRange = NumberOf(after_, PlanetField::GateRange);
    if ((range > 0) == (newRange > 0)) return;
    Add(newRange > 0 ? ChangeKind::GateNew : ChangeKind::GateGone, range, newRange);
  }

  void Add(ChangeKind kind, double before, double after) {
    changes_.push_back({kind, number_, before_.Owner(), after_.Owner(), before, after});
  }

  const PlanetRecord& before_;
  const PlanetRecord& after_;
  int number_;
  std::vector<PlanetChange>& changes_;
};

// How many people a change of owners or of the population concerns.
double PeopleOf(const PlanetChange& change) {
  if (change.Kind == ChangeKind::Population) return std::fabs(change.After - change.Before);
  return change.Kind <= ChangeKind::FirstSeen ? std::max(change.Before, change.After) : 0;
}

}  // namespace

std::vector<PlanetChange> FindPlanetChanges(const GameSession& before, const GameSession& after,
                                            std::string_view race) {
  std::vector<PlanetChange> changes;
  EarlierPlanets earlier(before);
  for (int number = 1; number <= after.PlanetCount; ++number) {
    const PlanetRecord& planet = after.Planet(number);
    const PlanetRecord* const known = earlier.Find(number, planet);
    if (known == nullptr) continue;
    const bool isAsked = race.empty() || known->Owner() == race || planet.Owner() == race;
    if (isAsked) Comparison(*known, planet, number, changes).Compare();
  }
  const auto isOwn = [&after](const PlanetChange& change) {
    return !after.MyRaceName.empty() &&
           (change.From == after.MyRaceName || change.To == after.MyRaceName);
  };
  std::ranges::stable_sort(changes, {}, [&isOwn](const PlanetChange& change) {
    return std::tuple(change.Kind, !isOwn(change), -PeopleOf(change));
  });
  return changes;
}

}  // namespace quorvane

#include "generator/expansion.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace quorvane::generator {
namespace {

constexpr int kYearsOfSettling = 50;
constexpr int kYearsOfPeace = 15;
constexpr int kYearsOfDoubt = 8;
constexpr int kYearsBetweenFalls = 9;  // of one race of a war and of the next
constexpr int kNowhere = std::numeric_limits<int>::max() / 4;

struct Empire {
  std::size_t Home = 0;
  int Planets = 0;
  int Reach = 0;                      // how far from home it settles, light years
  std::vector<int> DistanceFromEdge;  // of every planet to the empire's nearest one
  bool IsHemmedIn = false;
};

struct Centre {
  int X = 0;
  int Y = 0;
};

std::size_t NearestPlanet(const std::vector<Planet>& planets, const Centre& centre) {
  Planet point;
  point.X = centre.X;
  point.Y = centre.Y;
  const auto nearest = std::ranges::min_element(planets, {}, [&](const Planet& planet) {
    return planet.IsHomeWorld ? kNowhere : DistanceBetween(planet, point);
  });
  return static_cast<std::size_t>(nearest - planets.begin());
}

// Moves every centre to the middle of the planets that are nearer to it than to the others.
void SpreadOut(const std::vector<Planet>& planets, std::vector<Centre>& centres) {
  struct Sum {
    long long X = 0, Y = 0, Count = 0;
  };
  std::vector<Sum> sums(centres.size());
  for (const Planet& planet : planets) {
    const auto nearest = std::ranges::min_element(centres, {}, [&](const Centre& centre) {
      const long long dx = planet.X - centre.X;
      const long long dy = planet.Y - centre.Y;
      return dx * dx + dy * dy;
    });
    Sum& sum = sums[static_cast<std::size_t>(nearest - centres.begin())];
    sum = {sum.X + planet.X, sum.Y + planet.Y, sum.Count + 1};
  }
  for (std::size_t i = 0; i < centres.size(); ++i) {
    if (sums[i].Count == 0) continue;
    centres[i] = {static_cast<int>(sums[i].X / sums[i].Count),
                  static_cast<int>(sums[i].Y / sums[i].Count)};
  }
}

// Nobody comes back soon to where a colony has failed.
bool IsFree(const Planet& planet, int year) {
  if (planet.History.empty()) return true;
  const Tenure& latest = planet.History.back();
  return latest.Race < 0 && latest.Year + kYearsOfDoubt <= year;
}

class History {
 public:
  History(Universe& universe, Random& random, const Course& course)
      : universe_(universe), random_(random), course_(course) {}

  void Play() {
    MeasureSpace();
    FoundEmpires();
    for (int year = kFirstYear + 1; year <= universe_.Year; ++year) {
      SettleUntil(PlanetsSettledBy(year), year);
    }
    const int settled = TotalPlanets();
    for (int tries = settled; tries > 0; --tries) WageWar();
    for (int year = 1; year <= course_.YearsAhead; ++year) PlayOn(universe_.Year + year);
  }

 private:
  Planet& PlanetAt(std::size_t index) { return universe_.Planets[index]; }

  void MeasureSpace() {
    const auto [left, right] = std::ranges::minmax_element(universe_.Planets, {}, &Planet::X);
    const auto [bottom, top] = std::ranges::minmax_element(universe_.Planets, {}, &Planet::Y);
    const long long area =
        static_cast<long long>(right->X - left->X + 1) * (top->Y - bottom->Y + 1);
    spacing_ = WholeRoot(area / static_cast<long long>(universe_.Planets.size())) + 1;
    region_ = WholeRoot(area / static_cast<long long>(universe_.Races.size())) + 1;
  }

  void FoundEmpires() {
    std::vector<Centre> centres(universe_.Races.size());
    for (Centre& centre : centres) {
      const Planet& planet = random_.OneOf(universe_.Planets);
      centre = {planet.X, planet.Y};
    }
    for (int round = 0; round < 6; ++round) SpreadOut(universe_.Planets, centres);
    for (std::size_t race = 0; race < centres.size(); ++race) {
      Empire empire;
      empire.Home = NearestPlanet(universe_.Planets, centres[race]);
      empire.Reach = region_ * universe_.Races[race].Vigour / 155;
      empire.DistanceFromEdge.assign(universe_.Planets.size(), kNowhere);
      empires_.push_back(empire);
      MakeHomeWorld(race);
      Claim(race, empire.Home, kFirstYear);
    }
  }

  // A race came up on the best world that there is for it, and on a rich one.
  void MakeHomeWorld(std::size_t race) {
    Planet& home = PlanetAt(empires_[race].Home);
    home.IsHomeWorld = true;
    for (std::size_t kind = 0; kind < kEnvironmentKinds; ++kind) {
      const HabRange& range = universe_.Races[race].Ranges[kind];
      if (!range.IsImmune) home.Original[kind] = range.Centre();
    }
    for (int& concentration : home.Concentrations) concentration = std::max(concentration, 45);
  }

  void Claim(std::size_t race, std::size_t index, int year) {
    LeaveToOthers(index);
    Empire& empire = empires_[race];
    PlanetAt(index).History.push_back({.Year = year, .Race = static_cast<int>(race)});
    ++empire.Planets;
    for (std::size_t i = 0; i < universe_.Planets.size(); ++i) {
      empire.DistanceFromEdge[i] = std::min(empire.DistanceFromEdge[i],
                                            DistanceBetween(universe_.Planets[i], PlanetAt(index)));
    }
  }

  void LeaveToOthers(std::size_t index) {
    const std::vector<Tenure>& history = PlanetAt(index).History;
    if (history.empty() || history.back().Race < 0) return;
    --empires_[static_cast<std::size_t>(history.back().Race)].Planets;
  }

  int PlanetsSettledBy(int year) const {
    const int homes = static_cast<int>(universe_.Races.size());
    const int most = static_cast<int>(universe_.Planets.size()) * course_.SettledPercent / 100;
    const int years = std::min(year - kFirstYear, kYearsOfSettling);
    // Slowly at first and again at last, when the good planets have gone.
    const int progress = years * years * (3 * kYearsOfSettling - 2 * years);
    constexpr int kDone = kYearsOfSettling * kYearsOfSettling * kYearsOfSettling;
    return homes +
           static_cast<int>(static_cast<long long>(std::max(most - homes, 0)) * progress / kDone);
  }

  int TotalPlanets() const {
    int total = 0;
    for (const Empire& empire : empires_) total += empire.Planets;
    return total;
  }

  void SettleUntil(int wanted, int year) {
    for (int total = TotalPlanets(); total < wanted;) {
      const std::optional<std::size_t> race = NextToSettle(year);
      if (!race) return;
      const std::optional<std::size_t> planet = BestFreePlanet(*race, year);
      if (!planet) {
        empires_[*race].IsHemmedIn = true;
        continue;
      }
      if (PlanetAt(*planet).History.empty()) SuitColony(*race, *planet);
      Claim(*race, *planet, year);
      ++total;
    }
  }

  // The empire that lags furthest behind what its vigour promises.
  std::optional<std::size_t> NextToSettle(int year) const {
    std::optional<std::size_t> next;
    int fewest = kNowhere;
    for (std::size_t race = 0; race < empires_.size(); ++race) {
      const int size = empires_[race].Planets * 1000 / universe_.Races[race].Vigour;
      if (IsBeaten(race) || IsFalling(race, year)) continue;
      if (empires_[race].IsHemmedIn || size >= fewest) continue;
      fewest = size;
      next = race;
    }
    return next;
  }

  std::optional<std::size_t> BestFreePlanet(std::size_t race, int year) {
    const Empire& empire = empires_[race];
    std::optional<std::size_t> best;
    int lowestCost = kNowhere;
    for (std::size_t i = 0; i < universe_.Planets.size(); ++i) {
      const Planet& planet = universe_.Planets[i];
      const int hop = empire.DistanceFromEdge[i];
      if (!IsFree(planet, year) || hop > 2 * spacing_) continue;
      const int fromHome = DistanceBetween(planet, universe_.Planets[empire.Home]);
      if (fromHome > empire.Reach) continue;
      const int value = HabValue(universe_.Races[race].Ranges, planet.Original);
      const int cost = 2 * hop + fromHome + (100 - value) * spacing_ / 100;
      if (cost < lowestCost) {
        lowestCost = cost;
        best = i;
      }
    }
    return best;
  }

  // Races settle where they can live. What lies outside their ranges becomes a planet inside them,
  // except for a few outposts just beyond.
  void SuitColony(std::size_t race, std::size_t index) {
    Planet& planet = PlanetAt(index);
    planet.IsBackwater = false;
    for (std::size_t kind = 0; kind < kEnvironmentKinds; ++kind) {
      const HabRange& range = universe_.Races[race].Ranges[kind];
      int& position = planet.Original[kind];
      if (range.Includes(position)) continue;
      const bool isOutpost = random_.Chance(6);
      position = isOutpost ? std::clamp(position, range.Low - 4, range.High + 4)
                           : random_.Between(range.Low + 2, range.High - 2);
      position = std::clamp(position, 1, 99);
    }
  }

  std::size_t AnyPlanet() {
    return static_cast<std::size_t>(
        random_.Between(0, static_cast<int>(universe_.Planets.size()) - 1));
  }

  void WageWar() {
    const int peaceUntil = kFirstYear + kYearsOfPeace;
    if (universe_.Year <= peaceUntil) return;
    const std::size_t index = AnyPlanet();
    Attack(index, std::max(universe_.Year - random_.Between(0, 12), peaceUntil));
  }

  // One planet at a border changes hands, if the new owner can live there at all.
  void Attack(std::size_t index, int year) {
    const Planet& planet = universe_.Planets[index];
    if (planet.IsHomeWorld || planet.History.empty() || planet.History.back().Year >= year) return;
    if (planet.History.back().Race < 0) return;
    std::optional<std::size_t> winner;
    int nearest = spacing_ * 5 / 2;
    for (std::size_t race = 0; race < empires_.size(); ++race) {
      const bool isOwner = planet.History.back().Race == static_cast<int>(race);
      const int distance = empires_[race].DistanceFromEdge[index];
      if (isOwner || IsBeaten(race) || IsFalling(race, year) || distance >= nearest) continue;
      if (HabValue(universe_.Races[race].Ranges, planet.Original) < -12) continue;
      nearest = distance;
      winner = race;
    }
    if (winner) Claim(*winner, index, year);
  }

  // One year after the universe's own: the empires reach further out for what is still free.
  void PlayOn(int year) {
    const int planets = static_cast<int>(universe_.Planets.size());
    for (Empire& empire : empires_) {
      empire.Reach += spacing_ / 4;
      empire.IsHemmedIn = false;
    }
    SettleUntil(TotalPlanets() + std::max(2, planets / 50), year);
    if (course_.IsWar) Fight(year);
    for (int tries = planets / 60 + 1; tries > 0; --tries) {
      if (random_.Chance(50)) Attack(AnyPlanet(), year);
      if (random_.Chance(25)) GiveUp(AnyPlanet(), year);
    }
  }

  // The fronts move, and who cannot hold out any longer loses planet after planet, its home last.
  void Fight(int year) {
    const int planets = static_cast<int>(universe_.Planets.size());
    for (int tries = planets / 8; tries > 0; --tries) Attack(AnyPlanet(), year);
    for (std::size_t race = 0; race < empires_.size(); ++race) {
      if (IsFalling(race, year)) Overrun(race, year);
    }
  }

  bool IsBeaten(std::size_t race) const { return empires_[race].Planets == 0; }

  // Every second race does not live through a long war.
  bool IsFalling(std::size_t race, int year) const {
    const int years = year - universe_.Year;
    return course_.IsWar && race % 2 == 1 && static_cast<int>(race) != course_.Survivor &&
           !IsBeaten(race) && years > static_cast<int>(race / 2) * kYearsBetweenFalls;
  }

  void Overrun(std::size_t race, int year) {
    int losses = empires_[race].Planets / 4 + 1;
    for (std::size_t index = 0; index < universe_.Planets.size() && losses > 0; ++index) {
      const Planet& planet = universe_.Planets[index];
      const bool isHeld = planet.OwnerIn(year) == static_cast<int>(race);
      const bool isSpared = planet.IsHomeWorld && empires_[race].Planets > 1;
      if (!isHeld || isSpared || planet.History.back().Year >= year) continue;
      Claim(NearestEnemy(race, index), index, year);
      --losses;
    }
  }

  std::size_t NearestEnemy(std::size_t race, std::size_t index) const {
    std::size_t enemy = static_cast<std::size_t>(course_.Survivor);
    for (std::size_t other = 0; other < empires_.size(); ++other) {
      if (other == race || IsBeaten(other)) continue;
      const auto distance = [&](std::size_t each) {
        return empires_[each].DistanceFromEdge[index];
      };
      if (distance(other) < distance(enemy)) enemy = other;
    }
    return enemy;
  }

  // Colonies that never flourished are given up; what flourishes is too dear to its owner.
  void GiveUp(std::size_t index, int year) {
    Planet& planet = PlanetAt(index);
    const Tenure* tenure = planet.TenureIn(year);
    if (planet.IsHomeWorld || tenure == nullptr || tenure->Year >= year) return;
    const Race& owner = universe_.Races[static_cast<std::size_t>(tenure->Race)];
    if (HabValue(owner.Ranges, planet.Original) > 40) return;
    LeaveToOthers(index);
    planet.History.push_back({.Year = year, .Race = -1});
  }

  Universe& universe_;
  Random& random_;
  const Course& course_;
  std::vector<Empire> empires_;
  int spacing_ = 0;  // typical distance of two neighbouring planets
  int region_ = 0;   // side of the square that every race would get of an even division
};

}  // namespace

void PlayHistory(Universe& universe, Random& random, const Course& course) {
  History(universe, random, course).Play();
}

}  // namespace quorvane::generator

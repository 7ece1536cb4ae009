#include "generator/planet_state.h"

#include <algorithm>
#include <span>

namespace quorvane::generator {
namespace {

constexpr int kColonistsPerPercent = 10000;  // a planet of 100 percent feeds a million
constexpr int kFullDefence = 9792;           // hundredths of a percent that all defences stop
constexpr int kDockPopulation = 120000;

int Capacity(const Planet& planet, const Race& owner, const Environment& current) {
  const int value = HabValue(owner.Ranges, current);
  // Outposts are supplied from elsewhere.
  if (value <= 0) return 12000 + planet.GrowthRoll * 400;
  const int capacity = std::max(value, 5) * kColonistsPerPercent;
  return owner.LivesOnStarbases() ? 2 * capacity : capacity;
}

int FirstColonists(const Planet& planet, const Tenure& tenure) {
  if (planet.IsHomeWorld && tenure.Year == kFirstYear) return 100000;
  return 10000 + planet.GrowthRoll * 600;
}

// Growth at the race's rate, which falls once a quarter of the planet is full.
int Grown(int population, int capacity, int growthPercent, int value, int years) {
  constexpr int kYearsToFill = 150;
  const long long rate = static_cast<long long>(growthPercent) * std::clamp(value, 35, 100);
  long long people = population;
  for (int year = std::min(years, kYearsToFill); year > 0 && people < capacity; --year) {
    long long growth = people * rate / 10000;
    const long long fullness = people * 100 / capacity;
    if (fullness > 25) growth = growth * 16 * (100 - fullness) * (100 - fullness) / 90000;
    people += growth;
  }
  return static_cast<int>(std::min<long long>(people, capacity) / 100 * 100);
}

// Every colony of such a race is a starbase, and the base decides how many can live on it.
std::string BaseToLiveOn(int population) {
  if (population <= 150000) return "Starter Colony";
  if (population <= 250000) return "Orbital Fort";
  if (population <= 500000) return "Space Dock";
  if (population <= 1000000) return "Space Station";
  return population <= 2000000 ? "Ultra Station" : "Death Star";
}

std::string StarbaseOf(const Planet& planet, const PlanetState& state) {
  if (state.Owner->LivesOnStarbases()) return BaseToLiveOn(state.Population);
  const int roll = planet.StarbaseRoll;
  if (planet.IsHomeWorld && state.Population < 600000) return "Space Station";
  if (planet.IsHomeWorld) return roll < 25 ? "Death Star" : "Ultra Station";
  if (state.Population < 40000) return roll < 8 ? "Orbital Fort" : "";
  if (state.Population < kDockPopulation) return roll < 35 ? "Orbital Fort" : "";
  if (roll >= 75) return "";
  if (roll < 12) return state.Owner->StarbaseDesign;
  return state.Population < 350000 ? "Space Dock" : "Space Station";
}

void BuildUp(const Planet& planet, int years, PlanetState& state) {
  const Race& owner = *state.Owner;
  const int builtPercent = std::min(100, 25 + 5 * years);
  const int operable = state.Population / 1000;
  const int root = WholeRoot(state.Population);
  if (owner.LivesOnStarbases()) {
    state.Resources = std::max(1, root * 11 / 10);
  } else {
    state.Mines = operable * builtPercent / 100;
    state.Factories = operable * std::min(100, builtPercent + 8) / 100;
    state.Resources = std::max(1, state.Population / owner.ColonistsPerResource +
                                      state.Factories * owner.FactoryOutput / 10);
    const int defences =
        std::min({100, state.Population / 4000, (years + 2) * (planet.StockRoll + 20) / 40});
    state.DefenceHundredths = kFullDefence * (200 - defences) / 100 * defences / 100;
  }
  const int miners = owner.LivesOnStarbases() ? root / 4 : state.Mines * owner.MineOutput / 10;
  for (std::size_t kind = 0; kind < kMineralKinds; ++kind) {
    state.MiningRates[kind] = miners * planet.Concentrations[kind] / 100;
    const int quartersOfYear = planet.StockRoll * (static_cast<int>(kind) + 3) % 17 + 1;
    state.Stored[kind] = state.MiningRates[kind] * quartersOfYear / 4 + planet.GrowthRoll / 3;
  }
}

void Equip(const Planet& planet, int years, PlanetState& state) {
  const Race& owner = *state.Owner;
  const bool hasDock = !state.Starbase.empty() && state.Starbase != "Orbital Fort" &&
                       state.Starbase != "Starter Colony";
  if (hasDock && owner.HasGates() && (planet.IsHomeWorld || planet.GateRoll < 65)) {
    state.Stargate = owner.Gates[planet.GateRoll < 40 ? 0 : 1];
  }
  const bool seesNothing = owner.LivesOnStarbases() || years < 2;
  if (planet.IsHomeWorld || !seesNothing) state.PlanetScanner = owner.PlanetScanner;
}

}  // namespace

PlanetState StateIn(const Universe& universe, const Planet& planet, int year) {
  PlanetState state;
  state.Current = planet.Original;
  const Tenure* tenure = planet.TenureIn(year);
  if (tenure == nullptr) return state;
  const Race& owner = universe.Races[static_cast<std::size_t>(tenure->Race)];
  const int years = year - tenure->Year;
  state.Owner = &owner;
  state.Current =
      Terraformed(owner.Ranges, planet.Original, std::min(owner.TerraformSteps, years / 2));
  state.Capacity = Capacity(planet, owner, state.Current);
  state.Population = Grown(FirstColonists(planet, *tenure), state.Capacity, owner.GrowthPercent,
                           HabValue(owner.Ranges, state.Current), years);
  state.Starbase = StarbaseOf(planet, state);
  BuildUp(planet, years, state);
  Equip(planet, years, state);
  return state;
}

}  // namespace quorvane::generator

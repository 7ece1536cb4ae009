#include "rules/player_statistics.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <unordered_set>

#include "model/rounding.h"
#include "rules/race_ranges.h"

namespace quorvane {
namespace {

constexpr double kLargePopulation = 245000;

// The player record's total of a planet field.
struct Total {
  PlayerField Sum;
  PlanetField Of;
  double Divisor;
};

constexpr Total kTotals[] = {
    {PlayerField::TotalPopulation, PlanetField::Population, 1},
    {PlayerField::TotalMines, PlanetField::Mines, 1},
    {PlayerField::TotalFactories, PlanetField::Factories, 1},
    {PlayerField::TotalResources, PlanetField::Resources, 1},
    {PlayerField::TotalIron, PlanetField::StoredIron, 1000},
    {PlayerField::TotalBora, PlanetField::StoredBora, 1000},
    {PlayerField::TotalGerm, PlanetField::StoredGerm, 1000},
};

void GatherPlayer(GameSession& session, int number) {
  int planets = 0;
  int largePlanets = 0;
  double sums[std::size(kTotals)] = {};
  for (const PlanetRecord& planet : session.Planets()) {
    if (planet.OwnerIndex() != number) continue;
    ++planets;
    if (planet.Population() > kLargePopulation) ++largePlanets;
    for (std::size_t t = 0; t < std::size(kTotals); ++t) sums[t] += planet[kTotals[t].Of].Number();
  }
  PlayerRecord& player = session.Player(number);
  player[PlayerField::PlanetsOwned] = planets;
  player[PlayerField::LargePlanets] = largePlanets;
  for (std::size_t t = 0; t < std::size(kTotals); ++t) {
    player[kTotals[t].Sum] = sums[t] / kTotals[t].Divisor;
  }
  ResetHabRanges(player);
  player[PlayerField::ColourSlot] = number;
}

}  // namespace

void DiscoverPlayers(GameSession& session) {
  session.PlayerCount = 0;
  std::unordered_set<std::string_view> leftOut;  // a damaged report may name thousands
  for (PlanetRecord& planet : session.Planets()) {
    const std::string& owner = planet.Owner();
    int player = owner.empty() ? 0 : session.FindPlayerByName(owner);
    if (!owner.empty() && player == 0) {
      if (session.PlayerCount < kMaxPlayers) {
        player = ++session.PlayerCount;
        session.Player(player)[PlayerField::Name] = owner;
      } else if (leftOut.insert(owner).second) {
        session.OwnersWithoutRecord.push_back(owner);
      }
    }
    planet[PlanetField::OwnerIndex] = player;
  }
}

void GatherStatistics(GameSession& session) {
  for (int player = 1; player <= session.PlayerCount; ++player) GatherPlayer(session, player);
}

void ConvertTerritories(GameSession& session) {
  const double gridSteps = session.GridSize;
  const double side = session.UniverseExtent - kUniverseOrigin;
  for (PlayerRecord& player : session.Players()) {
    FieldValue& territory = player[PlayerField::Territory];
    // Divided first: 507 points of a universe of 1200 light years count as 1727, not as 1728.
    territory = FloorToWhole32(territory.Number() / (gridSteps * gridSteps) * (side * side));
  }
}

}  // namespace quorvane

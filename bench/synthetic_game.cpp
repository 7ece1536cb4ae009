#include "synthetic_game.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <random>
#include <vector>

#include "rules/sphere_of_influence.h"

namespace quorvane {
namespace {

constexpr int kSmallestSettledRadius = 5;

struct Place {
  int X = 0;
  int Y = 0;
};

// The standard distributions differ between libraries, the engine does not.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : engine_(seed) {}

  /// 0 (included) … 1 (excluded).
  double Fraction() { return static_cast<double>(engine_()) / 4294967296.0; }
  int Below(int limit) { return static_cast<int>(Fraction() * limit); }
  Place PlaceIn(int width) {
    const int x = Below(width);
    return {x, Below(width)};
  }

 private:
  std::mt19937 engine_;
};

double Distance(const Place& a, const Place& b) {
  const double dx = a.X - b.X;
  const double dy = a.Y - b.Y;
  return std::sqrt(dx * dx + dy * dy);
}

// Home worlds lie apart: each is the one of a few random places that has most room around it.
std::vector<Place> ChooseHomeWorlds(const InfluenceGameShape& shape, Dice& dice) {
  constexpr int kCandidates = 30;
  std::vector<Place> homeWorlds;
  const auto room = [&](const Place& place) {
    double nearest = shape.Width;
    for (const Place& other : homeWorlds) nearest = std::min(nearest, Distance(place, other));
    return nearest;
  };
  while (homeWorlds.size() < static_cast<std::size_t>(shape.Players)) {
    Place best = dice.PlaceIn(shape.Width);
    for (int i = 1; i < kCandidates; ++i) {
      const Place candidate = dice.PlaceIn(shape.Width);
      if (room(candidate) > room(best)) best = candidate;
    }
    homeWorlds.push_back(best);
  }
  return homeWorlds;
}

// The player whose home world is nearest, give or take: borders are ragged.
int ChooseOwner(const Place& place, const std::vector<Place>& homeWorlds, Dice& dice) {
  int owner = 0;
  double shortest = 0;
  for (std::size_t i = 0; i < homeWorlds.size(); ++i) {
    const double distance = Distance(place, homeWorlds[i]) * (1 + 0.4 * dice.Fraction());
    if (owner == 0 || distance < shortest) {
      owner = static_cast<int>(i) + 1;
      shortest = distance;
    }
  }
  return owner;
}

int RadiusOf(double population, int soiSetting, Dice& dice) {
  constexpr std::string_view kDefences[] = {"97.92%", "76.21%", "38.50%", "0.00%", kUnknown};
  const SphereInputs inputs = {.Population = population,
                               .Starbase = dice.Below(3) == 0 ? "Space Station" : kNoStarbase,
                               .Defence = kDefences[dice.Below(5)],
                               .SoiSetting = soiSetting};
  return std::max(SphereRadius(inputs), kSmallestSettledRadius);
}

void Settle(PlanetRecord& planet, int owner, double population, int soiSetting, Dice& dice) {
  planet[PlanetField::OwnerIndex] = owner;
  planet[PlanetField::Population] = population;
  planet[PlanetField::SoiRadius] = RadiusOf(population, soiSetting, dice);
}

// Many colonies are young, few are as full as a home world.
double ColonyPopulation(double largest, Dice& dice) {
  const double share = dice.Fraction();
  return largest * share * share;
}

}  // namespace

GameSession MakeInfluenceGame(const InfluenceGameShape& shape) {
  Dice dice(shape.Seed);
  GameSession session;
  session.SoiSetting = shape.SoiSetting;
  session.PlayerCount = shape.Players;
  session.UniverseExtent = shape.Width + kUniverseOrigin;
  session.GridCellSize = shape.Width / 650.0;
  session.GridSize = static_cast<int>(std::floor(shape.Width / session.GridCellSize));
  session.CreatePlanetTable(shape.Planets);
  const std::vector<Place> homeWorlds = ChooseHomeWorlds(shape, dice);
  for (int i = 1; i <= shape.Planets; ++i) {
    const bool isHomeWorld = i <= shape.Players;
    const Place place =
        isHomeWorld ? homeWorlds.at(static_cast<std::size_t>(i) - 1) : dice.PlaceIn(shape.Width);
    PlanetRecord& planet = session.Planet(i);
    planet[PlanetField::Number] = i;
    planet[PlanetField::X] = place.X;
    planet[PlanetField::Y] = place.Y;
    planet[PlanetField::OwnerIndex] = 0;
    if (isHomeWorld) {
      Settle(planet, i, shape.LargestPopulation, shape.SoiSetting, dice);
    } else if (shape.Players > 0 && dice.Fraction() < shape.SettledShare) {
      const int owner =
          shape.Clustered ? ChooseOwner(place, homeWorlds, dice) : 1 + dice.Below(shape.Players);
      Settle(planet, owner, ColonyPopulation(shape.LargestPopulation, dice), shape.SoiSetting,
             dice);
    }
  }
  return session;
}

namespace {

// What is done to a made-up game, to make it harder.
using Twist = std::function<void(PlanetRecord&, std::mt19937&)>;

const Twist kTwists[] = {
    // As it is.
    [](PlanetRecord&, std::mt19937&) {},
    // Hardly any influence.
    [](PlanetRecord& planet, std::mt19937& dice) {
      planet[PlanetField::SoiRadius] = static_cast<int>(dice() % 6);
    },
    // Sums beyond the limit.
    [](PlanetRecord& planet, std::mt19937& dice) {
      planet[PlanetField::SoiRadius] = static_cast<int>(300 + dice() % 3 * 100);
      planet[PlanetField::X] = planet.X() / 2;
    },
    // Exact halves and equal sums.
    [](PlanetRecord& planet, std::mt19937& dice) {
      planet[PlanetField::SoiRadius] = static_cast<int>(1 + dice() % 2) * 25;
      planet[PlanetField::X] = planet.X() / 60 * 60;
      planet[PlanetField::Y] = planet.Y() / 60 * 60;
    },
    // Planets without owner, and of players without record.
    [](PlanetRecord& planet, std::mt19937& dice) {
      planet[PlanetField::OwnerIndex] = static_cast<int>(dice() % (kMaxPlayers + 1));
    },
};

}  // namespace

GameSession MakeAwkwardGame(unsigned number) {
  const Twist& twist = kTwists[number % std::size(kTwists)];
  std::mt19937 dice(number);
  const auto between = [&](int low, int high) {
    return low + static_cast<int>(dice() % static_cast<unsigned>(high - low + 1));
  };
  constexpr int kSettings[] = {10, 50, 100, 500};
  const bool isWholeGrid = number % 8 == 0;
  GameSession session = MakeInfluenceGame(
      {.Width = number % 16 == 0 ? 5700 : between(100, isWholeGrid ? 2000 : 1000),
       .Planets = between(0, isWholeGrid ? 100 : 200),
       .Players = between(0, kMaxPlayers),
       .SoiSetting = number % 2 == 0 ? kSettings[between(0, 3)] : between(50, 500),
       .Clustered = number % 3 != 0,
       .Seed = number});
  if (!isWholeGrid) session.GridSize = between(0, 200);  // a corner of the universe
  for (int i = 1; i <= session.PlanetCount; ++i) twist(session.Planet(i), dice);
  return session;
}

}  // namespace quorvane

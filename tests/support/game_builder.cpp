#include "support/game_builder.h"

#include <algorithm>
#include <utility>

namespace quorvane {
namespace {

constexpr int kExtent = 2000;

}  // namespace

GameBuilder& GameBuilder::Player(std::string_view name) {
  PlayerRecord& player = players_.emplace_back();
  player[PlayerField::Name] = name;
  player[PlayerField::ColourSlot] = players_.size();
  return *this;
}

GameBuilder& GameBuilder::WithPlayerField(PlayerField field, FieldValue value) {
  players_.back()[field] = std::move(value);
  return *this;
}

GameBuilder& GameBuilder::Planet(std::string_view name, GamePoint at) {
  PlanetRecord& planet = planets_.emplace_back();
  planet[PlanetField::Number] = planets_.size();
  planet[PlanetField::X] = static_cast<int>(at.X) - kUniverseOrigin;
  planet[PlanetField::Y] = kExtent - static_cast<int>(at.Y);
  planet[PlanetField::Name] = name;
  return *this;
}

GameBuilder& GameBuilder::OwnedBy(std::string_view race) {
  planets_.back()[PlanetField::Owner] = race;
  const bool isKnown = std::ranges::any_of(
      players_, [&](const PlayerRecord& player) { return player.Name() == race; });
  return isKnown ? *this : Player(race);
}

GameBuilder& GameBuilder::With(PlanetField field, FieldValue value) {
  planets_.back()[field] = std::move(value);
  return *this;
}

GameSession GameBuilder::Build() const {
  GameSession session;
  session.UniverseExtent = kExtent;
  session.GridSize = 650;
  session.GridCellSize = (kExtent - kUniverseOrigin) / 650.0;
  session.CreateInfluenceGrid(session.GridSize);

  for (const PlayerRecord& player : players_) session.Player(++session.PlayerCount) = player;
  session.CreatePlanetTable(static_cast<int>(planets_.size()));
  for (int number = 1; number <= session.PlanetCount; ++number) {
    PlanetRecord& planet = session.Planet(number) = planets_[static_cast<std::size_t>(number) - 1];
    planet[PlanetField::OwnerIndex] = session.FindPlayerByName(planet.Owner());
  }
  return session;
}

}  // namespace quorvane

#include "model/game_session.h"

namespace quorvane {

void GameSession::Reset() {
  PlanetCount = 0;
  RaceColours = kDefaultRaceColours;
}

void GameSession::CreatePlanetTable(int count) {
  PlanetCount = count;
  PlanetTable.assign(static_cast<std::size_t>(count) + 1, PlanetRecord());
}

void GameSession::CreatePlayerTable() { PlayerTable.fill(PlayerRecord()); }

void GameSession::CreateInfluenceGrid(int size) { InfluenceGrid = quorvane::InfluenceGrid(size); }

int GameSession::FindPlayerByName(std::string_view name) const {
  for (int player = 1; player <= PlayerCount; ++player) {
    if (Player(player).Name() == name) return player;
  }
  return 0;
}

const Colour* GameSession::ColourOf(int player) const {
  const int slot = Player(player).ColourSlot();
  return slot > 0 ? &RaceColours.at(static_cast<std::size_t>(slot) - 1) : nullptr;
}

}  // namespace quorvane

#include "model/game_session.h"

#include <cmath>

namespace quorvane {
namespace {

constexpr double kGridSteps = 650;

// Record 0 of a table is no planet and no player.
template <typename Record, typename Table>
std::span<Record> Numbered(Table& table, int count) {
  if (count == 0) return {};
  return std::span<Record>(table).subspan(1, static_cast<std::size_t>(count));
}

}  // namespace

std::span<PlanetRecord> GameSession::Planets() {
  return Numbered<PlanetRecord>(PlanetTable, PlanetCount);
}
std::span<const PlanetRecord> GameSession::Planets() const {
  return Numbered<const PlanetRecord>(PlanetTable, PlanetCount);
}
std::span<PlayerRecord> GameSession::Players() {
  return Numbered<PlayerRecord>(PlayerTable, PlayerCount);
}
std::span<const PlayerRecord> GameSession::Players() const {
  return Numbered<const PlayerRecord>(PlayerTable, PlayerCount);
}

void GameSession::Reset() {
  PlanetCount = 0;
  RaceColours = kDefaultRaceColours;
}

void GameSession::CreatePlanetTable(int count) {
  PlanetCount = count;
  PlanetTable.assign(static_cast<std::size_t>(count) + 1, PlanetRecord());
}

void GameSession::MeasureUniverse(int extent) {
  UniverseExtent = extent;
  GridCellSize = (extent - kUniverseOrigin) / kGridSteps;
  GridSize = static_cast<int>(std::floor((extent - kUniverseOrigin) / GridCellSize));
}

void GameSession::CreatePlayerTable() { PlayerTable.fill(PlayerRecord()); }

void GameSession::CreateInfluenceGrid(int size) { InfluenceGrid.Reset(size); }

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

#pragma once

#include "model/game_session.h"

namespace quorvane {

/// Finds the players: the distinct owners of the planets, numbered in the order in which their
/// first planet stands on the map, and gives every planet its `OwnerIndex`. Owners beyond the
/// sixteenth get no record; their names go to `OwnersWithoutRecord`.
void DiscoverPlayers(GameSession& session);

/// Fills in every player's counts and totals over the planets that the player owns, starting
/// ranges, and the player's own number as colour slot.
void GatherStatistics(GameSession& session);

/// Turns the territories from grid points into whole square light years.
void ConvertTerritories(GameSession& session);

}  // namespace quorvane

#pragma once

#include "model/game_session.h"
#include "model/progress.h"

namespace quorvane {

/// Decides for every point of the influence grid which player holds it and how strongly.
/// Every planet with a sphere of influence radiates for its owner: inside `SoiSetting` light years
/// with `SoiSetting` x radius / distance, over a fringe of 25 more light years fading out. The
/// player with the largest sum holds the point, the lower number among equals, with a strength of
/// that sum, at most 100.
/// Reads `GridSize`, `GridCellSize`, `SoiSetting`, `PlayerCount` and each planet's `X`, `Y`,
/// `SoiRadius` and `OwnerIndex`; writes `InfluenceGrid` and `Territory`, the number of points held,
/// of every player who holds any (record 0: points that were reached but held by nobody).
/// @return false, and nothing of this is complete, when the user stopped it
bool ComputeInfluence(GameSession& session, const Progress& progress);

}  // namespace quorvane

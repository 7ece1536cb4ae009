#pragma once

#include "influence/influence_loops.h"
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
/// @param progress  is shown 0, then every ten columns, in the end all
/// @param vectors  the widest to use where the processor has them; the result is the same
/// @return false, and nothing of this is complete, when the user stopped it
bool ComputeInfluence(GameSession& session, const Progress& progress,
                      InfluenceVectors vectors = InfluenceVectors::Bits512);

}  // namespace quorvane

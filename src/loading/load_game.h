#pragma once

#include <string>
#include <string_view>

#include "model/game_session.h"
#include "model/progress.h"
#include "model/result.h"

namespace quorvane {

/// The sentence that a load gives back which the user stopped.
inline constexpr const char* kLoadingStopped = "Loading stopped";

/// Builds the whole game that the user chose: reads its map and reports, merges them, finds the
/// players, computes spheres, influence and territories, estimates the races' ranges and applies
/// the companion files that lie beside the map.
/// @param myRaceName  the user's race as the previous load found it; it stays while the new reports
///                    do not tell
/// @return the complete session, or one sentence with file, line and reason, or `kLoadingStopped`;
///         nothing else changes
Result<GameSession> LoadGame(const GameChoice& choice, std::string_view myRaceName,
                             const Progress& progress);

}  // namespace quorvane

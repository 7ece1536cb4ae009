#pragma once

#include "model/game_session.h"

namespace quorvane::reference {

/// The influence of every planet on every grid point, summed one by one: what `ComputeInfluence`
/// has to give, written without any thought of speed.
void PlainComputeInfluence(GameSession& session);

}  // namespace quorvane::reference

#pragma once

#include <string_view>

#include "model/game_session.h"

namespace quorvane {

/// The colour slot, from 1, of the last player of that name; 0 when there is none or it has no
/// colour.
int ColourSlotOf(const GameSession& session, std::string_view raceName);

/// Whether a colour is bright enough to be told from the black of space.
bool IsRaceColour(Colour colour);

}  // namespace quorvane

#pragma once

#include <string>
#include <string_view>

#include "model/game_session.h"
#include "model/result.h"

namespace quorvane {

/// Gives players their colours from the text of a race colour file: each record holds a race's
/// name, its slot and the slot's colour. A slot takes its colour even when no player of that name
/// is in the game; players whom the file does not name get the lowest free slots. Records with a
/// slot or colour out of range, or cut short, are passed over.
void ApplyRaceColours(std::string_view text, GameSession& session);

/// The text of the race colour file, one record for each player 1 … `PlayerCount`. A race whose
/// name holds a double quote, which the file cannot keep, is left out.
Result<std::string> RaceColoursText(const GameSession& session);

/// Reads the race colour file of the session's map; without one every player has the slot of the
/// player's own number.
Result<void> ReadRaceColourFile(GameSession& session);

/// Writes the race colour file of the session's map, replacing it whole.
Result<void> WriteRaceColourFile(const GameSession& session);

}  // namespace quorvane

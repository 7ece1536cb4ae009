#pragma once

#include <string>
#include <string_view>

#include "model/game_session.h"
#include "model/result.h"

namespace quorvane {

/// Restores ranges, immunities, traits and notes from the text of an empire data file: 26 items for
/// each player, the race's name first. A record goes to the last player of that name; records of
/// other races are passed over, and one that the file cuts short is left out.
void ApplyEmpireData(std::string_view text, GameSession& session);

/// The text of the empire data file for players 1 … `PlayerCount`, one item per line. Fails with
/// the player's name when its trait or notes hold a double quote, which the file cannot keep; a
/// race whose name does is left out, because nobody can rename it.
Result<std::string> EmpireDataText(const GameSession& session);

/// What the user is told once the file of the races' data or of their colours has been saved.
/// @param saved  the sentence that is enough where every race could be saved
/// @return that sentence, and below it one that names the races left out and says why
std::string SavedRacesMessage(std::string saved, const GameSession& session);

/// Reads the empire data file of the session's map into its players; a missing file changes
/// nothing. Fails with file and reason when the file is there but cannot be read.
Result<void> ReadEmpireDataFile(GameSession& session);

/// Writes the empire data file of the session's map, replacing it whole. On failure the old file
/// and the session are unharmed.
Result<void> WriteEmpireDataFile(const GameSession& session);

}  // namespace quorvane

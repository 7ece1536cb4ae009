#pragma once

#include <string>

#include "model/game_session.h"

namespace quorvane::reference {

/// A loaded game as it was before its reports were read: the choice and the user's race, and
/// planets of which only number, place and name are known.
GameSession SessionBeforeReports(const GameSession& loaded, const std::string& myRaceName);

/// How the plain merge compares two names without the blanks around them.
enum class NameComparison {
  Views,  // without copying them
  Texts,  // each trimmed into a text of its own first, the plainest way to write it
};

/// Reads the chosen reports from disk and merges them into the planet table, every line compared
/// with every planet's name: what a load has to give, written without any thought of speed.
/// @param session  with its choice made and planets that have number, place and name; a report that
///                 cannot be read counts as empty
void PlainMergeReports(GameSession& session, NameComparison comparison = NameComparison::Views);

}  // namespace quorvane::reference

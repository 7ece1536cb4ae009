#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "history/planet_changes.h"

namespace quorvane {

/// A change in plain words.
struct ChangeRow {
  int Planet = 0;
  std::string Text;

  bool operator==(const ChangeRow&) const = default;
};

/// "Kestrel: taken from the Drask by the Vantari, 120,000 people" and the like, one row for each
/// change.
/// @param after  the later of the two years that were compared
std::vector<ChangeRow> DescribePlanetChanges(const std::vector<PlanetChange>& changes,
                                             const GameSession& after);

/// The races of two years of a game, those of the later one first.
std::vector<std::string> RacesOf(const GameSession& before, const GameSession& after);

/// "37 changes since 2450".
std::string ChangesSummary(std::size_t changes, int since);

/// The changes as a text to be sent to others: what was compared, then a line for each row.
/// @param race  whose changes these are; empty: all
std::string ChangesText(const std::vector<ChangeRow>& rows, const GameSession& before,
                        const GameSession& after, std::string_view race);

}  // namespace quorvane

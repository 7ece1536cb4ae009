#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "model/player_record.h"

namespace quorvane {

inline constexpr std::size_t kAverageCount = 7;

/// What an owned planet of a player has on average: population, mines, factories and resources as
/// whole numbers, rounded down, then ironium, boranium and germanium in thousands with at most
/// three decimals. All texts are empty for a player without planets, and so for no player at all.
std::array<std::string, kAverageCount> AverageTexts(const PlayerRecord& player);

/// What stands in place of both limits of a range that a race is immune to.
inline constexpr std::string_view kImmuneCaption = "Immune";

/// How one limit of a race's habitability ranges is shown: its value, or that the race is immune.
/// @param limit  one of the six fields `GravMin` … `RadMax`; the same holds below
std::string RangeCaption(const PlayerRecord& player, PlayerField limit);

/// How the user is asked for a new value of a limit, with the game's line end (CR LF) before a
/// hint.
std::string RangePrompt(const PlayerRecord& player, PlayerField limit);

/// Sets a limit from what the user typed, read as a number and rounded to two decimals.
/// @return false, with nothing changed, when the value lies beyond its scale or on the wrong side
///         of the range's other limit; either end itself is allowed
bool SetRangeLimit(PlayerRecord& player, PlayerField limit, std::string_view answer);

}  // namespace quorvane

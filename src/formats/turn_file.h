#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "model/game_choice.h"

namespace quorvane {

/// How many bytes of a turn file are ever looked at: its first block, which is not encrypted.
inline constexpr std::size_t kTurnBlockSize = 18;

/// The year that the first block of a turn file tells: turn 0 is played in 2400. Nothing for bytes
/// that are no such block, or not all of it.
std::optional<int> TurnYear(std::string_view block);

/// The year of a turn file, by its path on the disk. Nothing for a file that cannot be read.
std::optional<int> ReadTurnYear(const std::filesystem::path& file);

/// "Demo.M3": the name of the turn file of a player slot 1 … 16.
std::filesystem::path TurnFileName(const GameChoice& choice, int row);
/// "Demo.HST": the name of the host's file.
std::filesystem::path HostFileName(const GameChoice& choice);

}  // namespace quorvane

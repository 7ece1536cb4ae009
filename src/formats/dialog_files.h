#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "model/game_choice.h"
#include "model/result.h"

namespace quorvane {

/// The years typed for report rows 1 … 16; index 0 is not used.
using RowYears = std::array<std::string, kMaxPlayers + 1>;

/// The text of the years file: one quoted text for each row, empty boxes included.
Result<std::string> YearsText(const RowYears& years);
/// The years from such a text; rows that it does not reach stay empty.
RowYears ParseYears(std::string_view text);

/// Writes the years file, replacing it whole.
Result<void> SaveYearsFile(const std::filesystem::path& path, const RowYears& years);
/// Reads the years file. Nothing when there is none that can be read.
std::optional<RowYears> LoadYearsFile(const std::filesystem::path& path);

/// Writes the remembered-race file, replacing it whole.
Result<void> SaveRememberedRace(const std::filesystem::path& path, int row);
/// Reads the remembered row, 1 … 16. Nothing when there is no such file or no such row.
std::optional<int> LoadRememberedRace(const std::filesystem::path& path);

}  // namespace quorvane

#pragma once

#include <filesystem>
#include <string_view>

namespace quorvane {

/// The path that a user means who types or pastes a text: quotes around it are dropped, ~ is the
/// home folder, relative paths begin at the folder on show, and a path of the game's own system
/// such as C:\Stars is looked for in the Wine prefix of systems that have no drives.
std::filesystem::path TypedPath(std::string_view text, const std::filesystem::path& shown,
                                const std::filesystem::path& home);

}  // namespace quorvane

#pragma once

#include <filesystem>
#include <string_view>

namespace quorvane {

/// The path that somebody means who types or pastes it. Blanks and quotes around it are no part of
/// it; it may be a `file://` URL as file managers copy it, begin with "~/", or count from the
/// folder on show. Where the game runs under Wine, C:\Stars lies in the prefix ~/.wine.
/// Nothing is looked up but the case of the folders in a Windows path: the path need not exist. An
/// empty text means the folder on show.
/// @param folder  the folder on show
/// @param home    the user's home folder
std::filesystem::path TypedPath(std::string_view typed, const std::filesystem::path& folder,
                                const std::filesystem::path& home);

}  // namespace quorvane

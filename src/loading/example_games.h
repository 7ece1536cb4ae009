#pragma once

#include <filesystem>

namespace quorvane {

/// The folder in which a first start opens the example games. What is saved goes beside a game's
/// map, and nobody may write where a program is installed; so installed games are copied to the
/// user's own data at their first use. A copy that is there is used as it is: what the user saved
/// lies in it.
/// @param folder       where the settings lead to
/// @param programData  the program's installed data; a folder outside is given back as it is
/// @param userData     the user's folder for this program's data, made when it is missing
/// @return the copy's folder; `folder` itself where copying fails
std::filesystem::path ExampleFolder(const std::filesystem::path& folder,
                                    const std::filesystem::path& programData,
                                    const std::filesystem::path& userData);

}  // namespace quorvane

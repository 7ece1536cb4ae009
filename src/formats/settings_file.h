#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// The game's installation folder as the text of its settings file gives it: whatever stands behind
/// the key StarsInstallDir and one separator. The last such item wins; empty when there is none.
std::string InstallDirIn(std::string_view settings);

/// Where a Windows path lies on a system that runs the game under Wine: C:\Stars is drive_c/Stars
/// in the prefix. Other texts are taken as paths of this system.
std::filesystem::path TranslateFromWine(std::string_view path,
                                        const std::filesystem::path& winePrefix);

/// A place where the game's settings may lie, and how to read the folder that they give.
struct SettingsPlace {
  std::filesystem::path File;
  /// Windows paths in it are translated into this Wine prefix; empty: taken as they stand.
  std::filesystem::path WinePrefix;
};

/// The places to look at on this system, in their order. `home` is the user's home folder and
/// `programData` the folder of the program's own data, whose settings point at the example games.
std::vector<SettingsPlace> SettingsPlaces(const std::filesystem::path& home,
                                          const std::filesystem::path& programData);

/// The folder in which the open dialog starts: from the first settings file that is there, or
/// `fallback` when there is none, or it names a folder with a longer path than the system knows. A
/// file that names no folder means C:\. A relative folder counts from the settings file's own.
std::filesystem::path FindInstallDir(const std::vector<SettingsPlace>& places,
                                     const std::filesystem::path& fallback);
/// Whether that settings file names a folder.
bool NamesInstallDir(const std::vector<SettingsPlace>& places);

}  // namespace quorvane

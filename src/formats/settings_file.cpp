#include "formats/settings_file.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <optional>

#include "files/files.h"
#include "model/data_items.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kKey = "StarsInstallDir";
constexpr const char* kSettingsName = "Stars.ini";
constexpr const char* kDriveRoot =
    "C:\\";  // where the search ends when the settings name no folder

// How a folder of another machine begins; not every library takes it for an absolute path.
constexpr std::string_view kServerPrefix = "\\\\";

bool IsWindowsPath(std::string_view path) {
  return path.size() >= 2 && path[1] == ':' &&
         std::isalpha(static_cast<unsigned char>(path[0])) != 0;
}

// No system opens longer paths, and looking for the steps of one takes longer with each.
#if defined(_WIN32)
constexpr std::size_t kLongestPath = 32767;
#else
constexpr std::size_t kLongestPath = 4096;
#endif

// Nothing for a folder that cannot be.
std::optional<fs::path> FolderNamedIn(const SettingsPlace& place) {
  const Result<std::string> text = ReadTextFile(place.File);
  std::string folder = text ? InstallDirIn(*text) : std::string();
  if (folder.empty()) folder = kDriveRoot;
  if (PathFromText(folder).native().size() > kLongestPath) return std::nullopt;
  fs::path path =
      place.WinePrefix.empty() ? PathFromText(folder) : TranslateFromWine(folder, place.WinePrefix);
  const bool isWhole = IsWindowsPath(folder) || folder.starts_with(kServerPrefix);
  return path.is_relative() && !isWhole ? place.File.parent_path() / path : path;
}

const SettingsPlace* FirstThatIsThere(const std::vector<SettingsPlace>& places) {
  const auto found = std::ranges::find_if(
      places, [](const SettingsPlace& place) { return FindFile(place.File).has_value(); });
  return found != places.end() ? &*found : nullptr;
}

}  // namespace

std::string InstallDirIn(std::string_view settings) {
  std::string folder;
  DataItemReader reader(settings);
  while (!reader.IsExhausted()) {
    const std::string item = reader.ReadText();
    if (item.starts_with(kKey)) folder = item.substr(std::min(kKey.size() + 1, item.size()));
  }
  return folder;
}

fs::path TranslateFromWine(std::string_view path, const fs::path& winePrefix) {
  if (!IsWindowsPath(path)) return PathFromText(path);
  const char drive = static_cast<char>(std::tolower(static_cast<unsigned char>(path[0])));
  // Wine keeps drive C: in the prefix itself and links the others below dosdevices.
  fs::path translated = drive == 'c' ? winePrefix / "drive_c"
                                     : winePrefix / "dosdevices" / (std::string(1, drive) + ":");
  std::string rest(path.substr(2));
  std::ranges::replace(rest, '\\', '/');
  for (const fs::path& step : PathFromText(rest).relative_path()) {
    if (!step.empty()) translated = FolderIgnoringCase(translated, TextFromPath(step));
  }
  return translated;
}

std::vector<SettingsPlace> SettingsPlaces(const fs::path& home, const fs::path& programData) {
#if defined(_WIN32)
  static_cast<void>(home);
  std::vector<SettingsPlace> places = {{.File = "C:\\WINDOWS\\STARS.INI", .WinePrefix = {}},
                                       {.File = "C:\\WINNT\\STARS.INI", .WinePrefix = {}}};
  // Newer systems keep what an old program writes into the system's folder apart for each user.
  if (const wchar_t* local = _wgetenv(L"LOCALAPPDATA")) {
    places.push_back(
        {.File = fs::path(local) / "VirtualStore" / "Windows" / kSettingsName, .WinePrefix = {}});
  }
#else
  const fs::path prefix = home / ".wine";
  const fs::path drive = prefix / "drive_c";
  std::vector<SettingsPlace> places = {
      {.File = FolderIgnoringCase(drive, "windows") / kSettingsName, .WinePrefix = prefix},
      {.File = FolderIgnoringCase(drive, "winnt") / kSettingsName, .WinePrefix = prefix}};
#endif
  places.push_back({.File = programData / kSettingsName, .WinePrefix = {}});
  return places;
}

fs::path FindInstallDir(const std::vector<SettingsPlace>& places, const fs::path& fallback) {
  const SettingsPlace* found = FirstThatIsThere(places);
  return found != nullptr ? FolderNamedIn(*found).value_or(fallback) : fallback;
}

bool NamesInstallDir(const std::vector<SettingsPlace>& places) {
  const SettingsPlace* found = FirstThatIsThere(places);
  if (found == nullptr) return false;
  const Result<std::string> text = ReadTextFile(found->File);
  return text && !InstallDirIn(*text).empty();
}

}  // namespace quorvane

#include "loading/settled_files.h"

#include <algorithm>

namespace quorvane {

SettledFiles::SettledFiles(const std::vector<GameFileStamp>& files, std::int64_t rest)
    : rest_(rest) {
  for (const GameFileStamp& file : files) {
    files_[{file.Kind, file.Row}] = {.Settled = file, .Seen = file};
  }
}

void SettledFiles::Look(const std::vector<GameFileStamp>& files, std::int64_t now) {
  std::map<Key, State> seen;
  for (const auto& [key, file] : files_) seen[key] = std::nullopt;
  for (const GameFileStamp& file : files) seen[{file.Kind, file.Row}] = file;
  for (const auto& [key, state] : seen) {
    Tracked& file = files_[key];
    if (file.Seen != state) {
      file.Seen = state;
      file.Since = now;
    } else if (now - file.Since >= rest_) {
      file.Settled = state;
    }
  }
}

bool SettledFiles::IsAtRest() const {
  return std::ranges::all_of(
      files_, [](const auto& file) { return file.second.Settled == file.second.Seen; });
}

std::vector<GameFileStamp> SettledFiles::Files() const {
  std::vector<GameFileStamp> settled;
  for (const auto& [key, file] : files_) {
    if (file.Settled) settled.push_back(*file.Settled);
  }
  return settled;
}

}  // namespace quorvane

#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "loading/game_file_stamps.h"

namespace quorvane {

/// Tells which files of a game are complete. A file is written in pieces, or deleted and written
/// anew, and counts once it has been the same for two seconds.
class SettledFiles {
 public:
  static constexpr std::int64_t kRest = 2000;

  /// Begins with the files of a game as they were loaded.
  /// @param rest  how long a file has to stay the same, in milliseconds
  explicit SettledFiles(const std::vector<GameFileStamp>& files = {}, std::int64_t rest = kRest);

  /// Takes what a look at the folder found.
  /// @param now  milliseconds of a clock that never goes back
  void Look(const std::vector<GameFileStamp>& files, std::int64_t now);

  /// Whether no file is on its way to another state; otherwise another look is due.
  bool IsAtRest() const;
  /// The files as they were when they rested last, in the order of `StampGameFiles`.
  std::vector<GameFileStamp> Files() const;

 private:
  using Key = std::pair<GameFileKind, int>;
  using State = std::optional<GameFileStamp>;  // nothing: there is no such file

  struct Tracked {
    State Settled;
    State Seen;
    std::int64_t Since = 0;  // when it was first seen so
  };

  std::int64_t rest_;
  std::map<Key, Tracked> files_;
};

}  // namespace quorvane

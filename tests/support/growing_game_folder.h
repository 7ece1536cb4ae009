#pragma once

#include <cstddef>
#include <filesystem>
#include <initializer_list>
#include <string_view>

#include "generator/game_generator.h"
#include "support/temp_folder.h"

namespace quorvane {

/// A folder with a game of several years, "Demo.map": 60 planets, the reports "Demo.p1" … "Demo.p4"
/// of its four players, their turn files "Demo.m1" … and the host's "Demo.hst". It begins with all
/// files of 2450. All reports are of their year. In 2452 Eionis goes from the Veldt Kin to the
/// Orrukai, in 2454 the Zindrel give up Halelmede.
class GrowingGameFolder : public TempFolder {
 public:
  GrowingGameFolder();

  /// The game's year, whether its files are written or not.
  int Year() const { return Game().Year; }
  /// The files of that year: `Game().Content(".p1")`.
  const generator::GeneratedGame& Game() const;
  std::filesystem::path MapFile() const { return *this / "Demo.map"; }

  /// Lets the next year begin, 2470 at most; its files are not written.
  void BeginNextYear() { ++turn_; }
  /// Writes these files of the year over older ones, in this order: {"Demo.m1", "Demo.p1"}.
  void WriteFiles(std::initializer_list<std::string_view> names) const;
  /// Lets the next year begin and writes all its files; the map is the same to the byte.
  void WriteNextYear();

 private:
  void WriteAllFiles() const;

  std::size_t turn_ = 0;
};

}  // namespace quorvane

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "loading/game_file_stamps.h"
#include "screens/open_checks.h"

namespace quorvane {

/// A file of a loaded game that is not what it was.
struct FileChange {
  GameFileStamp File;  // as it is now, or was before it went
  bool IsGone = false;

  bool operator==(const FileChange&) const = default;
};

/// What has become of a game's files. Of turn files only another year counts: the game writes them
/// whenever orders are given.
std::vector<FileChange> FindChanges(const std::vector<GameFileStamp>& before,
                                    const std::vector<GameFileStamp>& now);

/// Whether changes bring anything that a reload would show: turn files alone do not.
bool BringReports(const std::vector<FileChange>& changes);

/// What the user is told of changes: "game.p2 is new (14:02), game.m2 is of year 2451". Times are
/// local ones, with their date where that is not today's. What is the user's own comes first, and
/// what hardly matters last.
/// @param today  milliseconds since 1970
std::string DescribeChanges(std::vector<FileChange> changes, const GameChoice& game,
                            std::int64_t today);

/// The choice with which a game is loaded again, and what is still to be asked.
struct ReloadPlan {
  GameChoice Choice;
  /// The years as the open dialog's boxes would hold them.
  std::string GameYear;
  RowYears Years;
  /// Set when the user's own report is another one and no turn file of the user's race tells its
  /// year: `GameYear` is then a guess, or empty.
  bool IsOwnYearAsked = false;
  /// The rows of other reports that changed; the game's year is offered for them.
  std::vector<int> ChangedRows;
};

/// Plans a reload: the same choice with the new years. The user's own report, where it changed, is
/// of its turn file's year, and that is the game's; reports that stayed keep their years, and
/// reports that came since are ticked.
/// @param loaded  the choice that the game was loaded with, and what of it was changed since
ReloadPlan PlanReload(const GameChoice& loaded, const std::vector<GameFileStamp>& before,
                      const std::vector<GameFileStamp>& now);

/// The years that the open dialog's boxes would hold for a choice: an empty one stands for the
/// game's year.
RowYears TypedYears(const GameChoice& choice);

/// Makes the plan's choice complete, as the open dialog does. @return why it cannot be, or nothing
std::string AcceptReload(ReloadPlan& plan);

}  // namespace quorvane

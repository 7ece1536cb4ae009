#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "model/game_choice.h"
#include "model/result.h"

namespace quorvane {

/// What tells the year of old files.
enum class YearSource { None, TurnFile, FileName, FolderName, Typed };

/// Old reports of a game, all of one year.
struct EarlierYear {
  std::filesystem::path Folder;
  /// What the user knows them by: the folder's name, or "Demo 2450" for files named by their year.
  std::string Name;
  int Year = 0;  // 0: not known
  YearSource Source = YearSource::None;
  /// With what the year is loaded: the game's map and what lies beside it, these reports, and
  /// their year once it is known. The drawing layer is the old files' own or none.
  GameChoice Choice;
  int ReportCount = 0;
  /// Whether the user's own report is among them. Without it the choice has no own race, and the
  /// year is loaded without a name for it.
  bool HasOwnReport = false;
};

/// Finds old files of a game in a folder and in those of its subfolders in which players and the
/// game itself put them: Backup, Backup1, Backup2 … and folders with a year in their names. These
/// are reports under their plain names (but for those of the game itself), and reports with a year
/// beside the game's name: "Demo 2450.p1", "2450_demo.p2". Only reports of the game's style count;
/// a folder that has another map under the name of the game's is passed over.
/// The year of plain names is told by turn files beside them as `OfferYear` chooses, otherwise by
/// the folder's name.
/// @param game       the choice that the game on screen was loaded with
/// @param isStopped  asked before each file and folder: true gives up, and nothing is found
/// @return in the order of the years, those that are not known last
std::vector<EarlierYear> FindEarlierYears(const GameChoice& game,
                                          const std::filesystem::path& folder,
                                          const std::function<bool()>& isStopped = {});

/// Makes a typed year, 2400 … 9999, that of all the reports. Fails for any other text, and leaves
/// them without a year.
Result<void> SetYear(EarlierYear& reports, const std::string& typed);

}  // namespace quorvane

#include "formats/game_files.h"

#include <algorithm>

#include "model/field_value.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kExtensionLength = 4;  // the dot included

}  // namespace

fs::path GameFile(const fs::path& mapFile, const std::string& ending) {
  fs::path::string_type name = mapFile.filename().native();
  name.resize(name.size() - std::min(name.size(), kExtensionLength));
  fs::path file = mapFile.parent_path() / name;
  file += ending;
  return file;
}

fs::path ReportFileName(const GameChoice& choice, int row) {
  return GameFile(choice.MapFilePath, ".P" + std::to_string(row)).filename();
}

fs::path OldReportFileName(const GameChoice& choice) {
  return GameFile(choice.MapFilePath, ".PLA").filename();
}

void ChooseMap(GameChoice& choice, const fs::path& mapFile) {
  choice.MapFilePath = mapFile;
  choice.MapDirectory = mapFile.parent_path();
  choice.DrawingFilePath = GameFile(mapFile, ".QVL");
  choice.RaceColourFilePath = GameFile(mapFile, ".QVC");
  choice.EmpireDataFilePath = GameFile(mapFile, ".QVD");
  choice.YearsFilePath = GameFile(mapFile, ".YRS");
  choice.RememberedRaceFilePath = GameFile(mapFile, ".QVR");
}

fs::path MapPictureFile(const GameChoice& game) {
  const std::string year = game.GameYear < 1 ? "" : NumberTextWithLeadingBlank(game.GameYear);
  return GameFile(game.MapFilePath, " Universe Map" + year + ".bmp");
}

}  // namespace quorvane

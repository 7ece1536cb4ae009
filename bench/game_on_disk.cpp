#include "game_on_disk.h"

#include <fstream>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "formats/game_files.h"
#include "loading/report_finder.h"
#include "model/text.h"

namespace quorvane {
namespace {

using generator::GeneratedFile;
using generator::GeneratedGame;

std::string_view FirstField(std::string_view line) { return line.substr(0, line.find('\t')); }

// The lines that the reports have for each planet, from all players.
std::multimap<std::string, std::string> LinesByPlanet(const GeneratedGame& game) {
  std::multimap<std::string, std::string> lines;
  for (const GeneratedFile& file : game.Files) {
    if (!file.Extension.starts_with(".p")) continue;
    std::string_view rest = file.Content;
    TakeLine(rest);
    while (!rest.empty()) {
      const std::string line(TakeLine(rest));
      lines.emplace(FirstField(line), line);
    }
  }
  return lines;
}

// Adds a line for every planet that the report does not have.
void CompleteReport(std::string& report, const GeneratedGame& game,
                    const std::multimap<std::string, std::string>& known) {
  std::map<std::string, std::string> missing;
  std::string_view map = *game.Content(".map");
  for (TakeLine(map); !map.empty();) {
    const std::string_view line = TakeLine(map);
    const std::string name(line.substr(line.rfind('\t') + 1));
    const auto other = known.find(name);
    missing[name] = other != known.end() ? other->second : name + std::string(35, '\t');
  }
  std::string_view rest = report;
  for (TakeLine(rest); !rest.empty();) missing.erase(std::string(FirstField(TakeLine(rest))));
  for (const auto& [name, line] : missing) report += line + "\r\n";
}

}  // namespace

GameOnDisk::GameOnDisk(const generator::GameShape& shape) {
  std::random_device random;
  folder_ = std::filesystem::temp_directory_path() /
            ("quorvane-bench-" + std::to_string(random()) + std::to_string(random()));
  std::filesystem::create_directories(folder_);
  GeneratedGame game = generator::GenerateGame(shape);
  const std::multimap<std::string, std::string> known = LinesByPlanet(game);
  for (GeneratedFile& file : game.Files) {
    if (file.Extension.starts_with(".p")) CompleteReport(file.Content, game, known);
    std::ofstream(folder_ / ("Game" + file.Extension), std::ios::binary) << file.Content;
  }
  ChooseMap(choice_, folder_ / "Game.map");
  FindReportFiles(choice_, "", nullptr);
  choice_.GameYear = game.Year;
  for (std::size_t i = 0; i < game.ReportYears.size(); ++i) {
    choice_.ReportFiles[i + 1].Year = std::to_string(game.ReportYears[i]);
  }
}

GameOnDisk::~GameOnDisk() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

GameChoice GameOnDisk::Choice(int soiSetting) const {
  GameChoice choice = choice_;
  choice.SoiSetting = soiSetting;
  return choice;
}

}  // namespace quorvane

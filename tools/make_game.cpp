// quorvane-make-game: writes a made-up game, or reports for a map that exists, into a folder.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "files/files.h"
#include "generator/game_generator.h"
#include "make_game_options.h"

namespace quorvane::generator {
namespace {

namespace fs = std::filesystem;

constexpr int kFailed = 1;
constexpr int kWrongOptions = 2;

int Complain(const std::string& message, int exitCode) {
  std::fprintf(stderr, "quorvane-make-game: %s\n", message.c_str());
  return exitCode;
}

// Reports belong beside their map: where that lies elsewhere or has another name, it is copied.
Result<void> BringMapAlong(const MakeGameOptions& options) {
  std::error_code error;
  fs::create_directories(options.Folder, error);
  const fs::path beside = options.Folder / PathFromText(options.BaseName + ".map");
  const fs::path target = FindFile(beside).value_or(beside);
  if (fs::equivalent(target, options.MapFile, error)) return {};
  fs::remove(target, error);  // an older copy may be write-protected, as its original was
  fs::copy_file(options.MapFile, target, error);
  if (!error) return {};
  return Failure{TextFromPath(target) + ": the map cannot be copied here (" + error.message() +
                 ")"};
}

Result<GeneratedGame> MakeGame(const MakeGameOptions& options) {
  if (options.MapFile.empty()) return GenerateGame(options.Shape);
  const Result<std::string> text = ReadTextFile(options.MapFile);
  if (!text) return text.Error();
  const Result<UniverseMap> map = ParseUniverseMap(*text, TextFromPath(options.MapFile));
  if (!map) return map.Error();
  if (map->Planets.size() < static_cast<std::size_t>(options.Shape.PlayerCount)) {
    return Failure{TextFromPath(options.MapFile) + ": the map has only " +
                   std::to_string(map->Planets.size()) + " planets, every player needs one"};
  }
  if (const Result<void> copied = BringMapAlong(options); !copied) {
    return copied.Error();
  }
  return GenerateReportsForMap(map->Planets, options.Shape);
}

void Tell(const GeneratedGame& game, const MakeGameOptions& options) {
  std::string years;
  for (const int year : game.ReportYears) years.append(" ").append(std::to_string(year));
  std::printf("%s: %zu files written. Game year %d, years of the reports:%s\n",
              options.BaseName.c_str(), game.Files.size(), game.Year, years.c_str());
}

Result<void> WriteAndTell(const GeneratedGame& game, const MakeGameOptions& options) {
  Result<void> written = WriteGame(game, options.Folder, options.BaseName);
  if (written) Tell(game, options);
  return written;
}

Result<void> WriteOneGame(const MakeGameOptions& options) {
  const Result<GeneratedGame> game = MakeGame(options);
  if (!game) return game.Error();
  return WriteAndTell(*game, options);
}

Result<void> WriteYears(const MakeGameOptions& options) {
  MakeGameOptions turn = options;
  for (const GeneratedGame& game : GenerateYears(options.Shape, options.Years)) {
    turn.Folder = options.Folder / std::to_string(game.Year);
    if (Result<void> written = WriteAndTell(game, turn); !written) return written;
  }
  return {};
}

int Run(const std::vector<std::string>& arguments) {
  const Result<MakeGameOptions> options = ParseMakeGameOptions(arguments);
  if (!options) return Complain(options.Message() + " Try --help.", kWrongOptions);
  if (!options->Help.empty()) {
    std::fputs(options->Help.c_str(), stdout);
    return 0;
  }
  const Result<void> written = options->Years > 0 ? WriteYears(*options) : WriteOneGame(*options);
  return written ? 0 : Complain(written.Message(), kFailed);
}

}  // namespace
}  // namespace quorvane::generator

int main(int argc, char** argv) {
  return quorvane::generator::Run({argv + std::min(argc, 1), argv + argc});
}

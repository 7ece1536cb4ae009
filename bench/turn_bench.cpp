// How long a turn takes: a start that shows the last game as it was left, a reload, and what is
// done beside the windows, a look at the game's files and a survey of its reports.

#include <QAction>
#include <ctime>
#include <filesystem>
#include <fstream>

#include "game_on_disk.h"
#include "generator/turn_writer.h"
#include "loading/load_game.h"
#include "loading/report_survey.h"
#include "ui/game_memories.h"
#include "ui/main_window.h"
#include "ui/map_panel.h"
#include "ui/years_dock.h"
#include "window_bench.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

// The huge game with its turn files, among a thousand other files, and preferences that know it.
class Player {
 public:
  Player() {
    for (int row = 1; row <= kMaxPlayers; ++row) {
      const std::string extension = ".m" + std::to_string(row);
      Write("Game" + extension, generator::TurnFileBytes(1, extension, choice.GameYear));
    }
    for (int file = 0; file < 1000; ++file) Write("other" + std::to_string(file), "x");
    PreferencesFile preferences(Settings());
    preferences.Keep({.ReopenAtStart = true});
    GameMemory memory;
    memory.Choice = choice;
    memory.Files = StampGameFiles(choice.MapFilePath);
    memory.Shown.Switches = FirstOverlaySets().front().Switches;
    memory.Opened = std::time(nullptr);
    GameMemories(preferences).Keep(memory);
  }

  fs::path Folder() const { return choice.MapFilePath.parent_path(); }
  fs::path Settings() const { return Folder() / "quorvane.ini"; }

  GameOnDisk game{kHugeShape};
  GameChoice choice = game.Choice(100);

 private:
  void Write(const std::string& name, const std::string& bytes) const {
    std::ofstream(Folder() / name, std::ios::binary) << bytes;
  }
};

const Player& HugePlayer() {
  static const Player player;
  return player;
}

// From nothing to the first picture of the whole window.
void Reopen(benchmark::State& state) {
  const Player& player = HugePlayer();
  for (auto _ : state) {
    Main window(player.Folder(), nullptr, player.Settings());
    window.show();
    window.Begin();
    if (!window.Session().IsLoaded()) return state.SkipWithError("nothing was reopened");
    benchmark::DoNotOptimize(window.grab());
  }
}

void Reload(benchmark::State& state) {
  const Player& player = HugePlayer();
  Main window(player.Folder(), nullptr, player.Settings());
  window.show();
  window.Begin();
  for (auto _ : state) {
    window.Menu.GameReload->trigger();
    benchmark::DoNotOptimize(window.grab());
  }
}

// To and fro between two stored years, as the slider is dragged.
void Scrub(benchmark::State& state) {
  const Player& player = HugePlayer();
  Main window(player.Folder(), nullptr, player.Settings(), player.Folder() / "history.sqlite");
  window.show();
  window.Begin();
  GameSession stored = window.Session();
  for (stored.GameYear -= 2; stored.GameYear < window.Loaded().GameYear; ++stored.GameYear) {
    if (!window.Keeper().StoreNow(stored)) return state.SkipWithError("no year was stored");
  }
  QApplication::processEvents();
  bool isFirst = false;
  for (auto _ : state) {
    isFirst = !isFirst;
    emit window.YearsDock->YearChosen(window.Loaded().GameYear - (isFirst ? 1 : 2));
    benchmark::DoNotOptimize(window.grab());
  }
}

void Survey(benchmark::State& state) {
  const GameChoice& choice = HugePlayer().choice;
  const Result<GameSession> session = LoadGame(choice, "", {});
  const SurveyInput input = SurveyOf(*session, choice);
  for (auto _ : state) {
    benchmark::DoNotOptimize(SurveyReports(input, [] { return false; })[1].Planets);
  }
}

void RegisterAll() {
  constexpr double kReopenTarget = 300;
  Register("fast/start with the huge game", Reopen, kReopenTarget);
  Register("fast/reload of the huge game", Reload);
  RegisterStep("fast/look at 33 of 1034 files", [] {
    benchmark::DoNotOptimize(StampGameFiles(HugePlayer().choice.MapFilePath).size());
  });
  constexpr double kScrubTarget = 50;
  Register("fast/another year of the huge game", Scrub, kScrubTarget);
  Register("fast/survey of 16 reports", Survey);
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  return quorvane::RunWindowBenchmarks(argc, argv, quorvane::RegisterAll);
}

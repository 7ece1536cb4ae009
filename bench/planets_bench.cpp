// How long the list of the planets of a vast game takes: to be opened, to answer a key in its
// search line with the found planets marked on the map, to be scrolled and to be sorted.

#include <QAction>
#include <QKeyEvent>
#include <QScrollBar>

#include "game_on_disk.h"
#include "loading/load_game.h"
#include "reference/plain_distances.h"
#include "rules/distances.h"
#include "ui/game_memories.h"
#include "ui/main_window.h"
#include "ui/planet_list.h"
#include "ui/planets_dock.h"
#include "ui/search_line.h"
#include "window_bench.h"

namespace quorvane {
namespace {

constexpr generator::GameShape kVastShape = {
    .Side = 3200, .PlanetCount = 5000, .PlayerCount = 16, .ReportCount = 16};
// As long as what people type, with a value that is worked out for each planet.
constexpr const char* kSearch =
    "not owner:none pop>100k (hab>=50 or hab(Brennock)>20) near<=300 not base";

const GameChoice& VastChoice() {
  static const GameOnDisk game(kVastShape);
  static const GameChoice choice = game.Choice(100);
  return choice;
}

const GameSession& VastGame() {
  static const GameSession session = *LoadGame(VastChoice(), "", {});
  return session;
}

// The window that shows the game, its list open and its found planets marked.
class ListOnScreen {
 public:
  ListOnScreen() : window(Folder(), nullptr, Folder() / "quorvane.ini") {
    window.resize(1600, 1000);
    window.show();
    window.Begin();
    window.findChild<QAction*>("ViewPlanets")->trigger();
    window.findChild<QCheckBox*>("PlanetsMark")->click();
    Paint();
  }

  static std::filesystem::path Folder() {
    const std::filesystem::path folder = VastChoice().MapFilePath.parent_path();
    PreferencesFile preferences(folder / "quorvane.ini");
    preferences.Keep({.ReopenAtStart = true});
    GameMemory memory;
    memory.Choice = VastChoice();
    memory.Shown.Switches = FirstOverlaySets().front().Switches;
    GameMemories(preferences).Keep(memory);
    return folder;
  }
  static void Paint() { QApplication::processEvents(); }

  Main window;
};

void Open(benchmark::State& state) {
  ListOnScreen screen;
  QAction* item = screen.window.Menu.ViewPlanets;
  for (auto _ : state) {
    state.PauseTiming();
    item->trigger();
    ListOnScreen::Paint();
    state.ResumeTiming();
    item->trigger();
    ListOnScreen::Paint();
  }
}

void PressKey(QWidget& target, int key, const QString& text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&target, &press);
  ListOnScreen::Paint();
}

// A digit more and a digit less, which finds many planets, and few.
void Type(benchmark::State& state) {
  ListOnScreen screen;
  auto* line = screen.window.findChild<SearchLine*>("SearchLine");
  line->setText("pop>10");
  bool isLonger = false;
  for (auto _ : state) {
    isLonger = !isLonger;
    if (isLonger) {
      PressKey(*line, Qt::Key_K, "k");
    } else {
      PressKey(*line, Qt::Key_Backspace, "");
    }
  }
}

void Scroll(benchmark::State& state) {
  ListOnScreen screen;
  QScrollBar& bar = *screen.window.PlanetsDock->List->verticalScrollBar();
  for (auto _ : state) {
    bar.setValue(bar.value() + bar.pageStep() < bar.maximum() ? bar.value() + bar.pageStep() : 0);
    ListOnScreen::Paint();
  }
}

void Sort(benchmark::State& state) {
  ListOnScreen screen;
  bool isDescending = false;
  for (auto _ : state) {
    isDescending = !isDescending;
    screen.window.PlanetsDock->List->SortBy({{"Owner", isDescending}, {"Population", true}});
    ListOnScreen::Paint();
  }
}

void RegisterAll() {
  constexpr double kOpenTarget = 60;
  Register("fast/open the list of 5000 planets", Open, kOpenTarget);
  constexpr double kKeyTarget = 16;
  Register("fast/a key in the search line", Type, kKeyTarget);
  Register("fast/a page of the list", Scroll, kKeyTarget);
  Register("fast/sort the list by two columns", Sort);
  constexpr double kSearchTarget = 5;
  RegisterStep(
      "fast/search of 5000 planets",
      [] {
        static const SearchFacts facts = FactsOf(VastGame());
        const auto filter = PlanetFilter::Make(kSearch, VastGame());
        benchmark::DoNotOptimize(
            FindPlanets(std::get<PlanetFilter>(filter), VastGame(), facts).size());
      },
      kSearchTarget);
  RegisterStep("fast/ways to the nearest own planet",
               [] { benchmark::DoNotOptimize(DistancesToOwnPlanets(VastGame()).size()); });
  RegisterStep("plain/ways to the nearest own planet", [] {
    benchmark::DoNotOptimize(reference::PlainDistancesToOwnPlanets(VastGame()).size());
  });
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  return quorvane::RunWindowBenchmarks(argc, argv, quorvane::RegisterAll);
}

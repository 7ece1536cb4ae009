// How long loading a game takes, from its files on disk to the finished session, and how the merge
// of its reports compares with a plain version of the same step.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "generator/game_generator.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "loading/report_merge.h"
#include "model/text.h"
#include "platform/files/files.h"
#include "ratio_reporter.h"
#include "reference/plain_merge.h"

namespace quorvane {
namespace {

using generator::GameShape;
using generator::GeneratedFile;
using generator::GeneratedGame;

constexpr GameShape kTiny = {.Side = 400, .PlanetCount = 32, .PlayerCount = 4, .ReportCount = 4};
constexpr GameShape kMedium = {
    .Side = 1200, .PlanetCount = 350, .PlayerCount = 10, .ReportCount = 10};
constexpr GameShape kHuge = {
    .Side = 2000, .PlanetCount = 940, .PlayerCount = 16, .ReportCount = 16};

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

// A report as long as it can be: players exchange what they know, so that it has a line for every
// planet of the map.
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

// A game on disk for as long as the object lives.
class GameOnDisk {
 public:
  explicit GameOnDisk(const GameShape& shape) {
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
  ~GameOnDisk() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  GameOnDisk(const GameOnDisk&) = delete;
  GameOnDisk& operator=(const GameOnDisk&) = delete;

  /// What the open dialog hands over when the user loads that game.
  GameChoice Choice(int soiSetting) const {
    GameChoice choice = choice_;
    choice.SoiSetting = soiSetting;
    return choice;
  }

 private:
  std::filesystem::path folder_;
  GameChoice choice_;
};

// The game of that shape, written when it is first asked for.
template <const GameShape& Shape>
const GameOnDisk& Game() {
  static const GameOnDisk game(Shape);
  return game;
}

void MergeFromDisk(GameSession& session) {
  ReportMerge merge(session);
  const ReportFileSlot& own = session.ReportFiles[static_cast<std::size_t>(session.MyRaceRow)];
  merge.AddOwnReport(*ReadTextFile(own.Path), own.Year);
  for (const ReportFileSlot& other : session.ReportFiles) {
    if (&other == &own || other.Included != "1") continue;
    merge.AddOtherReport(*ReadTextFile(other.Path), other.Year);
  }
}

template <typename Merge>
void MeasureMerge(benchmark::State& state, const Merge& merge) {
  const Result<GameSession> loaded = LoadGame(Game<kHuge>().Choice(100), "", nullptr);
  if (!loaded) return state.SkipWithError(loaded.Message().c_str());
  const GameSession planets = reference::SessionBeforeReports(*loaded, "");
  GameSession session;
  for (auto _ : state) {
    state.PauseTiming();
    session = planets;
    state.ResumeTiming();
    merge(session);
    benchmark::DoNotOptimize(session.PlanetTable.data());
  }
}

void MeasureLoad(benchmark::State& state, const GameChoice& choice) {
  for (auto _ : state) {
    const Result<GameSession> session = LoadGame(choice, "", nullptr);
    if (!session) return state.SkipWithError(session.Message().c_str());
    benchmark::DoNotOptimize(session->InfluenceGrid.Size());
  }
}

template <typename Run>
void Register(const char* name, Run run) {
  benchmark::RegisterBenchmark(name, run)
      ->Unit(benchmark::kMillisecond)
      ->MinTime(0.2)
      ->Repetitions(3);
}

void RegisterMerges() {
  using reference::NameComparison;
  constexpr std::pair<const char*, NameComparison> kComparisons[] = {
      {"merge of 16 reports, trimmed texts", NameComparison::Texts},
      {"merge of 16 reports, trimmed views", NameComparison::Views}};
  for (const auto& [name, comparison] : kComparisons) {
    Register(("fast/" + std::string(name)).c_str(),
             [](benchmark::State& state) { MeasureMerge(state, MergeFromDisk); });
    Register(("plain/" + std::string(name)).c_str(), [comparison](benchmark::State& state) {
      MeasureMerge(state, [comparison](GameSession& session) {
        reference::PlainMergeReports(session, comparison);
      });
    });
  }
}

struct LoadCase {
  const char* Name;
  const GameOnDisk& (*Game)();
  int SoiSetting;
  double TargetMilliseconds;  // 0: none
};

void RegisterLoads() {
  constexpr LoadCase kLoads[] = {{"load tiny, S=100", Game<kTiny>, 100, 0},
                                 {"load medium, S=100", Game<kMedium>, 100, 0},
                                 {"load huge, S=100", Game<kHuge>, 100, 50},
                                 {"load huge, S=500", Game<kHuge>, 500, 90}};
  for (const LoadCase& load : kLoads) {
    Register(load.Name, [load](benchmark::State& state) {
      MeasureLoad(state, load.Game().Choice(load.SoiSetting));
      if (load.TargetMilliseconds > 0) {
        state.counters["TargetMilliseconds"] = load.TargetMilliseconds;
      }
    });
  }
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  quorvane::RegisterMerges();
  quorvane::RegisterLoads();
  return quorvane::RunRatioBenchmarks(argc, argv);
}

// How long loading a game takes, from its files on disk to the finished session, and how the merge
// of its reports compares with a plain version of the same step.

#include <benchmark/benchmark.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "files/files.h"
#include "game_on_disk.h"
#include "loading/load_game.h"
#include "loading/report_merge.h"
#include "ratio_reporter.h"
#include "reference/plain_merge.h"

namespace quorvane {
namespace {

using generator::GameShape;

constexpr GameShape kTiny = {.Side = 400, .PlanetCount = 32, .PlayerCount = 4, .ReportCount = 4};
constexpr GameShape kMedium = {
    .Side = 1200, .PlanetCount = 350, .PlayerCount = 10, .ReportCount = 10};

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
  const Result<GameSession> loaded = LoadGame(Game<kHugeShape>().Choice(100), "", {});
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
    const Result<GameSession> session = LoadGame(choice, "", {});
    if (!session) return state.SkipWithError(session.Message().c_str());
    benchmark::DoNotOptimize(session->InfluenceGrid.Size());
  }
}

void RegisterMerges() {
  using reference::NameComparison;
  constexpr std::pair<const char*, NameComparison> kComparisons[] = {
      {"merge of 16 reports, trimmed texts", NameComparison::Texts},
      {"merge of 16 reports, trimmed views", NameComparison::Views}};
  for (const auto& [name, comparison] : kComparisons) {
    Register("fast/" + std::string(name),
             [](benchmark::State& state) { MeasureMerge(state, MergeFromDisk); });
    Register("plain/" + std::string(name), [comparison](benchmark::State& state) {
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
  constexpr LoadCase kLoads[] = {{"fast/load tiny, S=100", Game<kTiny>, 100, 0},
                                 {"fast/load medium, S=100", Game<kMedium>, 100, 0},
                                 {"fast/load huge, S=100", Game<kHugeShape>, 100, 50},
                                 {"fast/load huge, S=500", Game<kHugeShape>, 500, 90}};
  for (const LoadCase& load : kLoads) {
    const auto measure = [load](benchmark::State& state) {
      MeasureLoad(state, load.Game().Choice(load.SoiSetting));
    };
    Register(load.Name, measure, load.TargetMilliseconds);
  }
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  quorvane::RegisterMerges();
  quorvane::RegisterLoads();
  return quorvane::RunRatioBenchmarks(argc, argv);
}

// How long the influence computation takes, against the plain loop over all points and planets.

#include <benchmark/benchmark.h>

#include <string>
#include <utility>

#include "loading/influence.h"
#include "ratio_reporter.h"
#include "reference/plain_influence.h"
#include "synthetic_game.h"

namespace quorvane {
namespace {

template <typename Compute>
void Register(const std::string& name, const InfluenceGameShape& shape, Compute compute) {
  const auto run = [shape, compute](benchmark::State& state) {
    GameSession session = MakeInfluenceGame(shape);
    for (auto _ : state) {
      compute(session);
      benchmark::DoNotOptimize(session.InfluenceGrid.At(0, 0));
    }
  };
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->Unit(benchmark::kMillisecond)
      ->MinTime(0.2)
      ->Repetitions(3);
}

void RegisterGames() {
  const std::pair<const char*, InfluenceGameShape> games[] = {
      {"tiny", kTinyGame}, {"medium", kMediumGame}, {"huge", kHugeGame}, {"vast", kVastGame}};
  for (const auto& [name, game] : games) {
    for (const int soiSetting : {100, 500}) {
      InfluenceGameShape shape = game;
      shape.SoiSetting = soiSetting;
      const std::string what =
          "influence " + std::string(name) + ", S=" + std::to_string(soiSetting);
      Register("fast/" + what, shape, [](GameSession& session) { ComputeInfluence(session, {}); });
      Register("plain/" + what, shape, &reference::PlainComputeInfluence);
    }
  }
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  quorvane::RegisterGames();
  return quorvane::RunRatioBenchmarks(argc, argv);
}

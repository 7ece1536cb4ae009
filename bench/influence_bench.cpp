// How long the influence computation takes, against the plain loop over all points and planets.

#include <benchmark/benchmark.h>

#include <string>
#include <utility>

#include "influence/compute_influence.h"
#include "ratio_reporter.h"
#include "reference/plain_influence.h"
#include "synthetic_game.h"

namespace quorvane {
namespace {

// Registers a computation for a game of that shape.
template <typename Compute>
void RegisterGame(const std::string& name, const InfluenceGameShape& shape, Compute compute) {
  Register(name, [shape, compute](benchmark::State& state) {
    GameSession session = MakeInfluenceGame(shape);
    for (auto _ : state) {
      compute(session);
      benchmark::DoNotOptimize(session.InfluenceGrid.At(0, 0));
    }
  });
}

std::string NameOf(const char* game, int soiSetting) {
  return "influence " + std::string(game) + ", S=" + std::to_string(soiSetting);
}

void RegisterGames() {
  const std::pair<const char*, InfluenceGameShape> games[] = {
      {"tiny", kTinyGame}, {"medium", kMediumGame}, {"huge", kHugeGame}, {"vast", kVastGame}};
  for (const auto& [name, game] : games) {
    for (const int soiSetting : {100, 500}) {
      InfluenceGameShape shape = game;
      shape.SoiSetting = soiSetting;
      const std::string what = NameOf(name, soiSetting);
      RegisterGame("fast/" + what, shape,
                   [](GameSession& session) { ComputeInfluence(session, {}); });
      RegisterGame("plain/" + what, shape, &reference::PlainComputeInfluence);
    }
  }
  // The plain version would take minutes.
  RegisterGame("fast/" + NameOf("crowded", 500), kCrowdedGame,
               [](GameSession& session) { ComputeInfluence(session, {}); });
}

// What processors with narrower vectors need.
void RegisterNarrowVectors() {
  constexpr std::pair<const char*, InfluenceVectors> kWidths[] = {
      {", 128 bits", InfluenceVectors::Bits128}, {", 256 bits", InfluenceVectors::Bits256}};
  for (const auto& [name, vectors] : kWidths) {
    const auto compute = [vectors = vectors](GameSession& session) {
      ComputeInfluence(session, {}, vectors);
    };
    for (const int soiSetting : {100, 500}) {
      InfluenceGameShape shape = kHugeGame;
      shape.SoiSetting = soiSetting;
      RegisterGame("fast/" + NameOf("huge", soiSetting) + name, shape, compute);
      RegisterGame("plain/" + NameOf("huge", soiSetting) + name, shape,
                   &reference::PlainComputeInfluence);
    }
    RegisterGame("fast/" + NameOf("crowded", 500) + name, kCrowdedGame, compute);
  }
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  quorvane::RegisterGames();
  quorvane::RegisterNarrowVectors();
  return quorvane::RunRatioBenchmarks(argc, argv);
}

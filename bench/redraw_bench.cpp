// How long the map takes to answer the user on a huge game: a whole redraw, the complete network of
// stargates, and finding the planet under the pointer, each beside a plain version of the same.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "game_on_disk.h"
#include "loading/load_game.h"
#include "platform/toolkit/picture_surface.h"
#include "ratio_reporter.h"
#include "reference/plain_pick.h"
#include "reference/plain_surface.h"
#include "render/draw_overlays.h"
#include "render/planet_pick.h"
#include "synthetic_game.h"

namespace quorvane {
namespace {

constexpr QSize kMapSize = {700, 700};
constexpr int kGates = 240;
constexpr int kPicks = 1000;

// A game with its switches, and the two surfaces that it is drawn on.
template <typename Surface>
class Map {
 public:
  Map(const GameSession& session, const OverlaySwitches& switches)
      : session_(session), switches_(switches) {
    view_.ShowAll(session_.UniverseExtent);
  }

  void Redraw() {
    DrawOverlays({session_, view_, switches_, universe_, universe2_, {}, session_.DrawingLayer});
  }
  const QImage& Picture() const { return universe_.Picture(); }

 private:
  GameSession session_;
  MapView view_;
  OverlaySwitches switches_;
  Surface universe_{kMapSize};
  Surface universe2_{kMapSize};
};

// Everything but the stargates.
OverlaySwitches EverythingOn(const GameSession& session) {
  OverlaySwitches switches;
  for (const OverlayTexts& overlay : kOverlayTable) switches.Set(overlay.Kind, true);
  for (const OverlayKind off :
       {OverlayKind::ClearMap, OverlayKind::ZoomIn, OverlayKind::SafeStargateDistances,
        OverlayKind::CompleteStargateNetwork}) {
    switches.Set(off, false);
  }
  switches.RaceName = session.MyRaceName;
  return switches;
}

OverlaySwitches StargateNetworkOn() {
  OverlaySwitches switches;
  switches.Set(OverlayKind::CompleteStargateNetwork, true);
  return switches;
}

// The same game with so many stargates all over the map, each of which reaches all others.
GameSession WithGatesEverywhere(GameSession session) {
  for (int number = 1; number <= session.PlanetCount; ++number) {
    session.Planet(number)[PlanetField::GateRange] = 0;
  }
  for (int gate = 0; gate < kGates; ++gate) {
    const int number = 1 + gate * session.PlanetCount / kGates;
    session.Planet(number)[PlanetField::GateRange] = kUnlimitedGate;
  }
  return session;
}

template <typename Run>
void Register(const std::string& name, Run run, double targetMilliseconds = 0) {
  const auto measure = [run, targetMilliseconds](benchmark::State& state) {
    for (auto _ : state) run();
    if (targetMilliseconds > 0) state.counters["TargetMilliseconds"] = targetMilliseconds;
  };
  benchmark::RegisterBenchmark(name.c_str(), measure)
      ->Unit(benchmark::kMillisecond)
      ->MinTime(0.2)
      ->Repetitions(3);
}

// @return false when the two surfaces do not show the same
bool RegisterRedraw(const std::string& name, const GameSession& session,
                    const OverlaySwitches& switches, double targetMilliseconds) {
  const auto fast = std::make_shared<Map<PictureSurface>>(session, switches);
  const auto plain = std::make_shared<Map<reference::PlainSurface>>(session, switches);
  fast->Redraw();
  plain->Redraw();
  Register(
      "fast/" + name, [fast] { fast->Redraw(); }, targetMilliseconds);
  Register("plain/" + name, [plain] { plain->Redraw(); });
  return fast->Picture() == plain->Picture();
}

// @return false when the two ways find different planets
bool RegisterPicks(const InfluenceGameShape& shape, double targetMilliseconds) {
  const auto session = std::make_shared<GameSession>(MakeInfluenceGame(shape));
  MapView view;
  view.ShowAll(session->UniverseExtent);
  std::vector<SurfacePoint> pointers(kPicks);
  std::mt19937 dice(1);
  for (SurfacePoint& pointer : pointers) {
    pointer.X = static_cast<double>(dice() % kSurfaceUnits);
    pointer.Y = static_cast<double>(dice() % kSurfaceUnits);
  }
  const auto picks = [=](const auto& planetAt) {
    std::vector<int> planets;
    planets.reserve(pointers.size());
    for (const SurfacePoint& at : pointers) planets.push_back(planetAt(*session, view, at));
    return planets;
  };
  const std::string name =
      std::to_string(kPicks) + " picks of " + std::to_string(shape.Planets) + " planets";
  const auto fast = [picks] { benchmark::DoNotOptimize(picks(PlanetAt)); };
  const auto plain = [picks] { benchmark::DoNotOptimize(picks(reference::PlainPlanetAt)); };
  Register("fast/" + name, fast, targetMilliseconds);
  Register("plain/" + name, plain);
  return picks(PlanetAt) == picks(reference::PlainPlanetAt);
}

bool RegisterAll(const GameSession& session) {
  return RegisterRedraw("full redraw", session, EverythingOn(session), 25) &&
         RegisterRedraw("240 stargates, all links", WithGatesEverywhere(session),
                        StargateNetworkOn(), 80) &&
         RegisterPicks(kHugeGame, 10) && RegisterPicks(kVastGame, 60);
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  using namespace quorvane;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  generator::GameShape shape = kHugeShape;
  shape.HasCompanions = true;  // among them a drawing
  const Result<GameSession> session = LoadGame(GameOnDisk(shape).Choice(100), "", {});
  if (!session || !RegisterAll(*session)) {
    std::puts(session ? "The plain version gives another result." : session.Message().c_str());
    return 1;
  }
  return RunRatioBenchmarks(argc, argv);
}

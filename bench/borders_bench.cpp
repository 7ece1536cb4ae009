// How long a redraw of the map with the influence borders takes on a huge game: painted for the
// first time, and taken from the kept picture.

#include <benchmark/benchmark.h>

#include <QImage>
#include <chrono>

#include "loading/influence.h"
#include "platform/toolkit/picture_surface.h"
#include "reference/plain_borders.h"
#include "render/draw_overlays.h"
#include "synthetic_game.h"

namespace quorvane {
namespace {

constexpr QSize kMapSize = {700, 700};

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// A huge game whose borders are switched on, and the surfaces that they are drawn on.
struct Map {
  Map() {
    for (int player = 1; player <= Session.PlayerCount; ++player) {
      Session.Player(player)[PlayerField::ColourSlot] = player;
    }
    ComputeInfluence(Session, nullptr);
    View.ShowAll(Session.UniverseExtent);
    Switches.Set(OverlayKind::InfluenceBorders, true);
  }

  void Redraw() { DrawOverlays({Session, View, Switches, Universe, Universe2, nullptr}); }

  GameSession Session = MakeInfluenceGame(kHugeGame);
  MapView View;
  OverlaySwitches Switches;
  PictureSurface Universe{kMapSize};
  PictureSurface Universe2{kMapSize};
};

double ReferenceSeconds(const Map& map) {
  QImage picture(kMapSize, QImage::Format_RGB32);
  picture.fill(Qt::black);
  const int penWidth = map.Universe.WidthInTwips() / kSurfaceUnits + 2;
  const Clock::time_point start = Clock::now();
  reference::PlainInfluenceBorders(map.Session, map.View, picture, penWidth);
  return SecondsSince(start);
}

// Redraws as often as the benchmark asks for and shows how many times faster than round pens.
void MeasureRedraw(benchmark::State& state, Map& map, bool keepsBorders) {
  const double referenceSeconds = ReferenceSeconds(map);
  map.Redraw();
  const Clock::time_point start = Clock::now();
  for (auto _ : state) {
    if (!keepsBorders) map.Session.BordersCached = 0;
    map.Redraw();
    // A picture that is shared with its twin is only copied when the next overlay draws.
    map.Universe.Point({0, 0}, {0, 0, 0});
    benchmark::DoNotOptimize(map.Universe.Picture().constBits());
  }
  const double seconds = SecondsSince(start) / static_cast<double>(state.iterations());
  state.counters["TimesFasterThanRoundPens"] = referenceSeconds / seconds;
}

void FirstBorders(benchmark::State& state) {
  Map map;
  MeasureRedraw(state, map, false);
}
BENCHMARK(FirstBorders)->Unit(benchmark::kMillisecond);

void KeptBorders(benchmark::State& state) {
  Map map;
  MeasureRedraw(state, map, true);
}
BENCHMARK(KeptBorders)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace quorvane

BENCHMARK_MAIN();

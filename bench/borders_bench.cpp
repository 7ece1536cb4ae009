// How long a redraw of the map with the influence borders takes on a huge game: painted for the
// first time, and taken from the kept picture.

#include <benchmark/benchmark.h>

#include <QImage>
#include <memory>

#include "influence/compute_influence.h"
#include "map/overlay_stack.h"
#include "paint/picture_surface.h"
#include "ratio_reporter.h"
#include "reference/plain_borders.h"
#include "synthetic_game.h"

namespace quorvane {
namespace {

constexpr QSize kMapSize = {700, 700};

// A huge game whose borders are switched on, and the surfaces that they are drawn on.
struct Map {
  Map() {
    for (int player = 1; player <= Session.PlayerCount; ++player) {
      Session.Player(player)[PlayerField::ColourSlot] = player;
    }
    ComputeInfluence(Session, {});
    State = FirstMapState(Session);
    Switches.Set(OverlayKind::InfluenceBorders, true);
  }

  void Redraw() { DrawOverlayStack({Session, State, Switches, Universe, Universe2, {}}); }

  GameSession Session = MakeInfluenceGame(kHugeGame);
  MapState State;
  OverlaySwitches Switches;
  PictureSurface Universe{kMapSize};
  PictureSurface Universe2{kMapSize};
};

void RegisterRedraws() {
  const auto map = std::make_shared<Map>();
  const auto redraw = [map](bool keepsBorders) {
    if (!keepsBorders) map->State.BordersCached = 0;
    map->Redraw();
    // A picture that is shared with its twin is only copied when the next overlay draws.
    map->Universe.Point({0, 0}, {0, 0, 0});
  };
  const auto roundPens = [map] {
    QImage picture(kMapSize, QImage::Format_RGB32);
    picture.fill(Qt::black);
    const int penWidth = map->Universe.WidthInTwips() / kSurfaceUnits + 2;
    reference::PlainInfluenceBorders(map->Session, map->State.View, picture, penWidth);
  };
  RegisterStep(
      "fast/first borders, huge", [redraw] { redraw(false); }, 10);
  RegisterStep("plain/first borders, huge", roundPens);
  RegisterStep(
      "fast/kept borders, huge", [redraw] { redraw(true); }, 1);
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  quorvane::RegisterRedraws();
  return quorvane::RunRatioBenchmarks(argc, argv);
}

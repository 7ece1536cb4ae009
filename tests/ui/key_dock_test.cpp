#include "ui/key_dock.h"

#include <gtest/gtest.h>

#include "support/game_builder.h"
#include "support/map_views.h"

namespace quorvane {
namespace {

// How many pixels of the last sample have a colour.
int PixelsInLastSample(const KeyDock& dock, QColor colour) {
  QImage sample;
  for (const QLabel* label : dock.KeyList->widget()->findChildren<QLabel*>()) {
    if (!label->pixmap().isNull()) sample = label->pixmap().toImage();
  }
  int pixels = 0;
  for (int place = 0; place < sample.width() * sample.height(); ++place) {
    pixels += sample.pixelColor(place % sample.width(), place / sample.width()) == colour ? 1 : 0;
  }
  return pixels;
}

TEST(KeyDock, SampleThatIsLargerOnAZoomedMapIsShownWhole) {
  KeyDock dock(nullptr);
  OverlaySwitches switches;
  switches.Set(OverlayKind::OwnedPlanets, true);
  const GameSession session = GameBuilder().Planet("Alpha", {1500, 1500}).OwnedBy("Me").Build();
  for (const MapView& view : {FullView(), Zoomed(400, 400, 100), Zoomed(400, 400, 10)}) {
    dock.ShowKey(session, switches, view, {}, {700, 700});
    EXPECT_GT(PixelsInLastSample(dock, Qt::yellow), 10) << "the ring of a starbase";
    EXPECT_GT(PixelsInLastSample(dock, Qt::red), 4) << "the disc within";
  }
}

}  // namespace
}  // namespace quorvane

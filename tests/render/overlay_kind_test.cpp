#include "render/overlay_kind.h"

#include <gtest/gtest.h>

#include <set>

namespace quorvane {
namespace {

using Kind = OverlayKind;
using Kinds = std::set<Kind>;

Kinds KindsOn(const OverlaySwitches& switches) {
  Kinds on;
  for (const OverlayTexts& texts : kOverlayTable) {
    if (switches.IsOn(texts.Kind)) on.insert(texts.Kind);
  }
  return on;
}

TEST(OverlaySwitches, ClearMapLeavesTheZoomAndANewGameTerritoryEdgesAndEmpireExpansion) {
  OverlaySwitches cleared;
  for (const OverlayTexts& texts : kOverlayTable) cleared.Set(texts.Kind, true);
  OverlaySwitches begun = cleared;
  cleared.ClearMap();
  EXPECT_EQ(KindsOn(cleared), Kinds{Kind::ZoomIn});
  begun.BeginNewGame();
  EXPECT_EQ(KindsOn(begun), (Kinds{Kind::TerritoryEdges, Kind::EmpireExpansion}));
  begun.ClearMap();
  EXPECT_EQ(KindsOn(begun), Kinds()) << "nothing is switched on";
}

}  // namespace
}  // namespace quorvane

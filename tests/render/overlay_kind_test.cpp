#include "render/overlay_kind.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

OverlaySwitches On(std::initializer_list<OverlayKind> kinds) {
  OverlaySwitches switches;
  for (const OverlayKind kind : kinds) switches.Set(kind, true);
  return switches;
}

TEST(OverlaySwitches, ClearMapLeavesTheZoomAndANewGameTerritoryEdgesAndEmpireExpansion) {
  OverlaySwitches cleared;
  for (const OverlayTexts& texts : kOverlayTable) cleared.Set(texts.Kind, true);
  OverlaySwitches begun = cleared;
  cleared.ClearMap();
  EXPECT_EQ(cleared, On({OverlayKind::ZoomIn}));
  begun.BeginNewGame();
  EXPECT_EQ(begun, On({OverlayKind::TerritoryEdges, OverlayKind::EmpireExpansion}));
  begun.ClearMap();
  EXPECT_EQ(begun, On({})) << "nothing is switched on";
}

}  // namespace
}  // namespace quorvane

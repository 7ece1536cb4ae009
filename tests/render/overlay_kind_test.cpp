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

TEST(OverlaySwitches, OneKindOfNamesReplacesTheOther) {
  OverlaySwitches switches;
  switches.Toggle(Kind::NamesColoured);
  switches.Toggle(Kind::NamesWhite);
  EXPECT_EQ(KindsOn(switches), Kinds{Kind::NamesWhite});
  switches.Toggle(Kind::NamesColoured);
  EXPECT_EQ(KindsOn(switches), Kinds{Kind::NamesColoured});
  switches.Toggle(Kind::NamesColoured);
  EXPECT_EQ(KindsOn(switches), Kinds());
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

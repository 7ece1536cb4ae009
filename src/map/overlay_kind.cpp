#include "map/overlay_kind.h"

#include <initializer_list>

namespace quorvane {
namespace {

constexpr bool IsTableInOrder() {
  for (std::size_t i = 0; i < kOverlayCount; ++i) {
    const bool hasButton = !kOverlayTable[i].ButtonToolTip.empty();
    if (static_cast<std::size_t>(kOverlayTable[i].Kind) != i) return false;
    if (hasButton != (i < kOverlayButtonCount)) return false;
  }
  return true;
}
static_assert(IsTableInOrder(), "buttons and menus find an overlay's texts by its number");

}  // namespace

bool OverlaySwitches::ShowsAnything() const {
  OverlaySwitches overlays = *this;
  for (const OverlayKind view : {OverlayKind::ClearMap, OverlayKind::ZoomIn}) {
    overlays.Set(view, false);
  }
  return overlays.on_.any();
}

void OverlaySwitches::ClearMap() {
  const bool isZoomed = IsOn(OverlayKind::ZoomIn);
  on_.reset();
  Set(OverlayKind::ZoomIn, isZoomed);
}

void OverlaySwitches::BeginNewGame() {
  std::bitset<kOverlayCount> kept;
  for (const OverlayKind kind : {OverlayKind::TerritoryEdges, OverlayKind::EmpireExpansion}) {
    kept.set(static_cast<std::size_t>(kind));
  }
  on_ &= kept;
}

}  // namespace quorvane

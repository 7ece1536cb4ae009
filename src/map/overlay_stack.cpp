#include "map/overlay_stack.h"

#include <optional>

#include "map/map_shapes.h"
#include "map/overlays.h"
#include "map/stoppable_surface.h"

namespace quorvane {
namespace {

using Kind = OverlayKind;
using DrawLayer = void (*)(const MapDrawing& map, DrawingSurface& surface);

void Blank(DrawingSurface& surface) {
  surface.SetBackground(nullptr);
  surface.Clear();
}

// False when the user stopped it.
bool DrawBorders(const MapDrawing& map) {
  if (!map.Switches.IsOn(Kind::InfluenceBorders)) {
    Blank(map.Universe);
    return true;
  }
  const bool isZoomIn = map.Switches.IsOn(Kind::ZoomIn);
  if (map.State.BordersCached == 1 && !isZoomIn) {
    map.Universe.SetBackground(map.Universe2.Image());
    return true;
  }
  if (!DrawInfluenceBorders(map.Session, map.State.View, map.Universe, map.Progress)) return false;
  if (isZoomIn) return true;  // only the whole universe is worth keeping
  map.Universe2.SetBackground(map.Universe.Image());
  map.State.BordersCached = 1;
  return true;
}

// An overlay that depends on nothing but the game and the view.
template <auto DrawOverlay>
void Draw(const MapDrawing& map, DrawingSurface& surface) {
  DrawOverlay(map.Session, map.State.View, surface);
}

void DrawNames(const MapDrawing& map, DrawingSurface& surface) {
  DrawPlanetNames(map.Session, map.State.View, surface,
                  {.Coloured = map.Switches.IsOn(Kind::NamesColoured),
                   .Outlined = map.Options.OutlineNames,
                   .Fewer = map.Options.FewerNames,
                   .Selected = map.State.Selected()});
}

void DrawEstimatedHab(const MapDrawing& map, DrawingSurface& surface) {
  DrawEstimatedHabValues(map.Session, map.State.View, surface, map.Switches.RaceName);
}

void DrawStargateLinks(const MapDrawing& map, DrawingSurface& surface) {
  DrawStargates(map.Session, map.State.View, surface,
                map.Switches.IsOn(Kind::CompleteStargateNetwork),
                map.Options.GatesOfSelectedOnly ? map.State.Selected() : std::nullopt);
}

void DrawUserDrawing(const MapDrawing& map, DrawingSurface& surface) {
  DrawDrawingLayer(map.Drawing, map.State.View, surface);
}

// One overlay above the borders: what switches it on and what draws it.
struct Layer {
  Kind Switch;
  DrawLayer Draw;
  std::optional<Kind> OtherSwitch = std::nullopt;  // switches the same drawing on as well

  bool IsOn(const OverlaySwitches& switches) const {
    return switches.IsOn(Switch) || (OtherSwitch && switches.IsOn(*OtherSwitch));
  }
};

// The stack of overlays, the bottom one first.
constexpr Layer kLayers[] = {
    {Kind::ScannedPlanets, Draw<DrawScannedPlanets>},
    {Kind::SafeStargateDistances, DrawStargateLinks, Kind::CompleteStargateNetwork},
    {Kind::Planets, Draw<DrawPlanets>},
    {Kind::CurrentHabValues, Draw<DrawCurrentHabValues>},
    {Kind::OwnedPlanets, Draw<DrawOwnedPlanets>},
    {Kind::DifficultyOfAttack, Draw<DrawDifficultyOfAttack>},
    {Kind::Growth, Draw<DrawGrowth>},
    {Kind::QvlDrawing, DrawUserDrawing},
    {Kind::EstimateHabValues, DrawEstimatedHab},
    {Kind::NamesColoured, DrawNames, Kind::NamesWhite},
    {Kind::IroniumConcentration, Draw<DrawIroniumConcentration>},
    {Kind::BoraniumConcentration, Draw<DrawBoraniumConcentration>},
    {Kind::GermaniumConcentration, Draw<DrawGermaniumConcentration>},
    {Kind::AverageMineralConcentration, Draw<DrawAverageMineralConcentration>},
    {Kind::ReportAgeOverlay, Draw<DrawReportAge>},
    {Kind::ValueAfterTerraforming, Draw<DrawValueAfterTerraforming>},
    {Kind::EmpireExpansion, Draw<DrawEmpireExpansion>},
    {Kind::TerritoryEdges, Draw<DrawTerritoryEdges>},
};

}  // namespace

bool DrawOverlayStack(const MapDrawing& map) {
  Blank(map.Universe);
  if (!DrawBorders(map)) return false;
  StoppableSurface surface(map.Universe, map.Progress);
  for (const Layer& layer : kLayers) {
    if (layer.IsOn(map.Switches)) layer.Draw(map, surface);
  }
  return !surface.IsStopped();
}

}  // namespace quorvane

#include "render/draw_overlays.h"

#include <optional>

#include "render/influence_overlay.h"
#include "render/names_overlay.h"
#include "render/planets_overlay.h"

namespace quorvane {
namespace {

using Kind = OverlayKind;
using DrawLayer = void (*)(const MapDrawing& map);

void Blank(DrawingSurface& surface) {
  surface.SetBackground(nullptr);
  surface.Clear();
}

void DrawBorders(const MapDrawing& map) {
  if (!map.Switches.IsOn(Kind::InfluenceBorders)) {
    Blank(map.Universe);
    return;
  }
  const bool isZoomIn = map.Switches.IsOn(Kind::ZoomIn);
  if (map.Session.BordersCached == 1 && !isZoomIn) {
    map.Universe.SetBackground(map.Universe2.Image());
    return;
  }
  DrawInfluenceBorders(map.Session, map.View, map.Universe, map.Progress);
  if (isZoomIn) return;  // only the whole universe is worth keeping
  map.Universe2.SetBackground(map.Universe.Image());
  map.Session.BordersCached = 1;
}

void DrawPlanetsLayer(const MapDrawing& map) { DrawPlanets(map.Session, map.View, map.Universe); }

void DrawOwnedPlanetsLayer(const MapDrawing& map) {
  DrawOwnedPlanets(map.Session, map.View, map.Universe);
}

void DrawNamesLayer(const MapDrawing& map) {
  DrawPlanetNames(map.Session, map.View, map.Universe, map.Switches.IsOn(Kind::NamesColoured));
}

void DrawTerritoryEdgesLayer(const MapDrawing& map) {
  DrawTerritoryEdges(map.Session, map.View, map.Universe);
}

// One overlay above the borders: what switches it on and what draws it.
struct Layer {
  Kind Switch;
  DrawLayer Draw;                                  // nullptr: nothing draws it yet
  std::optional<Kind> OtherSwitch = std::nullopt;  // switches the same drawing on as well

  bool IsOn(const OverlaySwitches& switches) const {
    return switches.IsOn(Switch) || (OtherSwitch && switches.IsOn(*OtherSwitch));
  }
};

// The stack of overlays, the bottom one first.
constexpr Layer kLayers[] = {
    {Kind::ScannedPlanets, nullptr},
    {Kind::SafeStargateDistances, nullptr, Kind::CompleteStargateNetwork},
    {Kind::Planets, DrawPlanetsLayer},
    {Kind::CurrentHabValues, nullptr},
    {Kind::OwnedPlanets, DrawOwnedPlanetsLayer},
    {Kind::DifficultyOfAttack, nullptr},
    {Kind::Growth, nullptr},
    {Kind::QvlDrawing, nullptr},
    {Kind::EstimateHabValues, nullptr},
    {Kind::NamesColoured, DrawNamesLayer, Kind::NamesWhite},
    {Kind::IroniumConcentration, nullptr},
    {Kind::BoraniumConcentration, nullptr},
    {Kind::GermaniumConcentration, nullptr},
    {Kind::AverageMineralConcentration, nullptr},
    {Kind::ReportAgeOverlay, nullptr},
    {Kind::ValueAfterTerraforming, nullptr},
    {Kind::EmpireExpansion, nullptr},
    {Kind::TerritoryEdges, DrawTerritoryEdgesLayer},
};

}  // namespace

void DrawOverlays(const MapDrawing& map) {
  Blank(map.Universe);
  DrawBorders(map);
  for (const Layer& layer : kLayers) {
    if (layer.Draw != nullptr && layer.IsOn(map.Switches)) layer.Draw(map);
  }
}

}  // namespace quorvane

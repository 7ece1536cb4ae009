#include "map/overlay_stack.h"

#include <optional>
#include <string>
#include <vector>

#include "map/map_key.h"
#include "map/map_shapes.h"
#include "map/overlays.h"
#include "map/stoppable_surface.h"

namespace quorvane {
namespace {

using Kind = OverlayKind;
using DrawLayer = void (*)(const MapDrawing& map, DrawingSurface& surface);
using LayerKey = std::vector<KeyLine> (*)(const KeyAsked& asked);

// Begins the map anew with the borders, where they are on. False when the user stopped it.
bool DrawBorders(const MapDrawing& map) {
  if (!map.Switches.IsOn(Kind::InfluenceBorders)) {
    map.Universe.SetBackground(nullptr);
    return true;
  }
  const bool isZoomIn = map.Switches.IsOn(Kind::ZoomIn);
  if (map.State.BordersCached == 1 && !isZoomIn) {
    map.Universe.SetBackground(map.Universe2.Image());
    return true;
  }
  map.Universe.SetBackground(nullptr);
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

// One overlay above the borders: what switches it on, what draws it and what explains it.
struct Layer {
  Kind Switch;
  DrawLayer Draw;
  LayerKey Key;
  std::optional<Kind> OtherSwitch = std::nullopt;  // switches the same drawing on as well

  bool IsOn(const OverlaySwitches& switches) const {
    return switches.IsOn(Switch) || (OtherSwitch && switches.IsOn(*OtherSwitch));
  }
};

// The stack of overlays, the bottom one first.
constexpr Layer kLayers[] = {
    {Kind::ScannedPlanets, Draw<DrawScannedPlanets>, ScannedPlanetsKey},
    {Kind::SafeStargateDistances, DrawStargateLinks, StargatesKey, Kind::CompleteStargateNetwork},
    {Kind::Planets, Draw<DrawPlanets>, PlanetsKey},
    {Kind::CurrentHabValues, Draw<DrawCurrentHabValues>, CurrentHabKey},
    {Kind::OwnedPlanets, Draw<DrawOwnedPlanets>, OwnedPlanetsKey},
    {Kind::DifficultyOfAttack, Draw<DrawDifficultyOfAttack>, DifficultyKey},
    {Kind::Growth, Draw<DrawGrowth>, GrowthKey},
    {Kind::QvlDrawing, DrawUserDrawing, DrawingKey},
    {Kind::EstimateHabValues, DrawEstimatedHab, EstimatedHabKey},
    {Kind::NamesColoured, DrawNames, NamesKey, Kind::NamesWhite},
    {Kind::IroniumConcentration, Draw<DrawIroniumConcentration>, IroniumKey},
    {Kind::BoraniumConcentration, Draw<DrawBoraniumConcentration>, BoraniumKey},
    {Kind::GermaniumConcentration, Draw<DrawGermaniumConcentration>, GermaniumKey},
    {Kind::AverageMineralConcentration, Draw<DrawAverageMineralConcentration>, AverageMineralKey},
    {Kind::ReportAgeOverlay, Draw<DrawReportAge>, ReportAgeKey},
    {Kind::ValueAfterTerraforming, Draw<DrawValueAfterTerraforming>, TerraformedKey},
    {Kind::EmpireExpansion, Draw<DrawEmpireExpansion>, ExpansionKey},
    {Kind::TerritoryEdges, Draw<DrawTerritoryEdges>, TerritoryEdgesKey},
};

}  // namespace

bool DrawOverlayStack(const MapDrawing& map) {
  if (!DrawBorders(map)) return false;
  StoppableSurface surface(map.Universe, map.Progress);
  for (const Layer& layer : kLayers) {
    if (layer.IsOn(map.Switches)) layer.Draw(map, surface);
  }
  return !surface.IsStopped();
}

std::vector<KeySection> MapKey(const KeyAsked& asked) {
  std::vector<KeySection> sections;
  const auto add = [&](Kind kind, LayerKey key) {
    const OverlayTexts& texts = kOverlayTable[static_cast<std::size_t>(kind)];
    sections.push_back({std::string(texts.MenuCaption), key(asked)});
  };
  if (asked.Switches.IsOn(Kind::InfluenceBorders)) add(Kind::InfluenceBorders, InfluenceKey);
  for (const Layer& layer : kLayers) {
    // Where both are on, the other switch decides what is drawn.
    const bool isOther = layer.OtherSwitch && asked.Switches.IsOn(*layer.OtherSwitch);
    if (layer.IsOn(asked.Switches)) add(isOther ? *layer.OtherSwitch : layer.Switch, layer.Key);
  }
  return sections;
}

}  // namespace quorvane

#include "map/overlay_sets.h"

#include <algorithm>
#include <initializer_list>
#include <sstream>

#include "model/text.h"

namespace quorvane {
namespace {

bool CanBeInSet(OverlayKind kind) {
  return kind != OverlayKind::ClearMap && kind != OverlayKind::ZoomIn;
}

bool NeedsNewReports(OverlayKind kind) {
  return kind == OverlayKind::ValueAfterTerraforming ||
         kind == OverlayKind::CompleteStargateNetwork;
}

OverlaySet SetOf(const char* name, std::initializer_list<OverlayKind> kinds) {
  OverlaySet set = {.Name = name, .Switches = {}};
  for (const OverlayKind kind : kinds) set.Switches.Set(kind, true);
  return set;
}

// What of the switches belongs to a set.
OverlaySwitches SetPart(const OverlaySwitches& switches) {
  OverlaySwitches part;
  for (const OverlayTexts& overlay : kOverlayTable) {
    part.Set(overlay.Kind, CanBeInSet(overlay.Kind) && switches.IsOn(overlay.Kind));
  }
  return part;
}

}  // namespace

std::vector<OverlaySet> FirstOverlaySets() {
  using enum OverlayKind;
  return {SetOf("Territories", {InfluenceBorders, TerritoryEdges, OwnedPlanets, NamesColoured}),
          SetOf("Scanners", {ScannedPlanets}),
          SetOf("Minerals", {AverageMineralConcentration, IroniumConcentration,
                             BoraniumConcentration, GermaniumConcentration}),
          SetOf("Habitability", {CurrentHabValues, ValueAfterTerraforming}),
          SetOf("Population", {OwnedPlanets, Growth}),
          SetOf("Stargates", {SafeStargateDistances, OwnedPlanets, NamesColoured})};
}

std::string OverlaysText(const OverlaySwitches& switches) {
  std::string text;
  for (const OverlayTexts& overlay : kOverlayTable) {
    if (!CanBeInSet(overlay.Kind) || !switches.IsOn(overlay.Kind)) continue;
    if (!text.empty()) text += ' ';
    text += overlay.MenuName;
  }
  return text;
}

OverlaySwitches OverlaysFromText(std::string_view text) {
  OverlaySwitches switches;
  std::istringstream names{std::string(text)};
  for (std::string name; names >> name;) {
    const auto overlay = std::ranges::find(kOverlayTable, name, &OverlayTexts::MenuName);
    if (overlay != kOverlayTable.end()) switches.Set(overlay->Kind, CanBeInSet(overlay->Kind));
  }
  // At most one kind of names is shown.
  if (switches.IsOn(OverlayKind::NamesColoured)) switches.Set(OverlayKind::NamesWhite, false);
  return switches;
}

OverlaySwitches SwitchesFor(const OverlaySet& set, const OverlaySwitches& current,
                            bool hasNewReports) {
  OverlaySwitches switches = SetPart(set.Switches);
  for (const OverlayTexts& overlay : kOverlayTable) {
    if (NeedsNewReports(overlay.Kind) && !hasNewReports) switches.Set(overlay.Kind, false);
  }
  switches.Set(OverlayKind::ZoomIn, current.IsOn(OverlayKind::ZoomIn));
  switches.RaceName = current.RaceName;
  return switches;
}

bool IsShown(const OverlaySet& set, const OverlaySwitches& current, bool hasNewReports) {
  return current.ShowsAnything() && SwitchesFor(set, current, hasNewReports) == current;
}

Result<void> SaveAsSet(std::vector<OverlaySet>& sets, std::string_view name,
                       const OverlaySwitches& switches) {
  const std::string trimmed(Trimmed(name));
  const OverlaySet set = {.Name = trimmed, .Switches = SetPart(switches)};
  if (trimmed.empty()) return Failure{"A set needs a name"};
  if (!set.Switches.ShowsAnything()) {
    return Failure{"Switch on the overlays of the set first; no overlay is on now"};
  }
  const auto known = std::ranges::find_if(
      sets, [&](const OverlaySet& each) { return EqualIgnoringCase(each.Name, trimmed); });
  if (known != sets.end()) {
    *known = set;
  } else if (sets.size() < kMostOverlaySets) {
    sets.push_back(set);
  } else {
    return Failure{"There are nine sets already; take the name of one of them, or remove one"};
  }
  return {};
}

}  // namespace quorvane

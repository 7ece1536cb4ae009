#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane {

/// The overlays of the map and its two view switches. The first twelve are the buttons `OvButt` 0
/// to 11, in this order; all of them have a menu item.
enum class OverlayKind : std::size_t {
  ClearMap,
  ZoomIn,
  Planets,
  SafeStargateDistances,
  InfluenceBorders,
  CurrentHabValues,
  OwnedPlanets,
  ScannedPlanets,
  DifficultyOfAttack,
  Growth,
  QvlDrawing,
  EstimateHabValues,
  NamesColoured,
  NamesWhite,
  IroniumConcentration,
  BoraniumConcentration,
  GermaniumConcentration,
  AverageMineralConcentration,
  ReportAgeOverlay,
  ValueAfterTerraforming,
  TerritoryEdges,
  EmpireExpansion,
  CompleteStargateNetwork,
};

inline constexpr std::size_t kOverlayCount = 23;
/// How many of them have a button; button k switches overlay k.
inline constexpr std::size_t kOverlayButtonCount = 12;

/// How an overlay is called on the screen.
struct OverlayTexts {
  OverlayKind Kind;
  std::string_view ButtonToolTip;  // empty: no button
  std::string_view ButtonCaption;  // empty: the button shows a picture
  std::string_view MenuName;       // the menu item's control name
  std::string_view MenuCaption;
};

/// All overlays, in the order of `OverlayKind`.
inline constexpr std::array<OverlayTexts, kOverlayCount> kOverlayTable = {{
    {OverlayKind::ClearMap, "Clear Map", "", "mnuToolBarButClear", "Clear Map"},
    {OverlayKind::ZoomIn, "Zoom In (Keeps existing Overlays)", "", "mnuToolBarButZoom", "Zoom"},
    {OverlayKind::Planets, "Show Universe", "", "mnuToolBarBut(2)", "Planets"},
    {OverlayKind::SafeStargateDistances, "Show Safe Stargate Travel", "", "mnuToolBarBut(3)",
     "Safe Startgate Distances"},
    {OverlayKind::InfluenceBorders, "Show Borders/Territories", "", "mnuToolBarBut(4)",
     "Influence Borders"},
    {OverlayKind::CurrentHabValues, "Show Hab values for your Race", "", "mnuToolBarBut(5)",
     "Current Hab Values"},
    {OverlayKind::OwnedPlanets, "Show Planets Owned", "", "mnuToolBarBut(6)", "Owned Planets"},
    {OverlayKind::ScannedPlanets, "Show Current Scanned Planets", "", "mnuToolBarBut(7)",
     "Current Scanned and Scan Ranges"},
    {OverlayKind::DifficultyOfAttack, "Show Difficulty of Attack", "", "mnuToolBarBut(8)",
     "Difficulty of Attack"},
    {OverlayKind::Growth, "Show Growth", "", "mnuToolBarBut(9)", "Growth for your Race"},
    {OverlayKind::QvlDrawing, "Display QVL", "QVL", "mnuToolBarBut(10)", "QVL Drawing"},
    {OverlayKind::EstimateHabValues, "Display QVL", "Show Est Hab >", "mnuToolBarBut(11)",
     "Estimate Hab Values"},
    {OverlayKind::NamesColoured, "", "", "mnuNames(0)", "Show Names (Coloured)"},
    {OverlayKind::NamesWhite, "", "", "mnuNames(1)", "Show Names (White)"},
    {OverlayKind::IroniumConcentration, "", "", "mnuIron", "Ironium Concentration"},
    {OverlayKind::BoraniumConcentration, "", "", "mnuBora", "Boranium Concentration"},
    {OverlayKind::GermaniumConcentration, "", "", "mnuGerm", "Germanium Concentration"},
    {OverlayKind::AverageMineralConcentration, "", "", "MnuAvgMC", "Average Mineral MC"},
    {OverlayKind::ReportAgeOverlay, "", "", "mnuAge", "Report Age"},
    {OverlayKind::ValueAfterTerraforming, "", "", "mnuTerra", "Value after Terraforming"},
    {OverlayKind::TerritoryEdges, "", "", "mnuTerrEdge", "Territory Edges"},
    {OverlayKind::EmpireExpansion, "", "", "mnuGPR", "Empire Expansion"},
    {OverlayKind::CompleteStargateNetwork, "", "", "mnuStarGate", "Complete Stargate Network"},
}};

/// Which overlays are on, as buttons and menu items show it.
class OverlaySwitches {
 public:
  bool IsOn(OverlayKind kind) const { return on_.test(static_cast<std::size_t>(kind)); }
  void Set(OverlayKind kind, bool isOn) { on_.set(static_cast<std::size_t>(kind), isOn); }
  /// Whether any overlay is on, however the map is zoomed.
  bool ShowsAnything() const;
  /// What Clear Map does: everything off, itself included, but the zoom stays as it is.
  void ClearMap();
  /// What every load does: all off but territory edges and empire expansion, which stay.
  void BeginNewGame();

  /// The text of the race chooser: whose habitability `EstimateHabValues` shows.
  std::string RaceName;

  bool operator==(const OverlaySwitches&) const = default;

 private:
  std::bitset<kOverlayCount> on_;
};

}  // namespace quorvane

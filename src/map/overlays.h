#pragma once

#include <optional>
#include <string_view>

#include "map/drawing_surface.h"
#include "map/map_options.h"
#include "map/map_view.h"
#include "model/game_session.h"
#include "model/progress.h"

namespace quorvane {

// The overlays of the map. Each sees the game, the view and a surface; it sets the pen that it
// needs and draws the planets, points or links that the view shows.

/// Paints every point of the influence grid in view as a dot in its holder's colour, dimmed by the
/// strength of the hold. The dots overlap into closed areas. Points that nobody holds, or a player
/// without a colour, stay as they are.
/// @return false when the user stopped it, which leaves all as it was
bool DrawInfluenceBorders(const GameSession& session, const MapView& view, DrawingSurface& surface,
                          const Progress& progress);

/// Draws dots in the full race colours along both sides of every line where the holder of the
/// influence grid changes.
void DrawTerritoryEdges(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// What is being scanned: the scanner ranges of planets in view as dark discs, the penetrating ones
/// above the normal ones, and a yellow point on every planet in view whose report is current. Only
/// per-player reports state scanner ranges.
void DrawScannedPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// The links between planets with stargates, each direction by the range of the gate that sends:
/// safe ones as green lines with two arrowheads. Links are drawn whether or not their planets are
/// in view.
/// @param isComplete whether dangerous links, up to five times the gate's range, are drawn as well,
///        from yellow to red as they get longer
/// @param only a stored position: none but the links that begin or end there
void DrawStargates(const GameSession& session, const MapView& view, DrawingSurface& surface,
                   bool isComplete, std::optional<StoredPoint> only = std::nullopt);

/// Every planet in view as a white dot with a black rim.
void DrawPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// Every owned planet in view as a disc in its owner's colour on a black one, wider and ringed in
/// yellow where a starbase orbits. Players without a colour are not drawn.
void DrawOwnedPlanets(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// Every planet in view whose habitability for the user's own race the report states, as a disc:
/// its colour tells the class of the value, its size the magnitude. Overlapping discs mix.
void DrawCurrentHabValues(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// The same with the habitability that `EstimatedHab` finds for a race. Planets never reported are
/// dull discs; a planet that is reported but whose environment is not known shows the value of the
/// planet before it.
/// @param raceName the race; with a name that no player has, only the dull discs are drawn
void DrawEstimatedHabValues(const GameSession& session, const MapView& view,
                            DrawingSurface& surface, std::string_view raceName);

/// Every planet in view by its habitability after terraforming: dull discs where that is 0 or not
/// known, over them red ones for negative values, over those green ones for positive values.
void DrawValueAfterTerraforming(const GameSession& session, const MapView& view,
                                DrawingSurface& surface);

/// How hard every populated planet in view would be to take: from green to red as its population
/// rises towards a million, redder still with a starbase.
void DrawDifficultyOfAttack(const GameSession& session, const MapView& view,
                            DrawingSurface& surface);

/// How full every productive planet of the user's own race in view is: from green to red as its
/// population nears what its habitability lets live there, blue to purple where nobody can live.
void DrawGrowth(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// How names are printed.
struct NameStyle {
  /// Whether owned planets' names take their owner's colour; all others are white.
  bool Coloured = false;
  /// Whether every letter has a dark outline. No outline covers a letter.
  bool Outlined = false;
  /// Whether names are left out that would overlap one that matters more: first comes the selected
  /// planet, then the user's own planets, starbases, and large populations.
  bool Fewer = false;
  /// The selected planet's stored position.
  std::optional<StoredPoint> Selected = std::nullopt;
};

/// Prints the name of every planet in view, centred under the planet.
void DrawPlanetNames(const GameSession& session, const MapView& view, DrawingSurface& surface,
                     const NameStyle& style);

/// The concentration of one mineral on every planet in view, as a disc of that radius in the
/// mineral's colour. The discs are drawn in whatever mode the surface was left in, so that they
/// mix with what lies beneath after the habitability overlays.
void DrawIroniumConcentration(const GameSession& session, const MapView& view,
                              DrawingSurface& surface);
void DrawBoraniumConcentration(const GameSession& session, const MapView& view,
                               DrawingSurface& surface);
void DrawGermaniumConcentration(const GameSession& session, const MapView& view,
                                DrawingSurface& surface);

/// The average of the three concentrations as the radius, all three mixed as the colour.
void DrawAverageMineralConcentration(const GameSession& session, const MapView& view,
                                     DrawingSurface& surface);

/// What every planet in view is worth for settling, from its minerals and its habitability: large
/// and green, middling and yellow to orange, or small and red to purple where nothing is to be had.
void DrawEmpireExpansion(const GameSession& session, const MapView& view, DrawingSurface& surface);

/// How old the newest report of every reported planet in view is: from green for a current one to
/// red after 26 years.
void DrawReportAge(const GameSession& session, const MapView& view, DrawingSurface& surface);

}  // namespace quorvane

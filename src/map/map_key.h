#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "map/drawing_surface.h"
#include "map/map_options.h"
#include "map/map_view.h"
#include "map/overlay_kind.h"
#include "model/game_session.h"

namespace quorvane {

/// One thing that an overlay shows: a sample of it and what it means.
struct KeyLine {
  std::string Words;
  /// Draws the sample around a place, as the overlay draws it on the map.
  std::function<void(DrawingSurface& surface, SurfacePoint at)> Draw;
  /// How far the sample reaches from that place, in surface units.
  double Reach = 0;
};

/// What one overlay shows.
struct KeySection {
  std::string Title;
  std::vector<KeyLine> Lines;
};

/// What the key of an overlay depends on.
struct KeyAsked {
  const GameSession& Session;
  const OverlaySwitches& Switches;
  const MapView& View;
  MapOptions Options = {};
  /// The map picture's own width, as `DrawingSurface` tells it.
  int MapWidthInTwips = 0;
};

/// The key to the map: the overlays that are on, in the order in which they are drawn.
std::vector<KeySection> MapKey(const KeyAsked& asked);

/// The longest of 1, 2, 5, 10, 20, 50 … light years that is not wider than a scale bar may be.
/// @param pixelsPerLightYear above 0
/// @return light years; 0 when not even one has room
int ScaleBarLength(double pixelsPerLightYear, double mostPixels);

// The keys of the overlays. Each stands beside its overlay and uses the same tables and functions,
// so that what the key says cannot differ from what the map shows.
std::vector<KeyLine> InfluenceKey(const KeyAsked& asked);
std::vector<KeyLine> TerritoryEdgesKey(const KeyAsked& asked);
std::vector<KeyLine> ScannedPlanetsKey(const KeyAsked& asked);
std::vector<KeyLine> StargatesKey(const KeyAsked& asked);
std::vector<KeyLine> PlanetsKey(const KeyAsked& asked);
std::vector<KeyLine> OwnedPlanetsKey(const KeyAsked& asked);
std::vector<KeyLine> NamesKey(const KeyAsked& asked);
std::vector<KeyLine> CurrentHabKey(const KeyAsked& asked);
std::vector<KeyLine> EstimatedHabKey(const KeyAsked& asked);
std::vector<KeyLine> TerraformedKey(const KeyAsked& asked);
std::vector<KeyLine> DifficultyKey(const KeyAsked& asked);
std::vector<KeyLine> GrowthKey(const KeyAsked& asked);
std::vector<KeyLine> DrawingKey(const KeyAsked& asked);
std::vector<KeyLine> IroniumKey(const KeyAsked& asked);
std::vector<KeyLine> BoraniumKey(const KeyAsked& asked);
std::vector<KeyLine> GermaniumKey(const KeyAsked& asked);
std::vector<KeyLine> AverageMineralKey(const KeyAsked& asked);
std::vector<KeyLine> ReportAgeKey(const KeyAsked& asked);
std::vector<KeyLine> ExpansionKey(const KeyAsked& asked);

// For these keys:

/// The colour that samples of what belongs to a race are drawn in: that of the user's own race,
/// else of the first one that has a colour.
Colour SampleRaceColour(const GameSession& session);
/// The player whose colour that is; 0: nobody's.
int SampleRace(const GameSession& session);
/// That colour and the one of another race, whose territory may lie beside it; the same one again
/// while no other race has a colour.
std::pair<Colour, Colour> SampleNeighbours(const GameSession& session);
/// The line about planets that nobody has explored.
KeyLine UnexploredKeyLine();

}  // namespace quorvane

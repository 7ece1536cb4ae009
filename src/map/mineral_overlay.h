#pragma once

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

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

}  // namespace quorvane

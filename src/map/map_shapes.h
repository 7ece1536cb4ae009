#pragma once

#include <span>
#include <string>

#include "map/drawing_surface.h"
#include "map/map_view.h"
#include "model/drawing_record.h"

namespace quorvane {

/// A drawing as it lies on the map picture, in surface units.
struct MapShape {
  DrawingKind Kind = DrawingKind::Line;
  SurfacePoint At;
  /// Where a line ends.
  SurfacePoint To;
  double Radius = 0;
  std::string Text;
  double Size = 0;  // points
  int ColourNumber = 1;
};

/// A line between two clicks on the map.
MapShape LineBetween(SurfacePoint from, SurfacePoint to, int colourNumber);
/// A circle around one click through another.
MapShape CircleThrough(SurfacePoint centre, SurfacePoint edge, int colourNumber);

/// A drawing of the map as a record in game coordinates, in whole light years.
DrawingRecord RecordOf(const MapShape& shape, const MapView& view);
/// Where the map shows a record.
MapShape ShapeOf(const DrawingRecord& record, const MapView& view);

/// Where another view of the same game shows a place, or a shape.
SurfacePoint MovedTo(const MapView& view, SurfacePoint at, const MapView& from);
MapShape MovedTo(const MapView& view, MapShape shape, const MapView& from);

/// Draws a shape; one with a colour that nobody has is left out.
void DrawShape(const MapShape& shape, DrawingSurface& surface);

/// Draws the user's drawing layer, in its order.
void DrawDrawingLayer(std::span<const DrawingRecord> layer, const MapView& view,
                      DrawingSurface& surface);

}  // namespace quorvane

#include "map/map_shapes.h"

#include <algorithm>
#include <cmath>

#include "map/map_key.h"
#include "model/game_session.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr Pen kDrawingPen = {
    .Mode = DrawMode::Copy, .Style = DrawStyle::Solid, .Filled = false, .Width = 2};

SurfacePoint FromGame(std::int32_t x, std::int32_t y, const MapView& view) {
  return view.ToSurface(
      {static_cast<double>(x) - kUniverseOrigin, static_cast<double>(view.UniverseExtent) - y});
}

}  // namespace

MapShape LineBetween(SurfacePoint from, SurfacePoint to, int colourNumber) {
  return {.Kind = DrawingKind::Line, .At = from, .To = to, .ColourNumber = colourNumber};
}

MapShape CircleThrough(SurfacePoint centre, SurfacePoint edge, int colourNumber) {
  const double x = centre.X - edge.X;
  const double y = centre.Y - edge.Y;
  return {.Kind = DrawingKind::Circle,
          .At = centre,
          .Radius = RoundHalfEven(std::sqrt(x * x + y * y)),
          .ColourNumber = colourNumber};
}

DrawingRecord RecordOf(const MapShape& shape, const MapView& view) {
  const GamePoint at = view.ToGame(shape.At);
  const GamePoint to = view.ToGame(shape.To);
  return {.Kind = shape.Kind,
          .X = ToWhole32(at.X),
          .Y = ToWhole32(at.Y),
          .X2 = ToWhole32(to.X),
          .Y2 = ToWhole32(to.Y),
          .Radius = FloorToWhole32(shape.Radius / view.MapScale),
          .Text = shape.Text,
          .Size = shape.Size,
          .ColourNumber = shape.ColourNumber};
}

MapShape ShapeOf(const DrawingRecord& record, const MapView& view) {
  return {.Kind = record.Kind,
          .At = FromGame(record.X, record.Y, view),
          .To = FromGame(record.X2, record.Y2, view),
          .Radius = record.Radius * view.MapScale,
          .Text = record.Text,
          .Size = record.Size,
          .ColourNumber = record.ColourNumber};
}

SurfacePoint MovedTo(const MapView& view, SurfacePoint at, const MapView& from) {
  return view == from ? at : view.ToSurface(from.ToStored(at));
}

MapShape MovedTo(const MapView& view, MapShape shape, const MapView& from) {
  if (view == from) return shape;
  shape.At = MovedTo(view, shape.At, from);
  shape.To = MovedTo(view, shape.To, from);
  shape.Radius *= view.MapScale / from.MapScale;
  return shape;
}

void DrawShape(const MapShape& shape, DrawingSurface& surface) {
  const auto index = static_cast<std::size_t>(shape.ColourNumber) - 1;
  if (index >= DrawColours.size()) return;
  const Colour colour = DrawColours[index];
  if (shape.Kind != DrawingKind::Text) surface.SetPen(kDrawingPen);
  switch (shape.Kind) {
    case DrawingKind::Line:
      surface.Line(shape.At, shape.To, colour);
      break;
    case DrawingKind::Circle:
      surface.Circle(shape.At, shape.Radius, colour);
      break;
    case DrawingKind::Text:
      surface.SetForeColour(colour);
      surface.SetFontSize(shape.Size);
      surface.Print(shape.At, shape.Text);
      break;
  }
}

void DrawDrawingLayer(std::span<const DrawingRecord> layer, const MapView& view,
                      DrawingSurface& surface) {
  surface.SetPen(kDrawingPen);
  const auto draw = [&](const DrawingRecord& record) { DrawShape(ShapeOf(record, view), surface); };
  if (!surface.BeginTopDown(layer.size())) {
    std::ranges::for_each(layer, draw);
    return;
  }
  std::ranges::for_each(layer.rbegin(), layer.rend(), draw);
  surface.EndTopDown();
}

std::vector<KeyLine> DrawingKey(const KeyAsked&) {
  constexpr double kReach = 100;
  const auto draw = [](DrawingSurface& surface, SurfacePoint at) {
    DrawShape(LineBetween({at.X - kReach, at.Y}, {at.X + kReach, at.Y}, 1), surface);
  };
  return {{"lines, circles and texts: drawn by hand", draw, kReach}};
}

}  // namespace quorvane

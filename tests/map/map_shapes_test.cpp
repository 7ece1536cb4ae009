#include "map/map_shapes.h"

#include <gtest/gtest.h>

#include "support/map_views.h"
#include "support/recording_surface.h"

namespace quorvane {
namespace {

const MapView kZoomed = Zoomed(300, 200, 500);  // 20 units to a light year

TEST(DrawDrawingLayer, ShowsEveryRecordInItsColourAtItsPlace) {
  const DrawingRecord layer[] = {
      {.X = 1350, .Y = 1750, .X2 = 1400, .Y2 = 1700, .ColourNumber = 2},
      {.Kind = DrawingKind::Circle, .X = 1400, .Y = 1700, .Radius = 10, .ColourNumber = 5},
      {.Kind = DrawingKind::Text, .X = 1400, .Y = 1700, .Text = "Home", .Size = 12},
      {.X = 1, .Y = 1, .ColourNumber = 0},
      {.X = 1, .Y = 1, .ColourNumber = 8}};
  RecordingSurface surface;
  DrawDrawingLayer(layer, kZoomed, surface);
  EXPECT_EQ(surface.Lines(), (Texts{"line 1000,1000 2000,2000 #ff0000 copy solid w2",
                                    "circle 2000,2000 r200 #ffff00 hollow copy solid w2",
                                    "text 2000,2000 \"Home\" #ffffff 12pt"}));
}

TEST(RecordOf, CountsWholeLightYearsFromTheClicks) {
  const DrawingRecord line = RecordOf(LineBetween({39.9, 40}, {0, 59.9}, 3), kZoomed);
  EXPECT_EQ(line, (DrawingRecord{.X = 1301, .Y = 1798, .X2 = 1300, .Y2 = 1798, .ColourNumber = 3}));
  const MapShape circle = CircleThrough({100, 100}, {130, 140.6}, 1);
  EXPECT_EQ(circle.Radius, 50);  // 50.5 units
  EXPECT_EQ(RecordOf(circle, kZoomed).Radius, 2);
  EXPECT_EQ(RecordOf(CircleThrough({1, 1}, {1, 1}, 1), kZoomed).Radius, 0);
}

}  // namespace
}  // namespace quorvane

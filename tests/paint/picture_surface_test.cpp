#include "paint/picture_surface.h"

#include <gtest/gtest.h>

#include <QBitmap>
#include <limits>
#include <tuple>

#include "map/overlays.h"
#include "support/game_builder.h"

namespace quorvane {
namespace {

constexpr Colour kRed = {255, 0, 0};
constexpr Colour kBlue = {0, 0, 255};

// A picture whose logical units are its pixels, so that drawings can be read off pixel by pixel.
PictureSurface SmallPicture(int width, int height) {
  return PictureSurface({width, height}, 1, QSizeF(width, height));
}

// The pixels row by row: R for red, B for blue, '.' for black, '/' after a row.
std::string Shown(const PictureSurface& surface) {
  const QImage& picture = surface.Picture();
  std::string shown;
  for (int y = 0; y < picture.height(); ++y) {
    if (y > 0) shown += '/';
    for (int x = 0; x < picture.width(); ++x) {
      const Colour colour = ColourFrom(picture.pixel(x, y));
      shown += colour.Red > 0 ? 'R' : colour.Blue > 0 ? 'B' : '.';
    }
  }
  return shown;
}

TEST(PictureSurface, DiscMayBeMuchLargerThanThePictureOrNothing) {
  PictureSurface surface = SmallPicture(5, 2);
  surface.SetPen({.Style = DrawStyle::NoOutline, .Filled = true});
  surface.SetFillColour(kBlue);
  surface.Circle({-1e8, 1.5}, 1e8 + 2, kRed);
  surface.Circle({4.5, 0.5}, 0, kRed);
  EXPECT_EQ(Shown(surface), "BB.../BB...");
}

TEST(PictureSurface, LinesStepThroughTheNearestPixelsWhicheverEndComesFirstHoweverLong) {
  const std::tuple<SurfacePoint, SurfacePoint, const char*> cases[] = {
      {{2.9, 3.1}, {2.1, 3.9}, "...../...../...../..R../....."},
      // Half a pixel between two: the one that the line leaves on its way right or down.
      {{0, 0}, {4, 2}, "RR.../..RR./....R/...../....."},
      {{0, 0}, {2, 4}, "R..../R..../.R.../.R.../..R.."},
      {{-1, 1.5}, {9, 3.5}, "...../RR.../..RRR/...../....."},
      {{-1e12, 4.5}, {1e300, 4.5}, "...../...../...../...../RRRRR"},
      {{-1e9, -1e9}, {2e9, 2e9}, "R..../.R.../..R../...R./....R"}};
  for (const auto& [from, to, expected] : cases) {
    PictureSurface there = SmallPicture(5, 5);
    PictureSurface back = SmallPicture(5, 5);
    there.Line(from, to, kRed);
    back.Line(to, from, kRed);
    EXPECT_EQ(Shown(there), expected) << "to " << to.X << "," << to.Y;
    EXPECT_EQ(Shown(back), expected) << "from " << to.X << "," << to.Y;
  }
}

TEST(PictureSurface, NothingHappensFarOutsideAndForWhatIsNoNumber) {
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  PictureSurface surface = SmallPicture(3, 3);
  surface.SetPen({.Filled = true, .Width = 3});
  for (const SurfacePoint place :
       {SurfacePoint{-5, 2}, {2, 1e9}, {-1e300, 1e300}, {kNan, 2}, {2, kNan}, {-kInfinity, 2}}) {
    surface.Point(place, kRed);
    surface.Circle(place, 2, kRed);
    surface.Line(place, {place.X * 1.5, place.Y}, kRed);
  }
  for (const double radius : {kNan, -1.0}) surface.Circle({1, 1}, radius, kRed);
  EXPECT_EQ(Shown(surface), ".../.../...");
}

TEST(PictureSurface, BackgroundLiesBelowAndClearingGoesBackToIt) {
  PictureSurface surface = SmallPicture(2, 1);
  surface.Point({0, 0}, kRed);
  const auto image = surface.Image();
  surface.Point({1, 0}, kBlue);
  surface.SetBackground(image);
  EXPECT_EQ(Shown(surface), "R.") << "the image alone, as it was when taken";
  surface.Point({1, 0}, kBlue);
  surface.Clear();
  EXPECT_EQ(Shown(surface), "R.");
  surface.SetBackground(nullptr);
  EXPECT_EQ(Shown(surface), "..");
}

TEST(PictureSurface, ResizedPictureIsBlankKeepsThePenAndRefusesBackgroundsOfTheOldSize) {
  PictureSurface surface = SmallPicture(2, 2);
  surface.SetPen({.Width = 2});
  surface.Point({1, 1}, kRed);
  const auto image = surface.Image();
  EXPECT_FALSE(surface.Resize({2, 2}, 1));
  EXPECT_EQ(Shown(surface), "RR/RR");
  EXPECT_TRUE(surface.Resize({3, 3}, 2));  // the scale and the pen of ordinary pixels stay
  EXPECT_EQ(surface.WidthInTwips(), 45);
  surface.SetBackground(image);
  surface.Point({1, 1}, kBlue);
  EXPECT_EQ(Shown(surface), "....../.BBBB./.BBBB./.BBBB./.BBBB./......");
}

// A universe that one player holds.
GameSession HeldUniverse(int extent) {
  GameSession session = GameBuilder().Player("A").Build();
  session.UniverseExtent = extent;
  session.GridCellSize = (extent - kUniverseOrigin) / 650.0;
  session.CreateInfluenceGrid(650);
  for (int gx = 0; gx <= 650; ++gx) {
    for (int gy = 0; gy <= 650; ++gy) session.InfluenceGrid.At(gx, gy) = {1, 100};
  }
  return session;
}

TEST(InfluenceBorders, CloseTheAreaAtEveryScaleSizeAndZoom) {
  // Universe, map and window; points of the small universe lie up to a light year apart, which is
  // more than a step of its grid.
  const std::tuple<int, int, int> cases[] = {
      {1400, 1203, 1400}, {1400, 501, 5}, {3000, 667, 3000}, {3000, 501, 1530}, {3000, 334, 437}};
  for (const auto& [extent, side, window] : cases) {
    const GameSession session = HeldUniverse(extent);
    MapView view;
    view.ShowAll(extent);
    if (window < extent) view.ShowWindow(37, 91, window);
    for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
      PictureSurface surface({side, side}, ratio);
      DrawInfluenceBorders(session, view, surface, {});
      const QImage black = surface.Picture().createMaskFromColor(RgbOf({0, 0, 0}));
      EXPECT_EQ(QRegion(QBitmap::fromImage(black)).rectCount(), 1)
          << window << " of " << extent << " light years on " << side << " x " << ratio;
    }
  }
}

}  // namespace
}  // namespace quorvane

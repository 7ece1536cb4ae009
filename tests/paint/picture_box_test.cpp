#include "paint/picture_box.h"

#include <gtest/gtest.h>

#include <QTest>
#include <vector>

#include "paint/picture_shapes.h"

namespace quorvane {
namespace {

constexpr Colour kRed = {255, 0, 0};

class PictureBoxTest : public testing::Test {
 protected:
  PictureBoxTest() {
    box.resize(100, 100);
    box.show();
  }

  PictureBox box{nullptr, QSizeF(1000, 1000)};
};

TEST_F(PictureBoxTest, MouseArrivesInLogicalUnits) {
  std::vector<SurfacePoint> places;
  const auto keep = [&](SurfacePoint at) { places.push_back(at); };
  QObject::connect(&box, &PictureBox::MouseDown, keep);
  QObject::connect(&box, &PictureBox::MouseMove, keep);
  QTest::mousePress(&box, Qt::RightButton, Qt::ShiftModifier, {30, 70});
  QTest::mouseMove(&box, {50, 10});
  EXPECT_EQ(places, (std::vector<SurfacePoint>{{300, 700}, {500, 100}}));
}

TEST_F(PictureBoxTest, ShapesLieAboveThePictureAreNoPartOfItAndKeepTheirPlace) {
  SquareShape square(box, "square");
  square.SetLineColour(kRed);
  square.Place({200, 300}, 400);
  LineShape line(box, "line");
  line.SetLineColour(kRed);
  line.Place({990, 900}, {0, 900});
  square.show();
  line.show();
  for (const int scale : {1, 2}) {
    box.resize(100 * scale, 100 * scale);
    const QImage shown = box.grab().toImage();
    EXPECT_EQ(shown.pixel(60 * scale, 50 * scale), RgbOf(kRed));
    EXPECT_EQ(shown.pixel(40 * scale, 50 * scale), RgbOf({0, 0, 0})) << "an outline only";
    EXPECT_EQ(shown.pixel(50 * scale, 90 * scale), RgbOf(kRed));
    EXPECT_EQ(box.Surface().Picture().pixel(50 * scale, 90 * scale), RgbOf({0, 0, 0}));
  }
  EXPECT_EQ(box.childAt(100, 100), nullptr) << "the mouse goes through";
}

TEST_F(PictureBoxTest, DarkSidesMakeALineStandOutFromABrightPicture) {
  box.Surface().SetPen({.Style = DrawStyle::NoOutline, .Filled = true});
  box.Surface().SetFillColour({255, 255, 0});
  box.Surface().Circle({500, 500}, 900, {});
  SquareShape square(box, "square");
  square.AddDarkSides();
  square.SetLineColour(kRed);
  square.Place({200, 300}, 400);
  square.show();
  const QImage shown = box.grab().toImage();
  for (const int line : {20, 60}) {
    EXPECT_EQ(shown.pixel(line, 50), RgbOf(kRed));
    for (const int side : {-1, 1}) {
      EXPECT_EQ(shown.pixel(line + side, 50), RgbOf({0, 0, 0}));
      EXPECT_EQ(shown.pixel(line + 2 * side, 50), RgbOf({255, 255, 0}));
    }
  }
}

}  // namespace
}  // namespace quorvane

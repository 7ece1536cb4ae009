#include "platform/toolkit/picture_box.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "platform/toolkit/twips.h"

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

TEST_F(PictureBoxTest, PictureFollowsTheWidgetsSizeAndSaysSo) {
  QSignalSpy resized(&box, &PictureBox::Resized);
  box.resize(120, 120);
  EXPECT_EQ(resized.count(), 1);
  EXPECT_EQ(box.Surface().WidthInTwips(), 1800);
}

TEST_F(PictureBoxTest, MouseArrivesInLogicalUnitsWithItsMasks) {
  QSignalSpy down(&box, &PictureBox::MouseDown);
  QSignalSpy move(&box, &PictureBox::MouseMove);
  QTest::mousePress(&box, Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier, {30, 70});
  QTest::mouseMove(&box, {50, 10});
  EXPECT_EQ(down.value(0), (QList<QVariant>{2, 3, 300.0, 700.0}));
  EXPECT_EQ(move.value(0).mid(2), (QList<QVariant>{500.0, 100.0}));
}

TEST_F(PictureBoxTest, ShapesAreShownAboveThePictureButAreNoPartOfIt) {
  OutlineShape& outline = box.AddOutline();
  outline = {.Left = 200, .Top = 300, .Width = 400, .Height = 400, .OutlineColour = kRed};
  box.AddLine() = {.From = {0, 900}, .To = {990, 900}, .LineColour = kRed, .Visible = true};
  EXPECT_EQ(box.grab().toImage().pixel(20, 50), RgbOf({0, 0, 0})) << "hidden";

  outline.Visible = true;
  const QImage shown = box.grab().toImage();
  EXPECT_EQ(shown.pixel(60, 50), RgbOf(kRed));
  EXPECT_EQ(shown.pixel(40, 50), RgbOf({0, 0, 0})) << "an outline only";
  EXPECT_EQ(shown.pixel(50, 90), RgbOf(kRed));
  EXPECT_EQ(box.Surface().Picture().pixel(50, 90), RgbOf({0, 0, 0}));
}

}  // namespace
}  // namespace quorvane

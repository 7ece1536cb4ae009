#include "screens/main_layout.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(LayOutMain, FollowsTheWindowsHeightAndWidthAndLeavesASmallOneAsItIs) {
  const auto layout = LayOutMain(12900, 19200);
  ASSERT_TRUE(layout);
  EXPECT_EQ(layout->Universe, (TwipRect{0, 560, 11315, 11315}));
  EXPECT_EQ(layout->Detail, (TwipRect{11390, 8170, 4515, 3705}));
  EXPECT_EQ(layout->XYCoord, (TwipRect{0, 11880, 2263, 285}));
  EXPECT_EQ(layout->ThePlanet, (TwipRect{2313, 11880, 3429, 285}));
  EXPECT_EQ(layout->ProgressBar, (TwipRect{5792, 11880, 5520, 285}));
  EXPECT_EQ(layout->Race[7], (TwipRect{14640, 3000, 1545, 255}));
  EXPECT_EQ(layout->RaceC[8], (TwipRect{18435, 840, 645, 330}));
  EXPECT_TRUE(LayOutMain(5001, 3001));
  EXPECT_FALSE(LayOutMain(5000, 3001) || LayOutMain(5001, 3000));
}

TEST(OverlayButtonRect, TheTwoCaptionedButtonsStandApart) {
  EXPECT_EQ(OverlayButtonRect(9), (TwipRect{4950, 0, 550, 550}));
  EXPECT_EQ(OverlayButtonRect(10), (TwipRect{5565, 0, 550, 550}));
  EXPECT_EQ(OverlayButtonRect(11), (TwipRect{6180, 0, 1875, 550}));
}

}  // namespace
}  // namespace quorvane

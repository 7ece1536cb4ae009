#include "map/discs.h"

#include <gtest/gtest.h>

#include "support/recording_surface.h"

namespace quorvane {
namespace {

TEST(PaintSwatch, GoesFromADarkRimToTheFullColour) {
  RecordingSurface surface;
  PaintSwatch({255, 128, 5}, surface);
  ASSERT_EQ(surface.Lines().size(), 10U);
  EXPECT_EQ(surface.Lines().front(), "circle 0,0 r1500 #1a0d00 fill #1a0d00 copy solid w1")
      << "from 25.5, 12.8 and 0.5";
  EXPECT_EQ(surface.Lines().back(), "circle 0,0 r150 #ff8005 fill #ff8005 copy solid w1");
}

}  // namespace
}  // namespace quorvane

#include "model/rounding.h"

#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

TEST(Rounding, TakesHalvesToTheEvenNeighbour) {
  EXPECT_EQ(RoundHalfEven(2.5), 2);
  EXPECT_EQ(RoundHalfEven(3.5), 4);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
  EXPECT_EQ(RoundToDecimals(0.125, 2), 0.12);
  EXPECT_EQ(RoundToDecimals(0.375, 2), 0.38);
}

TEST(Rounding, CutsWhatDoesNotFit) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(ToWhole16(32767.6), 32767);
  EXPECT_EQ(ToWhole16(-1e9), -32768);
  EXPECT_EQ(ToWhole32(1e300), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(FloorToWhole32(-infinity), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(FloorToWhole32(-0.5), -1);
  EXPECT_EQ(ToWhole32(infinity - infinity), 0);
}

}  // namespace
}  // namespace quorvane

#include "model/rounding.h"

#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

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

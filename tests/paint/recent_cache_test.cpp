#include "paint/recent_cache.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(RecentCache, ForgetsOnlyWhatWasNotAskedForForLong) {
  RecentCache<int, int> squares(60);
  for (int i = 0; i < 100; ++i) {
    squares.Add(i, i * i, 10);
    const int* const first = squares.Find(0);
    ASSERT_NE(first, nullptr) << "asked for each time, after " << i;
    EXPECT_EQ(*first, 0);
  }
  for (int i = 98; i < 100; ++i) EXPECT_NE(squares.Find(i), nullptr) << i;
  for (int i = 1; i < 94; ++i) EXPECT_EQ(squares.Find(i), nullptr) << i;
}

}  // namespace
}  // namespace quorvane

#include "paint/dot_way.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace quorvane {
namespace {

TEST(DotWay, KnowsWhenTheDotsAreTheSameFromTheOtherEnd) {
  std::mt19937 dice(1);
  const auto tenths = [&dice] { return static_cast<int>(dice() % 500) * 0.1 + 5; };
  int alike = 0;
  int different = 0;
  for (int i = 0; i < 5000; ++i) {
    const QPointF from(tenths(), tenths());
    const QPointF to(tenths(), tenths());
    const DotWay there(from, to, 2);
    const DotWay back(to, from, 2);
    const auto count = static_cast<std::size_t>(there.Last()) + 1;
    std::vector<int> columns(count), rows(count), columnsBack(count), rowsBack(count);
    const bool isSure = there.Corners(0, columns, rows);
    back.Corners(0, columnsBack, rowsBack);
    std::ranges::reverse(columnsBack);
    std::ranges::reverse(rowsBack);
    const bool areAlike = columns == columnsBack && rows == rowsBack;
    EXPECT_TRUE(areAlike || !isSure) << i;
    alike += isSure ? 1 : 0;
    different += areAlike ? 0 : 1;
  }
  EXPECT_GT(alike, 2000);
  EXPECT_GT(different, 0) << "or this tests nothing";
}

}  // namespace
}  // namespace quorvane

#include "rules/stargates.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <random>

namespace quorvane {
namespace {

TEST(GateMap, FindsEveryGateInReachInTheGivenOrder) {
  std::mt19937 dice(1);
  std::vector<Gate> gates = {{std::numeric_limits<std::int32_t>::max(), 0, 1},
                             {0, std::numeric_limits<std::int32_t>::min(), 1}};
  for (const bool isScattered : {true, false}) {
    while (gates.size() < 300) {
      gates.push_back(
          {static_cast<std::int32_t>(dice() % 2000), static_cast<std::int32_t>(dice() % 900), 1});
    }
    const GateMap map(gates);
    for (const std::int32_t distance : {0, 30, 250, std::numeric_limits<std::int32_t>::max()}) {
      for (const Gate& from : gates) {
        const std::vector<std::size_t> near = map.Near(from, distance);
        EXPECT_TRUE(std::ranges::is_sorted(near));
        for (std::size_t to = 0; to < gates.size(); ++to) {
          if (GateDistance(from, gates[to]) > distance) continue;
          EXPECT_TRUE(std::ranges::binary_search(near, to)) << distance << " to " << to;
        }
      }
    }
    // Without those two the squares are small.
    if (isScattered) gates.erase(gates.begin(), gates.begin() + 2);
  }
  EXPECT_LT(GateMap(gates).Near(gates[0], 30).size(), 30U) << "not all of them";
  GateMap(std::vector<Gate>());
}

}  // namespace
}  // namespace quorvane

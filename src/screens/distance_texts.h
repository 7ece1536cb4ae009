#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// The warp speeds that are told of; slower ones are not flown, and no engine is faster.
inline constexpr int kSlowestWarp = 4;
inline constexpr int kFastestWarp = 10;
inline constexpr std::size_t kWarps = kFastestWarp - kSlowestWarp + 1;
/// The speed of lists that have room for one.
inline constexpr int kUsualWarp = 9;

/// A distance as it is shown: "123.4 l.y.".
std::string LightYearsText(double lightYears);

/// What is told of the way from the selected planet to somewhere; empty what is not known while
/// there is no such way.
struct WayTexts {
  std::string To;
  std::string LightYears;
  /// At `kSlowestWarp` and above.
  std::array<std::string, kWarps> Years;
  std::string GateThere;
  std::string GateBack;

  bool operator==(const WayTexts&) const = default;
};

/// The way between two planets.
/// @param from, to  their numbers, 0 for none
WayTexts DescribeWay(const GameSession& session, int from, int to);
/// The way from a planet to a place in deep space, which no stargate leads to.
WayTexts DescribeWay(const GameSession& session, int from, StoredPoint to);

/// A planet near the selected one.
struct NearPlanet {
  int Number = 0;
  std::string Name;
  std::string LightYears;
  std::string Years;  // at `kUsualWarp`

  bool operator==(const NearPlanet&) const = default;
};

/// What is told of the planets in a list, from a planet.
/// @param numbers  of the planets, in their order
std::vector<NearPlanet> DescribeNear(const GameSession& session, int from,
                                     const std::vector<int>& numbers);

}  // namespace quorvane

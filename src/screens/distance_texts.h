#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "map/map_view.h"
#include "model/game_session.h"
#include "rules/distances.h"

namespace quorvane {

/// The length of a way: "123.4 l.y.".
std::string WayLengthText(double lightYears);

/// What is told of the way from the selected planet to a target; all texts are empty where there is
/// no target, and all but its name without a selected planet.
struct DistanceTexts {
  /// The target's name; "Deep Space" where no planet is.
  std::string To;
  std::string LightYears;
  /// "1 year", at `kSlowestWarp` … `kFastestWarp`.
  std::array<std::string, kWarpCount> Years;
  /// What the selected planet's stargate does to ships sent to the target, and the target's to
  /// those sent back: "safe", "damage, 2.3 x range", "no".
  std::string GateThere;
  std::string GateBack;

  bool operator==(const DistanceTexts&) const = default;
};

/// @param selected where the way begins; a number that the game does not have: nowhere
/// @param target   the planet where it ends; a number that the game does not have: at the place
/// @param place    its end in deep space
DistanceTexts DescribeWay(const GameSession& session, int selected, int target,
                          std::optional<StoredPoint> place = std::nullopt);

/// A planet in a list of near ones.
struct NearRow {
  int Planet = 0;
  std::string Name;
  /// "123.4", as a list has its unit in the heading.
  std::string LightYears;
  /// "2 years", at `kListedWarp`.
  std::string Years;

  bool operator==(const NearRow&) const = default;
};

/// The speed that the lists tell years for.
inline constexpr int kListedWarp = 9;

/// The planets near the selected one.
struct NearLists {
  std::vector<NearRow> Own;
  std::vector<NearRow> Stargates;

  bool operator==(const NearLists&) const = default;
};
NearLists DescribeNearPlanets(const GameSession& session, int selected);

}  // namespace quorvane

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "model/planet_record.h"

namespace quorvane {

/// A planet's stargate and its place in stored coordinates.
struct Gate {
  std::int32_t X = 0;
  std::int32_t Y = 0;
  /// In whole light years; 0 or less: the planet has none.
  std::int32_t Range = 0;
};
Gate GateOf(const PlanetRecord& planet);

/// The distance between two planets in whole light years, as stargates count it.
std::int32_t GateDistance(const Gate& from, const Gate& to);

/// How a stargate's range covers a distance.
enum class GateReach {
  Safe,       // ships arrive unharmed
  Dangerous,  // up to five times the range ships may arrive, with losses
  None,
};
GateReach ReachOf(std::int32_t range, std::int32_t distance);

/// Beyond this many of its ranges a gate sends nothing, not even with losses.
inline constexpr std::int64_t kDangerousRanges = 5;

/// Finds the stargates in reach of one without looking at all: the map is divided into squares.
class GateMap {
 public:
  explicit GateMap(std::span<const Gate> gates);

  /// The gates that may lie within so many light years of a gate, itself among them: none that does
  /// is missing.
  /// @return their numbers in the given order, counted from 0
  std::vector<std::size_t> Near(const Gate& gate, std::int64_t distance) const;

 private:
  // Squares first … last of a row or column.
  struct Squares {
    std::size_t First = 0;
    std::size_t Last = 0;
  };
  Squares Within(std::int64_t from, std::int64_t to) const;

  std::int64_t left_ = 0;
  std::int64_t top_ = 0;
  std::int64_t squareSize_ = 1;
  std::vector<std::size_t> all_;
  std::vector<std::vector<std::size_t>> squares_;
};

/// What a planet's stargate can do, mass before range: "300 Kt / Inf l.y.".
std::string GateLimitsText(const PlanetRecord& planet);

}  // namespace quorvane

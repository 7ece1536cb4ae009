#include "rules/stargates.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "model/rounding.h"
#include "model/text.h"

namespace quorvane {
namespace {

constexpr std::int64_t kSquares = 64;  // a side

std::string LimitText(const FieldValue& limit) {
  return limit.ReadsAs(kUnlimitedGate) ? "Inf" : std::string(Trimmed(FieldText(limit)));
}

}  // namespace

Gate GateOf(const PlanetRecord& planet) {
  return {planet.X(), planet.Y(), ToWhole32(planet[PlanetField::GateRange].Number())};
}

std::int32_t GateDistance(const Gate& from, const Gate& to) {
  const double x = static_cast<double>(from.X) - to.X;
  const double y = static_cast<double>(from.Y) - to.Y;
  return ToWhole32(std::sqrt(y * y + x * x));
}

GateReach ReachOf(std::int32_t range, std::int32_t distance) {
  if (distance <= range) return GateReach::Safe;
  return distance <= kDangerousRanges * range ? GateReach::Dangerous : GateReach::None;
}

GateMap::GateMap(std::span<const Gate> gates) : all_(gates.size()), squares_(kSquares * kSquares) {
  std::iota(all_.begin(), all_.end(), 0);
  if (gates.empty()) return;
  const auto [west, east] = std::ranges::minmax_element(gates, {}, &Gate::X);
  const auto [north, south] = std::ranges::minmax_element(gates, {}, &Gate::Y);
  left_ = west->X;
  top_ = north->Y;
  squareSize_ = std::max(east->X - left_, south->Y - top_) / kSquares + 1;
  for (const std::size_t number : all_) {
    const Gate& gate = gates[number];
    const std::size_t column = Within(gate.X - left_, gate.X - left_).First;
    const std::size_t row = Within(gate.Y - top_, gate.Y - top_).First;
    squares_[row * kSquares + column].push_back(number);
  }
}

std::vector<std::size_t> GateMap::Near(const Gate& gate, std::int64_t distance) const {
  const Squares columns = Within(gate.X - distance - left_, gate.X + distance - left_);
  const Squares rows = Within(gate.Y - distance - top_, gate.Y + distance - top_);
  std::vector<std::size_t> near;
  for (std::size_t row = rows.First; row <= rows.Last; ++row) {
    for (std::size_t column = columns.First; column <= columns.Last; ++column) {
      const std::vector<std::size_t>& square = squares_[row * kSquares + column];
      near.insert(near.end(), square.begin(), square.end());
    }
    // Looking at all takes less time than putting so many into order.
    if (near.size() > all_.size() / 8) return all_;
  }
  std::ranges::sort(near);
  return near;
}

GateMap::Squares GateMap::Within(std::int64_t from, std::int64_t to) const {
  const auto square = [this](std::int64_t place) {
    return static_cast<std::size_t>(std::clamp<std::int64_t>(place / squareSize_, 0, kSquares - 1));
  };
  return {square(from), square(to)};
}

std::string GateLimitsText(const PlanetRecord& planet) {
  return LimitText(planet[PlanetField::GateMass]) + " Kt / " +
         LimitText(planet[PlanetField::GateRange]) + " l.y.";
}

}  // namespace quorvane

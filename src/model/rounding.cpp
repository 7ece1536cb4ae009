#include "model/rounding.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quorvane {
namespace {

template <typename Whole>
Whole CutToRange(double whole) {
  if (std::isnan(whole)) return 0;
  constexpr double kLowest = std::numeric_limits<Whole>::min();
  constexpr double kHighest = std::numeric_limits<Whole>::max();
  return static_cast<Whole>(std::clamp(whole, kLowest, kHighest));
}

}  // namespace

double RoundToDecimals(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return RoundHalfEven(value * scale) / scale;
}

double TimesHundredths(double value, int hundredths) { return value * hundredths / 100; }

std::int32_t ToWhole32(double value) { return CutToRange<std::int32_t>(RoundHalfEven(value)); }

std::int16_t ToWhole16(double value) { return CutToRange<std::int16_t>(RoundHalfEven(value)); }

std::int32_t FloorToWhole32(double value) { return CutToRange<std::int32_t>(std::floor(value)); }

}  // namespace quorvane

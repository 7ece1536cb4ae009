#pragma once

#include <cmath>
#include <cstdint>

namespace quorvane {

/// Rounds to the nearest whole number, halves to the even neighbour: 2.5 gives 2, 3.5 gives 4.
/// The one rounding of the program; floor is used only where a rule says so.
inline double RoundHalfEven(double value) { return std::nearbyint(value); }

/// Rounds to a number of decimals (0 … 15), halves to the even neighbour: (0.125, 2) gives 0.12.
double RoundToDecimals(double value, int decimals);

/// value x hundredths / 100. Whole numbers give the decimal result to the digit, where a binary
/// factor would miss it: 90 times 2.55 is 229.5 here, not a little less.
double TimesHundredths(double value, int hundredths);

/// `RoundHalfEven` into 32 bits; a value that does not fit gives the nearest one that does, and
/// something that is no number gives 0.
std::int32_t ToWhole32(double value);

/// `RoundHalfEven` into 16 bits, with the same care as `ToWhole32`.
std::int16_t ToWhole16(double value);

/// The whole number at or below a value, in 32 bits, with the same care as `ToWhole32`.
std::int32_t FloorToWhole32(double value);

}  // namespace quorvane

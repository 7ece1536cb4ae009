#pragma once

#include <string>
#include <utility>
#include <vector>

#include "history/race_years.h"

namespace quorvane {

/// What is told of the races over the years.
enum class CurveKind { Planets, Population, Resources, Territory, Starbases, Minerals };
inline constexpr int kCurveKinds = 6;

/// "Planets".
const char* CurveName(CurveKind kind);
/// What its numbers count: "Planets that the race owns".
const char* CurveMeaning(CurveKind kind);

/// The curve of one race.
struct RaceCurve {
  std::string Race;
  /// As it was in the latest year.
  Colour RaceColour;
  /// Years and values, cut wherever a year is missing or nothing is known of the race in it, as
  /// that is a gap and never a zero. A run may be of a single year.
  std::vector<std::vector<std::pair<int, double>>> Runs;

  bool operator==(const RaceCurve&) const = default;
};

/// The curves of all races, by their first appearance.
/// @param years  in ascending order of the years
std::vector<RaceCurve> CurvesOf(const std::vector<RaceYear>& years, CurveKind kind);

/// A race and its value in one year.
struct RaceValue {
  std::string Race;
  double Value = 0;

  bool operator==(const RaceValue&) const = default;
};
/// The races of which something is known in a year, the largest first.
std::vector<RaceValue> ValuesInYear(const std::vector<RaceCurve>& curves, int year);

/// A number with commas between its thousands and at most two decimals: "12,345.5".
std::string GroupedNumber(double value);

/// A step of 1, 2 or 5 times a power of ten.
/// @param range  what is divided; above 0
/// @param parts  into how many steps at most; above 0
double RoundStep(double range, int parts);

/// All that is known as a table for spreadsheets: CSV with a row for each race and year. Races are
/// named by other people, so a name that a spreadsheet would take for a formula gets an apostrophe.
std::string CurvesCsv(const std::vector<RaceYear>& years);

}  // namespace quorvane

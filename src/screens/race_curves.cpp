#include "screens/race_curves.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "model/field_value.h"
#include "screens/table_text.h"

namespace quorvane {
namespace {

struct CurveFacts {
  const char* Name;
  const char* Meaning;
  double RaceYear::*Value;
};

constexpr std::array<CurveFacts, kCurveKinds> kCurves = {{
    {"Planets", "Planets that a race owns", &RaceYear::Planets},
    {"Population", "Colonists on the planets", &RaceYear::Population},
    {"Resources", "Resources of all planets in a year", &RaceYear::Resources},
    {"Territory",
     "Space that a race holds, in square light years; with old-style reports in grid points",
     &RaceYear::Territory},
    {"Starbases", "Starbases that a race owns", &RaceYear::Starbases},
    {"Minerals", "Minerals stored on the planets, in thousands of kT", &RaceYear::Minerals},
}};

const CurveFacts& FactsOf(CurveKind kind) { return kCurves.at(static_cast<std::size_t>(kind)); }

RaceCurve& CurveOfRace(std::vector<RaceCurve>& curves, const std::string& race) {
  const auto found = std::ranges::find(curves, race, &RaceCurve::Race);
  if (found != curves.end()) return *found;
  curves.push_back({race, {}, {}});
  return curves.back();
}

}  // namespace

const char* CurveName(CurveKind kind) { return FactsOf(kind).Name; }

const char* CurveMeaning(CurveKind kind) { return FactsOf(kind).Meaning; }

std::vector<RaceCurve> CurvesOf(const std::vector<RaceYear>& years, CurveKind kind) {
  std::vector<RaceCurve> curves;
  for (const RaceYear& year : years) {
    const double value = year.*FactsOf(kind).Value;
    if (!std::isfinite(value)) continue;  // a sum of damaged numbers is not known
    RaceCurve& curve = CurveOfRace(curves, year.Race);
    curve.RaceColour = year.RaceColour;
    if (curve.Runs.empty() || curve.Runs.back().back().first + 1 != year.Year) {
      curve.Runs.emplace_back();
    }
    curve.Runs.back().emplace_back(year.Year, value);
  }
  return curves;
}

std::vector<RaceValue> ValuesInYear(const std::vector<RaceCurve>& curves, int year) {
  std::vector<RaceValue> values;
  for (const RaceCurve& curve : curves) {
    for (const auto& run : curve.Runs) {
      if (year < run.front().first || year > run.back().first) continue;
      values.push_back(
          {curve.Race, run.at(static_cast<std::size_t>(year - run.front().first)).second});
    }
  }
  std::ranges::stable_sort(values, std::ranges::greater(), &RaceValue::Value);
  return values;
}

std::string GroupedNumber(double value) {
  constexpr double kHundredths = 100;
  std::string text = NumberText(std::round(value * kHundredths) / kHundredths);
  std::size_t place = std::min(text.find('.'), text.size());
  for (const std::size_t first = value < 0 ? 1 : 0; place > first + 3;) {
    text.insert(place -= 3, ",");
  }
  return text;
}

double RoundStep(double range, int parts) {
  const double least = range / parts;
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least) return factor * power;
  }
  return 10 * power;
}

std::string CurvesCsv(const std::vector<RaceYear>& years) {
  TableText csv(',');
  csv.Cell("Year").Cell("Race");
  for (const CurveFacts& curve : kCurves) csv.Cell(curve.Name);
  csv.EndRow();
  for (const RaceYear& year : years) {
    csv.Cell(NumberText(year.Year)).Cell(year.Race);
    for (const CurveFacts& curve : kCurves) csv.Cell(NumberText(year.*curve.Value));
    csv.EndRow();
  }
  return csv.Text();
}

}  // namespace quorvane

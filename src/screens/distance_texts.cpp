#include "screens/distance_texts.h"

#include "model/field_value.h"
#include "rules/distances.h"

namespace quorvane {
namespace {

WayTexts TextsOf(std::string to, double lightYears) {
  WayTexts texts = {.To = std::move(to), .LightYears = LightYearsText(lightYears)};
  int warp = kSlowestWarp;
  for (std::string& years : texts.Years) years = std::to_string(YearsAtWarp(lightYears, warp++));
  return texts;
}

}  // namespace

std::string LightYearsText(double lightYears) { return FixedText(lightYears, 1) + " l.y."; }

WayTexts DescribeWay(const GameSession& session, int from, int to) {
  if (to == 0) return {};
  const PlanetRecord& end = session.Planet(to);
  if (from == 0) return {.To = end.Name()};
  const PlanetRecord& start = session.Planet(from);
  WayTexts texts = TextsOf(end.Name(), LightYearsBetween(start, end));
  texts.GateThere = GateWayText(start, end);
  texts.GateBack = GateWayText(end, start);
  return texts;
}

WayTexts DescribeWay(const GameSession& session, int from, StoredPoint to) {
  if (from == 0) return {};
  const PlanetRecord& start = session.Planet(from);
  WayTexts texts = TextsOf("Deep Space", LightYearsBetween(start.X(), start.Y(), to.X, to.Y));
  texts.GateThere = "no";
  texts.GateBack = "no";
  return texts;
}

std::vector<NearPlanet> DescribeNear(const GameSession& session, int from,
                                     const std::vector<int>& numbers) {
  std::vector<NearPlanet> planets;
  for (const int number : numbers) {
    const PlanetRecord& planet = session.Planet(number);
    const double lightYears = LightYearsBetween(session.Planet(from), planet);
    planets.push_back({.Number = number,
                       .Name = planet.Name(),
                       .LightYears = FixedText(lightYears, 1),
                       .Years = std::to_string(YearsAtWarp(lightYears, kUsualWarp))});
  }
  return planets;
}

}  // namespace quorvane

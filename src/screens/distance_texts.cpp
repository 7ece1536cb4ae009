#include "screens/distance_texts.h"

#include "model/field_value.h"

namespace quorvane {
namespace {

std::string YearsText(double lightYears, int warp) {
  const int years = YearsAtWarp(lightYears, warp);
  return std::to_string(years) + (years == 1 ? " year" : " years");
}

std::string GateText(const GateWay& way) {
  if (way.Reach == GateReach::Safe) return "safe";
  if (way.Reach == GateReach::None) return "no";
  return "damage, " + OneDecimalText(way.Ranges) + " x range";
}

const PlanetRecord* PlanetOrNone(const GameSession& session, int number) {
  return number >= 1 && number <= session.PlanetCount ? &session.Planet(number) : nullptr;
}

void TellLength(DistanceTexts& texts, double lightYears) {
  texts.LightYears = WayLengthText(lightYears);
  for (std::size_t step = 0; step < kWarpCount; ++step) {
    texts.Years[step] = YearsText(lightYears, kSlowestWarp + static_cast<int>(step));
  }
}

std::vector<NearRow> RowsOf(const GameSession& session, const std::vector<NearPlanet>& planets) {
  std::vector<NearRow> rows;
  rows.reserve(planets.size());
  for (const NearPlanet& planet : planets) {
    rows.push_back({planet.Number, session.Planet(planet.Number).Name(),
                    OneDecimalText(planet.LightYears), YearsText(planet.LightYears, kListedWarp)});
  }
  return rows;
}

}  // namespace

std::string WayLengthText(double lightYears) { return OneDecimalText(lightYears) + " l.y."; }

DistanceTexts DescribeWay(const GameSession& session, int selected, int target,
                          std::optional<StoredPoint> place) {
  const PlanetRecord* const from = PlanetOrNone(session, selected);
  const PlanetRecord* const to = PlanetOrNone(session, target);
  DistanceTexts texts;
  if (to == nullptr && !place) return texts;
  texts.To = to != nullptr ? to->Name() : "Deep Space";
  if (from == nullptr) return texts;
  if (to != nullptr) {
    TellLength(texts, LightYearsBetween(*from, *to));
    texts.GateThere = GateText(GateWayBetween(*from, *to));
    texts.GateBack = GateText(GateWayBetween(*to, *from));
  } else {
    TellLength(texts, LightYearsBetween(from->X(), from->Y(), place->X, place->Y));
    texts.GateThere = texts.GateBack = GateText({});
  }
  return texts;
}

NearLists DescribeNearPlanets(const GameSession& session, int selected) {
  return {RowsOf(session, NearestOwnPlanets(session, selected)),
          RowsOf(session, NearestStargates(session, selected))};
}

}  // namespace quorvane

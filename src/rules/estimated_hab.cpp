#include "rules/estimated_hab.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr std::int32_t kEnvironmentUnknown = -100;
constexpr double kMostStepsPerKind = 15;
constexpr double kMostSteps = 45;
constexpr double kDegreesPerStep = 4;

// How a planet's reading stands to a race's range of one kind.
struct Fit {
  double Closeness = 1;  // 1 at the centre, 0 at the edge, below 0 outside; 1 for the immune
  double Excess = 0;     // how far outside, when the closeness is below 0
};

// A range no wider than a unit has its centre on its edge, where the quotient would be 0 / 0. The
// centre itself is as good as it gets; beside it the distance alone counts.
double Quotient(double distance, double width) {
  if (width != 0) return distance / width;
  return distance == 0 ? 1 : distance;
}

Fit FitInto(double reading, double minimum, double maximum) {
  // Rounded down, below zero as well: -3 to 0 has its centre at -2.
  const double centre = std::floor((minimum + maximum) / 2);
  Fit fit;
  if (reading <= centre) {
    fit.Closeness = Quotient(reading - minimum, centre - minimum);
    fit.Excess = minimum - reading;
  } else {
    fit.Closeness = Quotient(maximum - reading, maximum - centre);
    fit.Excess = reading - maximum;
  }
  return fit;
}

struct Environment {
  double Gravity = 0;  // scale position
  double Temperature = 0;
  double Radiation = 0;
};

std::array<Fit, 3> FitOf(const PlayerRecord& race, const Environment& planet) {
  const auto number = [&](PlayerField field) { return race[field].Number(); };
  const auto isImmune = [&](PlayerField field) { return race[field].ReadsAs(1); };
  std::array<Fit, 3> fits;
  if (!isImmune(PlayerField::GravImmune)) {
    fits[0] = FitInto(planet.Gravity, GravityToScale(number(PlayerField::GravMin)),
                      GravityToScale(number(PlayerField::GravMax)));
  }
  if (!isImmune(PlayerField::TempImmune)) {
    fits[1] =
        FitInto(planet.Temperature, number(PlayerField::TempMin), number(PlayerField::TempMax));
  }
  if (!isImmune(PlayerField::RadImmune)) {
    fits[2] = FitInto(planet.Radiation, number(PlayerField::RadMin), number(PlayerField::RadMax));
  }
  return fits;
}

// The steps by which a planet lies outside, each kind counted in its own unit and limited before
// all are added.
double StepsOutside(const std::array<Fit, 3>& fits) {
  const std::array<double, 3> steps = {fits[0].Excess, std::floor(fits[1].Excess / kDegreesPerStep),
                                       RoundHalfEven(fits[2].Excess)};
  double sum = 0;
  for (std::size_t kind = 0; kind < fits.size(); ++kind) {
    if (fits[kind].Closeness < 0) sum += std::min(steps[kind], kMostStepsPerKind);
  }
  return std::min(sum, kMostSteps);
}

// Rounded at every step, and the kinds in this order; once at the end, or in another order, would
// give other percentages.
std::int32_t ValueInside(const std::array<double, 3>& closeness) {
  const auto [g, t, r] = closeness;
  double value = ToWhole32(100 * std::sqrt(g * g + t * t + r * r) / std::sqrt(3.0));
  for (const double c : closeness) {
    if (c < 0.5) value = ToWhole32((c + 0.5) * value);
  }
  return static_cast<std::int32_t>(value);
}

}  // namespace

std::int16_t GravityToScale(double gravity) {
  if (!(gravity > 0)) return std::numeric_limits<std::int16_t>::min();
  if (gravity < 0.5) return ToWhole16(100 - (1 / gravity + 16) / 0.24);
  if (gravity < 1) return ToWhole16(100 - (1 / gravity + 1) / 0.04);
  // Divided by 0.04, not multiplied by 25: 1.38 g lies at 59 this way, at 60 the other.
  if (gravity < 2) return ToWhole16((gravity + 1) / 0.04);
  return ToWhole16((gravity + 16) / 0.24);
}

std::int32_t EstimatedHab(const GameSession& session, int race, int planet) {
  const PlanetRecord& record = session.Planet(planet);
  const double radiation = record[PlanetField::Radiation].Number();
  if (radiation == 0) return kEnvironmentUnknown;
  if (radiation < 0) return ValueInside({0, 0, 0});
  const Environment environment = {
      .Gravity = static_cast<double>(GravityToScale(record[PlanetField::Gravity].Number())),
      .Temperature = record[PlanetField::Temperature].Number(),
      .Radiation = radiation};
  const std::array<Fit, 3> fits = FitOf(session.Player(race), environment);
  const double steps = StepsOutside(fits);
  if (steps > 0) return -static_cast<std::int32_t>(steps);
  return ValueInside({fits[0].Closeness, fits[1].Closeness, fits[2].Closeness});
}

}  // namespace quorvane

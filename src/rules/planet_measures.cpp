#include "rules/planet_measures.h"

#include <algorithm>
#include <iterator>

#include "model/text.h"
#include "rules/estimated_hab.h"

namespace quorvane {
namespace {

// The fields that the measures read, in their order.
constexpr PlanetField kFields[] = {PlanetField::Population,
                                   PlanetField::HabValue,
                                   PlanetField::TerraValue,
                                   PlanetField::ReportAge,
                                   PlanetField::Resources,
                                   PlanetField::Mines,
                                   PlanetField::Factories,
                                   PlanetField::DefencePercent,
                                   PlanetField::SoiRadius,
                                   PlanetField::ScoreValue,
                                   PlanetField::X,
                                   PlanetField::Y,
                                   PlanetField::IronMC,
                                   PlanetField::BoraMC,
                                   PlanetField::GermMC,
                                   PlanetField::StoredIron,
                                   PlanetField::StoredBora,
                                   PlanetField::StoredGerm,
                                   PlanetField::Gravity,
                                   PlanetField::Temperature,
                                   PlanetField::Radiation,
                                   PlanetField::GateRange,
                                   PlanetField::GateMass,
                                   PlanetField::ScanRange,
                                   PlanetField::PenScanRange,
                                   PlanetField::ExtraValue};
static_assert(std::size(kMeasureNames) == std::size(kFields) + 2);

std::optional<double> KnownNumber(const FieldValue& field) {
  const bool isKnown = field.Kind() == FieldKind::Text ? HasDigit(field.Text()) : !field.IsEmpty();
  return isKnown ? std::optional(field.Number()) : std::nullopt;
}

std::optional<double> KnownPopulation(const PlanetRecord& planet) {
  const std::optional<double> told = KnownNumber(planet[PlanetField::Population]);
  const bool isEmpty = planet.IsExplored() && planet.Owner().empty();
  return told || !isEmpty ? told : 0;
}

// Allies tell of their planets what the user's own report does not know.
std::optional<double> KnownCapacity(const PlanetRecord& planet) {
  const std::optional<double> told = KnownNumber(planet[PlanetExtra::CapacityUsed]);
  if (told) return told;
  constexpr PlanetField kField = PlanetField::ExtraValue;
  return planet.LeftOut()[static_cast<std::size_t>(kField)] ? std::nullopt
                                                            : KnownNumber(planet[kField]);
}

}  // namespace

std::optional<PlanetMeasure> MeasureNamed(std::string_view name) {
  const auto* const found = std::ranges::find_if(
      kMeasureNames, [&](std::string_view each) { return EqualIgnoringCase(each, name); });
  if (found == std::end(kMeasureNames)) return std::nullopt;
  return static_cast<PlanetMeasure>(found - std::begin(kMeasureNames));
}

std::optional<double> MeasurePlanet(const GameSession& session, int planet, PlanetMeasure measure) {
  const PlanetRecord& record = session.Planet(planet);
  switch (measure) {
    case PlanetMeasure::X:
      return record.X() + kUniverseOrigin;
    case PlanetMeasure::Y:
      return session.UniverseExtent - record.Y();
    case PlanetMeasure::Population:
      return KnownPopulation(record);
    case PlanetMeasure::CapacityUsed:
      return KnownCapacity(record);
    default:
      break;
  }
  if (static_cast<std::size_t>(measure) >= std::size(kFields)) return std::nullopt;
  const PlanetField field = kFields[static_cast<std::size_t>(measure)];
  const bool isLeftOut = record.LeftOut()[static_cast<std::size_t>(field)];
  return isLeftOut ? std::nullopt : KnownNumber(record[field]);
}

std::optional<double> MeasureHab(const GameSession& session, int race, int planet) {
  if (!session.Planet(planet).IsEnvironmentKnown()) return std::nullopt;
  return EstimatedHab(session, race, planet);
}

}  // namespace quorvane

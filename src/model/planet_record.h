#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <string>

#include "model/field_value.h"

namespace quorvane {

/// The 39 fields of a planet by number. The empire data file, the planet grid and several rules of
/// the game count in these numbers.
enum class PlanetField : std::size_t {
  Number = 1,
  X,  // stored coordinates, light years: game X - 1000
  Y,  // stored coordinates, light years: universe extent - game Y
  Name,
  Owner,     // the owning race's name; empty: nobody
  Starbase,  // design name; "None": no starbase
  AgeText,   // "Current", "  5 years old"; empty: never reported
  Population,
  SoiRadius,  // sphere of influence in light years
  HabValue,   // percent, for the user's own race
  Mines,
  Factories,
  Resources,
  DefencePercent,
  StoredIron,  // on the surface, kT
  StoredBora,
  StoredGerm,
  IronMR,  // mining rate; "Remote" for remote mining
  BoraMR,
  GermMR,
  IronMC,  // concentration
  BoraMC,
  GermMC,
  ReportAge,   // years
  TerraValue,  // percent after terraforming, own report only
  ExtraValue,  // own report only
  OwnerIndex,  // player number; 0: nobody
  InMyReport,  // 1 when the planet stood in the user's own report
  Gravity,
  Temperature,
  Radiation,  // reads as 0 while the planet's environment is not known
  Gravity2,   // the second reading, shown as "Original"
  Temperature2,
  Radiation2,
  GateRange,  // light years; `kUnlimitedGate`: unlimited
  ScanRange,  // light years
  PenScanRange,
  ScoreValue,
  GateMass,  // kT; `kUnlimitedGate`: unlimited
};

inline constexpr std::size_t kPlanetFieldCount = 39;

/// What a report says of a planet beyond the numbered fields, in its own words; empty: not known.
enum class PlanetExtra : std::size_t {
  ProductionQueue,
  CapacityUsed,  // percent
  DriverTarget,  // where the mass driver sends its packets
  DriverWarp,
  Route,           // where new ships are sent
  StarbaseDamage,  // percent
};
inline constexpr std::size_t kPlanetExtraCount = 6;

/// What an unlimited stargate range or mass is kept as.
inline constexpr double kUnlimitedGate = 10000;
/// The starbase text of a planet that has none.
inline constexpr const char* kNoStarbase = "None";
/// What a report says of a reading that its author does not have.
inline constexpr const char* kUnknown = "Unknown";
/// The age text of a report of the current game year.
inline constexpr const char* kCurrentAge = "Current";

/// What is known of one planet.
class PlanetRecord {
 public:
  /// A field by its number, 1 … 39.
  FieldValue& Field(std::size_t number) { return fields_.at(number); }
  const FieldValue& Field(std::size_t number) const { return fields_.at(number); }
  FieldValue& operator[](PlanetField field) { return Field(static_cast<std::size_t>(field)); }
  const FieldValue& operator[](PlanetField field) const {
    return Field(static_cast<std::size_t>(field));
  }

  FieldValue& operator[](PlanetExtra extra) { return extras_.at(static_cast<std::size_t>(extra)); }
  const FieldValue& operator[](PlanetExtra extra) const {
    return extras_.at(static_cast<std::size_t>(extra));
  }
  /// The fields in which a 0 stands only because the report leaves them out, by their numbers.
  std::bitset<kPlanetFieldCount + 1>& LeftOut() { return leftOut_; }
  const std::bitset<kPlanetFieldCount + 1>& LeftOut() const { return leftOut_; }

  /// Stored position in light years.
  int X() const { return WholeOf(PlanetField::X); }
  int Y() const { return WholeOf(PlanetField::Y); }
  const std::string& Name() const { return (*this)[PlanetField::Name].Text(); }
  const std::string& Owner() const { return (*this)[PlanetField::Owner].Text(); }
  const std::string& Starbase() const { return (*this)[PlanetField::Starbase].Text(); }
  /// Whether a starbase is known to orbit the planet.
  bool HasStarbase() const { return !Starbase().empty() && Starbase() != kNoStarbase; }
  const std::string& AgeText() const { return (*this)[PlanetField::AgeText].Text(); }
  /// Whether anybody has ever reported of the planet.
  bool IsExplored() const { return !AgeText().empty(); }
  /// Whether gravity, temperature and radiation are known: radiation reads as 0 until then.
  bool IsEnvironmentKnown() const { return (*this)[PlanetField::Radiation].Number() > 0; }
  double Population() const { return (*this)[PlanetField::Population].Number(); }
  int SoiRadius() const { return WholeOf(PlanetField::SoiRadius); }
  /// Number of the owner in the player table; 0: nobody.
  int OwnerIndex() const { return WholeOf(PlanetField::OwnerIndex); }

  bool operator==(const PlanetRecord&) const = default;

 private:
  int WholeOf(PlanetField field) const { return static_cast<int>((*this)[field].Number()); }

  std::array<FieldValue, kPlanetFieldCount + 1> fields_;  // 0 is not used
  std::array<FieldValue, kPlanetExtraCount> extras_;
  std::bitset<kPlanetFieldCount + 1> leftOut_;
};

}  // namespace quorvane

#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "model/field_value.h"

namespace quorvane {

/// The fields of a planet report's line that the program uses, numbered from 0.
enum class ReportField : std::size_t {
  PlanetName = 0,
  Owner = 1,
  Starbase = 2,
  Age = 3,  // years
  Population = 4,
  Value = 5,  // percent for the report's race
  ProductionQueue = 6,
  Mines = 7,
  Factories = 8,
  Defence = 9,      // coverage in percent
  StoredIron = 10,  // then boranium, germanium
  IronMR = 13,      // mining rates; -1: remote mining
  IronMC = 16,      // concentrations
  Resources = 19,
  Gravity = 20,  // then temperature, radiation, and the second readings of all three
  TerraValue = 26,
  ExtraValue = 27,  // capacity used in percent
  ScanRange = 28,
  PenScanRange = 29,
  DriverTarget = 30,
  DriverWarp = 31,
  Route = 32,
  GateRange = 33,  // -1: unlimited
  GateMass = 34,   // -1: unlimited
  StarbaseDamage = 35,
};

inline constexpr std::size_t kReportFields = 37;

/// One line of a planet report, split into its fields. The line's text must outlive it.
/// A field counts only when a TAB closes it; an empty one says what the game means by leaving it
/// out. A field that the line does not have is empty, and 0 as a number.
class ReportLine {
 public:
  explicit ReportLine(std::string_view line);

  /// How many fields the line has, at most 37; more are left out.
  std::size_t Count() const { return count_; }
  std::string_view Text(std::size_t field) const;
  std::string_view Text(ReportField field) const { return Text(static_cast<std::size_t>(field)); }
  /// A field as it is written, without what an empty one means; the text behind the last TAB counts
  /// as one. Empty where the line does not have it.
  std::string_view Written(ReportField field) const;
  double Number(ReportField field) const { return NumericValue(Text(field)); }
  /// Stores the field in a planet's record: its text, or nothing where the line does not have it.
  void CopyTo(FieldValue& target, std::size_t field) const;
  void CopyTo(FieldValue& target, ReportField field) const {
    CopyTo(target, static_cast<std::size_t>(field));
  }
  /// Whether the whole field is this number; a missing field is 0.
  bool ReadsAs(std::size_t field, double number) const;
  bool ReadsAs(ReportField field, double number) const {
    return ReadsAs(static_cast<std::size_t>(field), number);
  }
  /// The age that the line states, 0 when it does not have the field; nothing for a text such as
  /// "Unknown".
  std::optional<double> Age() const;

 private:
  std::string_view line_;
  /// Where each field ends; the next one begins behind it.
  std::array<std::size_t, kReportFields + 1> ends_;
  std::size_t splitCount_ = 0;
  std::size_t count_ = 0;  // with the zeros behind a closing percentage, which are not in the line
};

}  // namespace quorvane

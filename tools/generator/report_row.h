#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>

namespace quorvane::generator {

/// The columns of a planet report that the generator fills; three in a row where one name stands
/// for ironium, boranium, germanium or for gravity, temperature, radiation.
enum class Column : std::size_t {
  Name,
  Owner,
  Starbase,
  Age,
  Population,
  Value,
  Queue,
  Mines,
  Factories,
  Defences,
  Stored = 10,
  MiningRates = 13,
  Concentrations = 16,
  Resources = 19,
  Readings = 20,
  OriginalReadings = 23,
  ValueTerraformed = 26,
  Capacity,
  ScanRange,
  PenScanRange,
  Driver,
  Warp,
  Route,
  GateRange,
  GateMass,
  Damage
};

inline constexpr std::size_t kOldColumns = 20;
inline constexpr std::size_t kNewColumns = 36;
/// Lines of planets of others end with the value after terraforming.
inline constexpr std::size_t kNewForeignColumns = 27;

/// The column so many places further on.
constexpr Column operator+(Column column, std::size_t places) {
  return static_cast<Column>(static_cast<std::size_t>(column) + places);
}

/// One line of a planet report, empty where nothing was set.
class ReportRow {
 public:
  void Set(Column column, std::string text) {
    fields_[static_cast<std::size_t>(column)] = std::move(text);
  }
  void Set(Column column, int number) { Set(column, std::to_string(number)); }

  /// The first columns with a TAB between them (none behind the last) and the line end.
  std::string Text(std::size_t columns) const;

 private:
  std::array<std::string, kNewColumns> fields_;
};

/// The heading line over so many columns.
std::string HeadingLine(std::size_t columns);

}  // namespace quorvane::generator

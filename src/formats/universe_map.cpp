#include "formats/universe_map.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>

#include "model/data_items.h"
#include "model/game_session.h"
#include "model/rounding.h"
#include "model/text.h"

namespace quorvane {
namespace {

// In bytes; the game's own names have twenty at most. Lists of names could not show longer ones.
constexpr std::size_t kLongestName = 1000;

template <typename Whole>
bool FitsInto(double value) {
  return value >= std::numeric_limits<Whole>::min() && value <= std::numeric_limits<Whole>::max();
}

// Stored coordinates lie 1000 below the game's own, and must fit as well.
bool IsCoordinate(double value) {
  return FitsInto<std::int16_t>(value) && FitsInto<std::int16_t>(value - kUniverseOrigin);
}

// The three numbers and the name of one line, or what was expected where it went wrong.
Result<MapPlanet> ParsePlanet(std::string_view line) {
  DataItemReader items(line);
  MapPlanet planet;
  const std::tuple<const char*, bool (*)(double), int*> numbers[] = {
      {"the planet number", FitsInto<std::int32_t>, &planet.Number},
      {"X", IsCoordinate, &planet.X},
      {"Y", IsCoordinate, &planet.Y}};
  for (const auto& [what, isInRange, target] : numbers) {
    const std::string_view text = items.ReadNumberText();
    const std::optional<double> value = WholeTextNumber(text);
    if (!value) {
      return Failure{std::string(what) + " is no number" +
                     (text.empty() ? ", it is missing" : ": " + Excerpt(text))};
    }
    if (!isInRange(*value)) {
      return Failure{std::string(what) + " is out of range: " + Excerpt(text)};
    }
    *target = ToWhole32(*value);
  }
  planet.Name = items.ReadText();
  if (planet.Name.size() > kLongestName) {
    return Failure{"the planet's name is too long: " + Excerpt(planet.Name)};
  }
  return planet;
}

int ExtentOf(const std::vector<MapPlanet>& planets) {
  int edge = planets.back().X;
  for (const MapPlanet& planet : planets) edge = std::max(edge, planet.Y);
  return (FloorToWhole32(edge / 100.0) + 1) * 100;
}

}  // namespace

Result<UniverseMap> ParseUniverseMap(std::string_view text, std::string_view fileName) {
  UniverseMap map;
  std::string_view rest = BeforeEndOfFile(text);
  TakeLine(rest);  // the heading
  for (int line = 2; !rest.empty(); ++line) {
    const std::string_view record = TakeLine(rest);
    if (record.find_first_not_of(" \t") == record.npos) continue;
    Result<MapPlanet> planet = ParsePlanet(record);
    if (!planet) return Failure{PlaceInFile(fileName, line) + ": " + planet.Message()};
    if (map.Planets.size() == kMaxPlanets) {
      return Failure{PlaceInFile(fileName, line) + ": a universe has at most " +
                     std::to_string(kMaxPlanets) + " planets"};
    }
    map.Planets.push_back(std::move(*planet));
  }
  if (map.Planets.empty()) {
    return Failure{PlaceInFile(fileName, 2) + ": a planet was expected here, the map has none"};
  }
  map.Extent = ExtentOf(map.Planets);
  if (map.Extent <= kUniverseOrigin || !FitsInto<std::int16_t>(map.Extent)) {
    return Failure{std::string(fileName) + ": the universe would end at " +
                   std::to_string(map.Extent) + ", it must end above " +
                   std::to_string(kUniverseOrigin) + " and below 32768"};
  }
  return map;
}

}  // namespace quorvane

// Any bytes under a map's name give a map within its limits, which reads back the same, or a
// message that names the file.
#include <limits>

#include "formats/settings_file.h"
#include "formats/universe_map.h"
#include "fuzz_support.h"

namespace quorvane::fuzz {
namespace {

bool IsStored(int coordinate) {
  return coordinate <= std::numeric_limits<std::int16_t>::max() &&
         coordinate - kUniverseOrigin >= std::numeric_limits<std::int16_t>::min();
}

// A name is either plain and then free of commas, or it was quoted and is free of quotes.
std::string MapText(const UniverseMap& map) {
  std::string text = "heading\r\n";
  for (const MapPlanet& planet : map.Planets) {
    const std::string quote = planet.Name.find('"') == std::string::npos ? "\"" : "";
    text += std::to_string(planet.Number) + "," + std::to_string(planet.X) + "," +
            std::to_string(planet.Y) + "," + quote + planet.Name + quote + "\r\n";
  }
  return text;
}

void RequireSound(const UniverseMap& map) {
  Require(!map.Planets.empty() && map.Planets.size() <= kMaxPlanets, "number of planets");
  Require(map.Extent > kUniverseOrigin && map.Extent % 100 == 0, "extent");
  Require(map.Planets.back().X < map.Extent, "the last planet lies inside");
  for (const MapPlanet& planet : map.Planets) {
    Require(IsStored(planet.X) && IsStored(planet.Y) && planet.Y < map.Extent, "coordinates");
  }
  const Result<UniverseMap> again = ParseUniverseMap(MapText(map), "again.map");
  Require(static_cast<bool>(again), again.Message());
  Require(again->Extent == map.Extent && MapText(*again) == MapText(map), "reads back the same");
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvane;
  const std::string text = fuzz::DecodedText(data, size);
  const Result<UniverseMap> map = ParseUniverseMap(text, "fuzz.map");
  if (map) {
    fuzz::RequireSound(*map);
  } else {
    fuzz::Require(map.Message().starts_with("fuzz.map"), map.Message());
  }
  fuzz::Require(InstallDirIn(text).size() <= text.size(), "the folder comes from the text");
  return 0;
}

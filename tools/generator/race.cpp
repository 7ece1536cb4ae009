#include "generator/race.h"

#include <algorithm>

namespace quorvane::generator {
namespace {

constexpr std::string_view kRaceNames[] = {
    "Thessalane", "Orrukai",  "Quillim",   "Söljar",  "Brennock", "Ix'Amar",  "Veldt Kin",
    "Pelagians",  "Nocturne", "Halvorane", "Zindrel", "Umbrel",   "Caldorim", "Fenwyre",
    "Tamarisk",   "Ashkelar", "Mirovan",   "Skarn",   "Ostrava",  "Lumenids"};

constexpr std::string_view kStarbaseDesigns[] = {
    "Gatehouse", "Long Watch", "Iron Lantern", "Bulwark",    "Drydock IV",  "Hollow Crown",
    "Rampart",   "Waystation", "Sky Anvil",    "Portcullis", "Cinder Wall", "Beacon"};

constexpr std::string_view kPrimaryTraits[] = {"HE", "SS", "WM", "CA", "IS",
                                               "SD", "PP", "IT", "AR", "JoaT"};

constexpr Gate kGates[] = {{100, 250}, {150, 600}, {300, 500}, {100, -1},
                           {-1, 300},  {-1, 800},  {-1, -1}};

constexpr Scanner kScanners[] = {{150, 0}, {150, 50}, {220, 70}, {220, 100}, {280, 120}};

// Lesser traits by their place in the list of fourteen.
constexpr std::size_t kTotalTerraforming = 1;
constexpr std::size_t kAdvancedRemoteMining = 2;
constexpr std::size_t kOnlyBasicRemoteMining = 9;
constexpr std::size_t kNoAdvancedScanners = 10;

HabRanges MakeRanges(Random& random) {
  HabRanges ranges;
  for (HabRange& range : ranges) {
    const int halfWidth = random.Between(16, 30);
    const int centre = random.Between(halfWidth + 1, 99 - halfWidth);
    range = {.Low = centre - halfWidth, .High = centre + halfWidth};
  }
  if (random.Chance(30)) {
    ranges[static_cast<std::size_t>(random.Between(0, 2))].IsImmune = true;
  }
  return ranges;
}

void ChooseTraits(Race& race, Random& random) {
  race.PrimaryTrait = random.OneOf(kPrimaryTraits);
  for (int i = random.Between(1, 4); i > 0; --i) {
    race.LesserTraits.at(static_cast<std::size_t>(random.Between(0, 13))) = true;
  }
  // Nobody is both the best and the worst of remote miners.
  if (race.LesserTraits[kAdvancedRemoteMining]) race.LesserTraits[kOnlyBasicRemoteMining] = false;
}

void ChooseTechnology(Race& race, Random& random) {
  race.TerraformSteps = race.LesserTraits[kTotalTerraforming] ? 15 : random.Between(5, 10);
  // The two best gates are nobody's but the gate makers'.
  const int bestGate = race.PrimaryTrait == "IT" ? 6 : 4;
  for (Gate& gate : race.Gates) {
    gate = kGates[static_cast<std::size_t>(random.Between(bestGate - 4, bestGate))];
  }
  race.PlanetScanner = random.OneOf(kScanners);
  if (race.LesserTraits[kNoAdvancedScanners]) race.PlanetScanner.PenetratingRange = 0;
}

}  // namespace

std::vector<Race> MakeRaces(int count, Random& random) {
  std::vector<std::string_view> names(std::begin(kRaceNames), std::end(kRaceNames));
  std::vector<std::string_view> designs(std::begin(kStarbaseDesigns), std::end(kStarbaseDesigns));
  random.Shuffle(names);
  random.Shuffle(designs);
  std::vector<Race> races(static_cast<std::size_t>(count));
  for (std::size_t i = 0; i < races.size(); ++i) {
    Race& race = races[i];
    race.Name = names.at(i);
    race.StarbaseDesign = designs.at(i % designs.size());
    race.Ranges = MakeRanges(random);
    ChooseTraits(race, random);
    ChooseTechnology(race, random);
    race.GrowthPercent = random.Between(10, 19);
    race.Vigour = random.Between(70, 140);
    race.ColonistsPerResource = random.Between(8, 13) * 100;
    race.FactoryOutput = random.Between(9, 14);
    race.MineOutput = random.Between(8, 14);
  }
  return races;
}

}  // namespace quorvane::generator

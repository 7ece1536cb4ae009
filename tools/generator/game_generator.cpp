#include "generator/game_generator.h"

#include <algorithm>
#include <cassert>
#include <system_error>
#include <utility>

#include "files/files.h"
#include "generator/companion_writer.h"
#include "generator/expansion.h"
#include "generator/intelligence.h"
#include "generator/planet_names.h"
#include "generator/report_writer.h"
#include "generator/turn_writer.h"

namespace quorvane::generator {
namespace {

// Percent of the planets of a game of several years; the rest is for the years to come.
constexpr int kSettledAtFirst = 50;

struct Limit {
  const char* What;
  int Value;
  int Lowest;
  int Highest;
};

// The dead export nothing, and in a war not everybody finds the time.
bool IsMissing(const Universe& universe, const GameShape& shape, int author) {
  constexpr int kPercentMissing = 12;
  if (!shape.IsWar || author + 1 == shape.OwnSlot) return false;
  const bool isAlive = std::ranges::any_of(
      universe.Planets, [&](const Planet& planet) { return planet.OwnerIn(shape.Year) == author; });
  Random random(shape.Seed, "missing " + std::to_string(author) + " " + std::to_string(shape.Year));
  return !isAlive || random.Chance(kPercentMissing);
}

void AddReports(const Universe& universe, const GameShape& shape, GeneratedGame& game) {
  const bool isOldStyle = shape.Style == kOldReportStyle;
  for (int slot = 1; slot <= (isOldStyle ? 1 : shape.ReportCount); ++slot) {
    const int author = (isOldStyle ? shape.OwnSlot : slot) - 1;
    Random random(shape.Seed, "report " + std::to_string(author));
    const int delay = random.Between(0, shape.AgeSpread);
    const int year =
        author + 1 == shape.OwnSlot ? shape.Year : std::max(shape.Year - delay, kFirstYear + 1);
    const ReportHead head = {.Author = author, .Year = year, .Style = shape.Style};
    const std::vector<Sighting> known = KnowledgeOf(universe, author, year, random);
    game.ReportYears.push_back(year);
    if (IsMissing(universe, shape, author)) continue;
    game.Files.push_back(
        {isOldStyle ? ".pla" : ".p" + std::to_string(slot), ReportText(universe, head, known)});
  }
}

void AddCompanions(const Universe& universe, const GameShape& shape, GeneratedGame& game) {
  const int ownRace = shape.OwnSlot - 1;
  if (shape.Style == kNewReportStyle) {
    game.Files.push_back({".YRS", YearsText(game.ReportYears)});
    game.Files.push_back({".QVR", RememberedRaceText(shape.OwnSlot)});
  }
  game.Files.push_back({".QVC", RaceColoursText(universe)});
  game.Files.push_back({".QVD", EmpireDataText(universe, ownRace)});
  game.Files.push_back({".QVL", DrawingText(universe, ownRace)});
}

void AddTurnFiles(const GameShape& shape, GeneratedGame& game) {
  const auto add = [&](const std::string& extension) {
    game.Files.push_back({extension, TurnFileBytes(shape.Seed, extension, shape.Year)});
  };
  for (int slot = 1; slot <= shape.PlayerCount; ++slot) add(".m" + std::to_string(slot));
  add(".hst");
}

std::vector<Planet> NewPlanets(const GameShape& shape) {
  Random placeRandom(shape.Seed, "places");
  std::vector<Planet> planets = ScatterPlanets(shape.Side, shape.PlanetCount, placeRandom);
  Random nameRandom(shape.Seed, "names");
  std::vector<std::string> names = MakePlanetNames(shape.PlanetCount, nameRandom);
  for (std::size_t i = 0; i < planets.size(); ++i) planets[i].Name = std::move(names[i]);
  return planets;
}

Universe MakeUniverse(const GameShape& shape, std::vector<Planet> planets,
                      const Course& course = {}) {
  Universe universe;
  universe.Year = shape.Year;
  universe.Planets = std::move(planets);
  Random raceRandom(shape.Seed, "races");
  universe.Races = MakeRaces(shape.PlayerCount, raceRandom);
  Random planetRandom(shape.Seed, "planets");
  FurnishPlanets(universe.Planets, planetRandom);
  Random historyRandom(shape.Seed, "history");
  PlayHistory(universe, historyRandom, course);
  return universe;
}

// The universe as it was in a year, without what came later.
Universe AsOf(Universe universe, int year) {
  universe.Year = year;
  for (Planet& planet : universe.Planets) {
    std::erase_if(planet.History, [&](const Tenure& tenure) { return tenure.Year > year; });
  }
  return universe;
}

GeneratedGame TellGame(const Universe& universe, const GameShape& shape, GeneratedGame game) {
  game.Year = shape.Year;
  game.OwnSlot = shape.OwnSlot;
  AddReports(universe, shape, game);
  if (shape.HasCompanions) AddCompanions(universe, shape, game);
  if (shape.HasTurnFiles) AddTurnFiles(shape, game);
  return game;
}

}  // namespace

const std::string* GeneratedGame::Content(std::string_view extension) const {
  const auto found = std::ranges::find(Files, extension, &GeneratedFile::Extension);
  return found == Files.end() ? nullptr : &found->Content;
}

Result<void> CheckShape(const GameShape& shape) {
  // Closer than one planet to 25 square light years they would stand on one another.
  const int mostPlanets = std::min(10000, shape.Side * shape.Side / 25);
  const int reports = shape.Style == kOldReportStyle ? shape.PlayerCount : shape.ReportCount;
  const Limit limits[] = {{"size", shape.Side, 400, 3200},
                          {"number of players", shape.PlayerCount, 1, kMaxPlayers},
                          {"number of planets", shape.PlanetCount, shape.PlayerCount, mostPlanets},
                          {"number of reports", reports, 1, shape.PlayerCount},
                          {"own slot", shape.OwnSlot, 1, reports},
                          {"year", shape.Year, kFirstYear + 1, 3000},
                          {"age spread", shape.AgeSpread, 0, 100}};
  for (const Limit& limit : limits) {
    if (limit.Value >= limit.Lowest && limit.Value <= limit.Highest) continue;
    return Failure{std::string("The ") + limit.What + " is " + std::to_string(limit.Value) +
                   ", it must be " + std::to_string(limit.Lowest) + " to " +
                   std::to_string(limit.Highest) + "."};
  }
  return {};
}

GeneratedGame GenerateGame(const GameShape& shape) {
  assert(CheckShape(shape));
  std::vector<Planet> planets = NewPlanets(shape);
  GeneratedGame game;
  game.Files.push_back({".map", MapText(planets)});
  return TellGame(MakeUniverse(shape, std::move(planets)), shape, std::move(game));
}

std::vector<GeneratedGame> GenerateYears(const GameShape& shape, int years) {
  assert(CheckShape(shape) && years >= 1 && years <= MostYears(shape));
  // All years are played in any case: what settlers will make of a planet shows before they come.
  const Universe universe =
      MakeUniverse(shape, NewPlanets(shape),
                   {kSettledAtFirst, MostYears(shape), shape.IsWar, shape.OwnSlot - 1});
  const std::string map = MapText(universe.Planets);
  std::vector<GeneratedGame> games;
  games.reserve(static_cast<std::size_t>(years));
  GameShape turn = shape;
  for (; turn.Year < shape.Year + years; ++turn.Year) {
    GeneratedGame game;
    game.Files.push_back({".map", map});
    games.push_back(TellGame(AsOf(universe, turn.Year), turn, std::move(game)));
  }
  return games;
}

GeneratedGame GenerateReportsForMap(std::span<const MapPlanet> map, const GameShape& shape) {
  assert(map.size() >= static_cast<std::size_t>(shape.PlayerCount));
  return TellGame(MakeUniverse(shape, PlanetsOfMap(map)), shape, {});
}

Result<void> WriteGame(const GeneratedGame& game, const std::filesystem::path& folder,
                       std::string_view baseName) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) {
    return Failure{TextFromPath(folder) + ": the folder cannot be made (" + error.message() + ")"};
  }
  for (const GeneratedFile& file : game.Files) {
    const std::string name = std::string(baseName) + file.Extension;
    if (Result<void> written = ReplaceFile(folder / PathFromText(name), file.Content); !written) {
      return written;
    }
  }
  return {};
}

}  // namespace quorvane::generator

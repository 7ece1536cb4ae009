#include "loading/load_game.h"

#include <utility>

#include "files/files.h"
#include "formats/drawing_file.h"
#include "formats/empire_data_file.h"
#include "formats/race_colour_file.h"
#include "formats/universe_map.h"
#include "influence/compute_influence.h"
#include "loading/report_merge.h"
#include "loading/report_reading.h"
#include "rules/player_statistics.h"
#include "rules/race_ranges.h"
#include "rules/scores.h"

namespace quorvane {
namespace {

void PlacePlanets(GameSession& session, const UniverseMap& map) {
  session.MeasureUniverse(map.Extent);
  session.CreatePlanetTable(static_cast<int>(map.Planets.size()));
  for (int i = 1; i <= session.PlanetCount; ++i) {
    const MapPlanet& source = map.Planets.at(static_cast<std::size_t>(i) - 1);
    PlanetRecord& planet = session.Planet(i);
    planet[PlanetField::Number] = source.Number;
    planet[PlanetField::X] = source.X - kUniverseOrigin;
    planet[PlanetField::Y] = map.Extent - source.Y;
    planet[PlanetField::Name] = source.Name;
  }
}

Result<void> ReadMap(GameSession& session) {
  const Result<std::string> text = ReadTextFile(session.MapFilePath);
  if (!text) return text.Error();
  const Result<UniverseMap> map =
      ParseUniverseMap(*text, TextFromPath(session.MapFilePath.filename()));
  if (!map) return map.Error();
  PlacePlanets(session, *map);
  return {};
}

Result<void> MergeReports(GameSession& session, const Progress& progress) {
  ReportMerge merge(session);
  if (session.MyRaceRow >= 1 && session.MyRaceRow <= kMaxPlayers) {
    const ReportFileSlot& own = session.ReportFiles.at(static_cast<std::size_t>(session.MyRaceRow));
    const Result<std::string> text = ReadReport(own.Path);
    if (!text) return text.Error();
    merge.AddOwnReport(*text, own.Year);
  }
  for (int row = 1; row <= kMaxPlayers; ++row) {
    const ReportFileSlot& other = session.ReportFiles.at(static_cast<std::size_t>(row));
    if (row == session.MyRaceRow || !FieldValue(other.Included).ReadsAs(1)) continue;
    if (progress.IsStopped()) return Failure{kLoadingStopped};
    const Result<std::string> text = ReadReport(other.Path);
    if (!text) return text.Error();
    merge.AddOtherReport(*text, other.Year);
  }
  return {};
}

// Immunities and traits are not in the reports: nobody has any until the empire data file says so.
void ClearTraits(PlayerRecord& player) {
  for (const std::size_t kind : {0U, 1U, 2U}) player.Immunity(kind) = 0;
  for (std::size_t trait = 0; trait < kLesserTraitCount; ++trait) player.Trait(trait) = 0;
  player[PlayerField::PrimaryTrait] = "";
  player[PlayerField::NotesText] = "";
}

// False when the user stopped it.
bool AnalysePlayers(GameSession& session, const Progress& progress) {
  DiscoverPlayers(session);
  GatherStatistics(session);
  if (!ComputeInfluence(session, progress)) return false;
  if (session.ReportStyle != kNewReportStyle) return true;
  ConvertTerritories(session);
  for (int player = 1; player <= session.PlayerCount; ++player) {
    EstimateHabRanges(session, player);
    ClearTraits(session.Player(player));
  }
  return true;
}

Result<void> ReadCompanions(GameSession& session) {
  if (Result<void> colours = ReadRaceColourFile(session); !colours) return colours;
  Result<std::vector<DrawingRecord>> drawing = ReadDrawingFile(session);
  if (!drawing) return drawing.Error();
  session.DrawingLayer = std::move(*drawing);
  return ReadEmpireDataFile(session);
}

}  // namespace

Result<GameSession> LoadGame(const GameChoice& choice, std::string_view myRaceName,
                             const Progress& progress) {
  GameSession session;
  static_cast<GameChoice&>(session) = choice;
  session.MyRaceName = myRaceName;
  session.Reset();
  session.CreatePlayerTable();
  if (const Result<void> map = ReadMap(session); !map) return map.Error();
  if (const Result<void> reports = MergeReports(session, progress); !reports) {
    return reports.Error();
  }
  if (!AnalysePlayers(session, progress)) return Failure{kLoadingStopped};
  for (PlanetRecord& planet : session.Planets()) {
    planet[PlanetField::ScoreValue] = PlanetScore(planet);
  }
  if (const Result<void> companions = ReadCompanions(session); !companions) {
    return companions.Error();
  }
  return session;
}

}  // namespace quorvane

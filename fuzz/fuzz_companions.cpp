// Any bytes as a companion file change nothing but what the file is for, and what was read from it
// is written so that it reads back the same. The first character, 0 … 4, says which file the rest
// is.
#include <iterator>
#include <optional>
#include <vector>

#include "formats/dialog_files.h"
#include "formats/drawing_file.h"
#include "formats/empire_data_file.h"
#include "formats/race_colour_file.h"
#include "fuzz_support.h"
#include "rules/estimated_hab.h"

namespace quorvane::fuzz {
namespace {

GameSession FullSession() {
  GameSession session;
  session.CreatePlanetTable(1);
  session.Planet(1)[PlanetField::Radiation] = "50mR";
  session.PlayerCount = kMaxPlayers;
  for (int player = 1; player <= kMaxPlayers; ++player) {
    session.Player(player)[PlayerField::Name] = std::string(1, static_cast<char>('A' + player - 1));
  }
  return session;
}

void CheckYears(const std::string& text) {
  const RowYears years = ParseYears(text);
  const Result<std::string> written = YearsText(years);
  if (written) Require(ParseYears(*written) == years, "years come back");
}

void CheckRememberedRace(const std::string& text) {
  const std::filesystem::path path = Folder() / "Demo.QVR";
  PlaceFile("Demo.QVR", text);
  const std::optional<int> row = LoadRememberedRace(path);
  if (!row) return;
  Require(*row >= 1 && *row <= kMaxPlayers, "remembered row");
  Require(SaveRememberedRace(path, *row) && LoadRememberedRace(path) == row, "row comes back");
}

void CheckRaceColours(const std::string& text) {
  GameSession session = FullSession();
  ApplyRaceColours(text, session);
  RequireSoundTables(session);
  GameSession again = FullSession();
  ApplyRaceColours(*RaceColoursText(session), again);
  for (int player = 1; player <= kMaxPlayers; ++player) {
    Require(*again.ColourOf(player) == *session.ColourOf(player), "colours come back");
  }
}

void CheckDrawing(const std::string& text) {
  const std::vector<DrawingRecord> records = *ParseDrawing(text, "fuzz.qvl");
  Require(*ParseDrawing(DrawingLayerText(records), "fuzz.qvl") == records,
          "the drawing comes back");
}

void CheckEmpireData(const std::string& text) {
  GameSession session = FullSession();
  ApplyEmpireData(text, session);
  for (int player = 1; player <= kMaxPlayers; ++player) EstimatedHab(session, player, 1);
  const Result<std::string> written = EmpireDataText(session);
  if (!written) return;
  GameSession again = FullSession();
  ApplyEmpireData(*written, again);
  Require(*EmpireDataText(again) == *written, "empire data come back");
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvane;
  constexpr void (*kChecks[])(const std::string&) = {fuzz::CheckYears, fuzz::CheckRememberedRace,
                                                     fuzz::CheckRaceColours, fuzz::CheckDrawing,
                                                     fuzz::CheckEmpireData};
  if (size == 0) return 0;
  kChecks[static_cast<std::size_t>(data[0] - '0') % std::size(kChecks)](
      fuzz::DecodedText(data + 1, size - 1));
  return 0;
}

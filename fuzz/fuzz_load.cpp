// A folder made from the input, one file for each part between lines of "----", loads as a sound
// session or gives a message that names a file of it. The map's heading, which the program does not
// read, sets the sphere of influence.
#include <algorithm>

#include "formats/game_files.h"
#include "fuzz_support.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "model/rounding.h"
#include "screens/open_checks.h"

namespace quorvane::fuzz {
namespace {

constexpr std::string_view kSeparator = "----\n";
constexpr std::string_view kFiles[] = {"Demo.MAP", "Demo.P1",  "Demo.P2",  "Demo.P16", "Demo.PLA",
                                       "Demo.QVC", "Demo.QVL", "Demo.QVD", "Demo.YRS"};

double PlaceFiles(std::string_view text) {
  const double soi =
      std::clamp<double>(NumericValue(text), kSmallestSoiSetting, kLargestSoiSetting);
  for (const std::string_view file : kFiles) {
    const std::string_view part = text.substr(0, text.find(kSeparator));
    PlaceFile(file, part);
    text.remove_prefix(std::min(part.size() + kSeparator.size(), text.size()));
  }
  return soi;
}

// Not watched by the fuzzer: the grid has 424,000 points.
__attribute__((no_sanitize("coverage"))) void RequireSound(const GameSession& session) {
  RequireSoundTables(session);
  Require(session.PlanetCount > 0 && session.UniverseExtent > kUniverseOrigin, "geometry");
  Require(session.InfluenceGrid.Size() == session.GridSize, "size of the grid");
  for (int gx = 0; gx <= session.GridSize; ++gx) {
    for (int gy = 0; gy <= session.GridSize; ++gy) {
      const InfluencePoint point = session.InfluenceGrid.At(gx, gy);
      Require(point.Holder >= 0 && point.Holder <= session.PlayerCount, "holder");
      Require(point.Strength >= 0 && point.Strength <= 100, "strength");
    }
  }
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvane;
  const double soi = fuzz::PlaceFiles(std::string_view(reinterpret_cast<const char*>(data), size));
  GameChoice choice;
  ChooseMap(choice, fuzz::Folder() / "Demo.MAP");
  FindReportFiles(choice, "2450", [&] { return size % 2 == 0; });
  OpenInput input{.Soi = NumberText(soi), .GameYear = "2450", .Years = {}};
  if (const auto years = LoadYearsFile(choice.YearsFilePath)) input.Years = *years;
  AcceptOpenInput(choice, input);
  const Result<GameSession> loaded = LoadGame(choice, "", {});
  if (loaded) {
    fuzz::RequireSound(*loaded);
  } else {
    fuzz::Require(loaded.Message().find("Demo.") != std::string::npos, loaded.Message());
  }
  return 0;
}

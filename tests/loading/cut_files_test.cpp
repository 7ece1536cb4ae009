#include <gtest/gtest.h>

#include <tuple>

#include "formats/game_files.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"
#include "screens/open_checks.h"
#include "support/game_folder.h"

namespace quorvane {
namespace {

// What the open dialog and a load do with a folder; a message must name the file at fault.
void LoadCutFolder(const GameFolder& folder, const std::string& cutFile) {
  GameChoice choice;
  ChooseMap(choice, folder / "Demo.MAP");
  FindReportFiles(choice, "2450", [] { return false; });
  OpenInput input{.Soi = "50", .GameYear = "2450", .Years = {}};
  input.Years = LoadYearsFile(choice.YearsFilePath).value_or(input.Years);
  choice.MyRaceRow = LoadRememberedRace(choice.RememberedRaceFilePath).value_or(1);
  if (!AcceptOpenInput(choice, input).Message.empty()) return;
  const Result<GameSession> loaded = LoadGame(choice, "", {});
  EXPECT_TRUE(loaded || loaded.Message().find(cutFile) != std::string::npos) << loaded.Message();
  if (!loaded) return;
  for (int player = 1; player <= loaded->PlayerCount; ++player) {
    EXPECT_NE(loaded->ColourOf(player), nullptr);
  }
}

TEST(CutFiles, OfEveryKindLoadOrAreNamed) {
  const std::string rest = "1\r\n0\r\n\"HE\"\r\n1,1,1,1,1,1,1,1,1,1,1,1,1,1,\"a note\"\r\n";
  const std::tuple<const char*, std::string> kinds[] = {
      {"Demo.MAP", "#\tX\tY\tName\r\n1\t1050\t1060\t\"Alpha, Beta\"\r\n"},
      {"Demo.P1", "Name\r\nAlpha\tHumanoid\tDock\t0\t9000\t88%\t\t3\t4\t5%\r\n"},
      {"Demo.PLA", "Name\r\nAlpha\tHumanoid\t\t2\t90\t8%\t\r\n"},
      {"Demo.YRS", "\"2449\"\r\n\"\"\r\n\"2448\"\r\n"},
      {"Demo.QVR", "1\r\n"},
      {"Demo.QVC", "\"Humanoid\",1,255,128,0\r\n\"Drask\",2,0,0,255\r\n"},
      {"Demo.QVL", "L,1050,1060,1070,1080,2\r\nT,1050,1060,\"a, b\",12,1\r\n"},
      {"Demo.QVD", "\"Humanoid\"\r\n.5,2,-9,9,1,99,1," + rest}};
  for (const auto& [name, content] : kinds) {
    const GameFolder folder;
    for (std::size_t cut = 0; cut <= content.size(); ++cut) {
      for (const std::string& part : {content.substr(0, cut), content.substr(cut)}) {
        SCOPED_TRACE(std::string(name) + " is " + part);
        folder.Write(name, part);
        LoadCutFolder(folder, name);
      }
    }
  }
}

}  // namespace
}  // namespace quorvane

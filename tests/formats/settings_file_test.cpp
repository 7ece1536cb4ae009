#include "formats/settings_file.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

TEST(InstallDirIn, TakesTheLastItemBehindTheKey) {
  const std::tuple<const char*, const char*> cases[] = {
      {"[Stars]\r\nStarsInstallDir=C:\\Stars\r\nSound=0\r\n", "C:\\Stars"},
      {"StarsInstallDir=A\nStarsInstallDir:B", "B"},
      {"Colours=1,StarsInstallDir=C:\\Games, the rest\n", "C:\\Games"},
      {"starsinstalldir=C:\\Stars\n", ""},
      {"StarsInstallDir", ""},
      {"", ""}};
  for (const auto& [text, folder] : cases) EXPECT_EQ(InstallDirIn(text), folder) << text;
}

TEST(FindInstallDir, EndsAtTheExampleGames) {
  const TempFolder home;
  const auto places = SettingsPlaces(home.Path(), home / "data");
  EXPECT_EQ(FindInstallDir(places, "nowhere"), "nowhere");
  std::filesystem::create_directories(home / "data");
  home.Write("data/Stars.ini", "StarsInstallDir=examples\n");
  EXPECT_EQ(FindInstallDir(places, "nowhere"), home / "data/examples");
  std::string endless = "StarsInstallDir=C:";
  for (int step = 0; step < 30'000; ++step) endless += "\\a";
  home.Write("data/Stars.ini", endless);
  EXPECT_EQ(FindInstallDir(places, "nowhere"), "nowhere");
}

}  // namespace
}  // namespace quorvane

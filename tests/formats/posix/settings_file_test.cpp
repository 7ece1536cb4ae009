#include "formats/settings_file.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

TEST(FindInstallDir, TranslatesTheGamesPathIntoTheWinePrefix) {
  const TempFolder home;
  const auto drive = home / ".wine/drive_c";
  std::filesystem::create_directories(drive / "windows");
  std::filesystem::create_directories(drive / "Games/stars");
  home.Write(".wine/drive_c/windows/STARS.INI", "StarsInstallDir=C:\\games\\Stars\\\r\n");
  const auto places = SettingsPlaces(home.Path(), home / "data");
  EXPECT_EQ(FindInstallDir(places, "nowhere"), drive / "Games/stars");

  home.Write(".wine/drive_c/windows/STARS.INI", "Sound=1\r\n");
  EXPECT_EQ(FindInstallDir(places, "nowhere"), drive);  // C:\ itself
}

}  // namespace
}  // namespace quorvane

#include "formats/settings_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

TEST(FindInstallDir, LooksWhereTheSystemKeepsSettingsOfOldProgramsForEachUser) {
  const TempFolder home;
  const std::filesystem::path local = home / "Марс";
  const std::filesystem::path system = local / "VirtualStore" / "Windows";
  std::filesystem::create_directories(system);
  ASSERT_EQ(_wputenv((L"LOCALAPPDATA=" + local.native()).c_str()), 0);
  const auto places = SettingsPlaces(home.Path(), home / "data");

  const std::tuple<const char*, std::filesystem::path> cases[] = {
      {"C:\\Stars", L"C:\\Stars"},
      {"D:\\", L"D:\\"},
      {"E:", L"E:"},
      {"\\\\server\\share\\Stars", L"\\\\server\\share\\Stars"},
      {"Stars", system / "Stars"},
      {"", L"C:\\"}};
  for (const auto& [folder, path] : cases) {
    home.Write("Марс/VirtualStore/Windows/Stars.ini", "StarsInstallDir=" + std::string(folder));
    EXPECT_EQ(FindInstallDir(places, "nowhere").native(), path.native()) << folder;
  }
}

}  // namespace
}  // namespace quorvane

#include "screens/typed_path.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

TEST(TypedPath, LooksForAWindowsPathWhereWineKeepsIt) {
  const TempFolder home;
  const auto games = home / ".wine/drive_c/Stars/games";
  std::filesystem::create_directories(games);
  for (const char* typed : {"C:\\STARS\\Games\\demo.map", "\"c:/stars/games/demo.map\"",
                            "file:///C:/Stars/Games/demo.map"}) {
    EXPECT_EQ(TypedPath(typed, "/games/now", home.Path()), games / "demo.map") << typed;
  }
}

}  // namespace
}  // namespace quorvane

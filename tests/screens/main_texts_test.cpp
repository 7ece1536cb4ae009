#include "screens/main_texts.h"

#include <gtest/gtest.h>

#include "formats/game_files.h"
#include "support/map_views.h"

namespace quorvane {
namespace {

TEST(MainCaption, NamesTheMapAndNoUnknownYear) {
  EXPECT_EQ(MainCaption("1.6.8", nullptr), "Quorvane for Stars!   Version 1.6.8");
  GameChoice choice;
  ChooseMap(choice, std::filesystem::path("folder") / "Demo.MAP");
  EXPECT_EQ(MainCaption("1.6.8", &choice), "Quorvane for Stars!   Version 1.6.8  { Demo.MAP }");
}

TEST(PointerText, TellsThePlaceInTheGamesCoordinates) {
  EXPECT_EQ(PointerText(FullView(), {5009.9, 2500}), " X:1500 Y:1750");
  EXPECT_EQ(PointerText(FullView(), {-1, -1}), " X:999 Y:2001");
  EXPECT_EQ(PointerText(Zoomed(300, 200, 500), {39.9, 40}), " X:1301 Y:1798");
}

}  // namespace
}  // namespace quorvane

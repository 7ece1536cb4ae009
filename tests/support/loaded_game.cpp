#include "support/loaded_game.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "formats/game_files.h"
#include "loading/load_game.h"
#include "loading/report_finder.h"

namespace quorvane {

GameSession LoadGenerated(const TempFolder& folder, const generator::GeneratedGame& game,
                          int soiSetting) {
  for (const generator::GeneratedFile& file : game.Files) {
    folder.Write("Demo" + file.Extension, file.Content);
  }
  GameChoice choice;
  ChooseMap(choice, folder / "Demo.map");
  EXPECT_TRUE(FindReportFiles(choice, std::to_string(game.Year), nullptr));
  choice.MyRaceRow = choice.ReportStyle == kNewReportStyle ? game.OwnSlot : 1;
  choice.GameYear = game.Year;
  choice.SoiSetting = soiSetting;
  for (std::size_t i = 0; i < game.ReportYears.size(); ++i) {
    choice.ReportFiles.at(i + 1).Year = std::to_string(game.ReportYears[i]);
  }
  const Result<GameSession> loaded = LoadGame(choice, "", {});
  EXPECT_TRUE(loaded) << loaded.Message();
  return loaded ? *loaded : GameSession();
}

void ExpectSameGame(const GameSession& read, const GameSession& loaded) {
  EXPECT_EQ(read.GameYear, loaded.GameYear);
  EXPECT_EQ(read.ReportStyle, loaded.ReportStyle);
  EXPECT_EQ(read.SoiSetting, loaded.SoiSetting);
  EXPECT_EQ(read.MyRaceName, loaded.MyRaceName);
  EXPECT_EQ(read.UniverseExtent, loaded.UniverseExtent);
  EXPECT_EQ(read.GridCellSize, loaded.GridCellSize);
  EXPECT_EQ(read.GridSize, loaded.GridSize);
  EXPECT_EQ(read.OwnersWithoutRecord, loaded.OwnersWithoutRecord);
  EXPECT_TRUE(read.PlanetTable == loaded.PlanetTable) << "of " << loaded.GameYear;
  EXPECT_TRUE(std::ranges::equal(read.Players(), loaded.Players())) << "of " << loaded.GameYear;
  for (int player = 1; player <= loaded.PlayerCount; ++player) {
    const Colour* colour = loaded.ColourOf(player);
    ASSERT_EQ(read.ColourOf(player) == nullptr, colour == nullptr);
    EXPECT_TRUE(colour == nullptr || *read.ColourOf(player) == *colour);
  }
  EXPECT_TRUE(read.InfluenceGrid == loaded.InfluenceGrid) << "of " << loaded.GameYear;
  EXPECT_EQ(read.PlayerTable[0][PlayerField::Territory],
            loaded.PlayerTable[0][PlayerField::Territory]);
  EXPECT_EQ(read.DrawingLayer, loaded.DrawingLayer);
}

}  // namespace quorvane

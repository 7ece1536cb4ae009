#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

#include "history/game_hash.h"
#include "history/history.h"
#include "support/loaded_game.h"
#include "support/write_faults.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

class HistoryFaultsTest : public testing::Test {
 protected:
  HistoryFaultsTest() {
    History history = *OpenNow();
    EXPECT_TRUE(history.Store(session, 0));
  }
  // Moved out of its result, which has no copy.
  std::optional<History> OpenNow() const {
    Result<History> opened = History::Open(file);
    EXPECT_TRUE(opened) << opened.Message();
    return opened ? std::optional(std::move(*opened)) : std::nullopt;
  }

  TempFolder folder;
  const fs::path file = folder / "history.sqlite";
  GameSession session = LoadGenerated(
      folder, generator::GenerateGame({.Side = 400, .PlanetCount = 60, .PlayerCount = 5}));
  const std::string game = GameHash(session);
};

TEST_F(HistoryFaultsTest, AFullDiskKeepsTheYearsThatAreThere) {
  std::optional<History> history = OpenNow();
  const int known = session.GameYear;
  {
    const FullDisk full(fs::file_size(file));
    for (session.GameYear = known + 1; session.GameYear < known + 5; ++session.GameYear) {
      const Result<void> stored = history->Store(session, 0);
      EXPECT_TRUE(stored || stored.Message().starts_with("The year is not kept: "));
    }
    EXPECT_FALSE(history->Store(session, 0));
  }
  EXPECT_TRUE(history->Store(session, 0)) << "there is room again";
  history = OpenNow();
  EXPECT_EQ(history->Notice(), HistoryNotice());
  EXPECT_EQ(history->ReadYear(game, known)->PlanetCount, session.PlanetCount);
}

TEST_F(HistoryFaultsTest, IsReadWhereNothingMayBeWritten) {
  fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  fs::permissions(folder.Path(), fs::perms(0555));
  {
    const OrdinaryUser nobody;
    const std::optional<History> history = OpenNow();
    EXPECT_FALSE(history->IsWritable());
    EXPECT_TRUE(history->Notice().Details.starts_with("The history can only be read: "));
    EXPECT_TRUE(history->ReadYear(game, session.GameYear));
  }
  fs::permissions(folder.Path(), fs::perms::owner_all);
}

}  // namespace
}  // namespace quorvane

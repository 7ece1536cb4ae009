#include "loading/example_games.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

class ExampleGames : public testing::Test {
 protected:
  ExampleGames() {
    fs::create_directories(place / "share/examples");
    place.Write("share/examples/Demo.MAP", "map\r\n\xBA");
    fs::permissions(place / "share/examples/Demo.MAP", fs::perms::owner_read);
  }
  ~ExampleGames() override {  // not every system removes a protected file
    std::error_code failure;
    fs::permissions(place / "share/examples/Demo.MAP", fs::perms::owner_all, failure);
  }
  fs::path Open(const char* folder = "share/examples") const {
    return ExampleFolder(place / folder, place / "share", place / "home/data");
  }

  TempFolder place;
};

TEST_F(ExampleGames, AreCopiedOnceAndThenBelongToTheUser) {
  fs::create_directories(place / "home/data/examples-new1");  // left behind by a crash
  EXPECT_EQ(Open(), place / "home/data/examples");
  EXPECT_EQ(place.Read("home/data/examples/Demo.MAP"), "map\r\n\xBA");
  EXPECT_FALSE(fs::exists(place / "home/data/examples-new2"));
  place.Write("home/data/examples/Demo.MAP", "mine");
  EXPECT_EQ(Open(), place / "home/data/examples");
  EXPECT_EQ(place.Read("home/data/examples/Demo.MAP"), "mine");
}

TEST_F(ExampleGames, AreOpenedInPlaceWhereTheyCannotBeCopiedOrNeedNoCopy) {
  EXPECT_EQ(Open("games"), place / "games");
  EXPECT_FALSE(fs::exists(place / "home"));
  fs::create_directories(place / "share/examples/odd");  // no file, so that copying fails
  EXPECT_EQ(Open(), place / "share/examples");
  EXPECT_TRUE(fs::is_empty(place / "home/data"));
  fs::remove_all(place / "home");
  place.Write("home", "no folder");
  EXPECT_EQ(Open(), place / "share/examples");
}

}  // namespace
}  // namespace quorvane

#include "make_game_options.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>

#include "files/files.h"
#include "model/text.h"

namespace quorvane::generator {
namespace {

using Arguments = std::vector<std::string>;

TEST(ParseMakeGameOptions, RefusesWhatDoesNotGoTogether) {
  for (const Arguments& arguments : {Arguments{"--style", "old", "--reports", "2"},
                                     {"--map", "a.map", "--size", "400"},
                                     {"--planets", "40", "--map", "a.map"},
                                     {"--players", "4", "--reports", "5"},
                                     {"--years", "3", "--map", "a.map"},
                                     {"--years", "0"},
                                     {"--seed", "-1"},
                                     {"--planets", "40x"},
                                     {"--name", ""}}) {
    EXPECT_FALSE(ParseMakeGameOptions(arguments)) << arguments[0];
  }
}

TEST(ParseMakeGameOptions, ReportsGoBesideTheirMapUnlessToldOtherwise) {
  const auto options = ParseMakeGameOptions({"--map", "games/Demo.MAP", "--players", "03"});
  ASSERT_TRUE(options) << options.Message();
  EXPECT_EQ(options->Folder / options->BaseName, "games/Demo");
  EXPECT_EQ(options->Shape.ReportCount, 3);
  EXPECT_EQ(ParseMakeGameOptions({"--map", "a.map", "--out", "x"})->Folder, "x");
}

TEST(Examples, AreWhatTheCommandsInTheirReadmeMake) {
  const std::filesystem::path folder = PathFromText(QUORVANE_EXAMPLES_DIR);
  std::istringstream text(*ReadTextFile(folder / "README.md"));
  int games = 0;
  for (std::string line, word; std::getline(text, line);) {
    std::istringstream command(line);
    if (!(command >> word) || word != "quorvane-make-game") continue;
    Arguments arguments;
    while (command >> std::quoted(word)) arguments.push_back(word);
    const auto options = ParseMakeGameOptions(arguments);
    ASSERT_TRUE(options) << options.Message();
    for (const GeneratedFile& file : GenerateGame(options->Shape).Files) {
      const auto kept = ReadTextFile(folder / PathFromText(options->BaseName + file.Extension));
      EXPECT_EQ(kept ? *kept : kept.Message(), DecodeText(file.Content)) << file.Extension;
    }
    ++games;
  }
  EXPECT_EQ(games, 2);
}

}  // namespace
}  // namespace quorvane::generator

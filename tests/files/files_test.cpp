#include "files/files.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

TEST(FindFile, GivesTheNameThatAFileHasOnTheDiskAndKeepsWhenReplaced) {
  const TempFolder folder;
  folder.Write("DEMO.P12", "12");
  folder.Write("demo.p1", "1");
  EXPECT_EQ(FindFile(folder / "Demo.P1"), folder / "demo.p1");
  ASSERT_TRUE(ReplaceFile(folder / "Demo.P1", "new"));
  EXPECT_EQ(folder.Read("demo.p1"), "new");
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", "").size(), 2U);
  std::filesystem::create_directory(folder / "Demo.P3");
  EXPECT_EQ(FindFile(folder / "Demo.P3"), std::nullopt);
  EXPECT_EQ(FindFile(""), std::nullopt);
}

TEST(NameAmong, PrefersTheExactNameToTheFirstInAnotherCase) {
  EXPECT_EQ(NameAmong({"DEMO.P1", "Demo.P1", "demo.p1"}, "Demo.P1"), "Demo.P1");
  EXPECT_EQ(NameAmong({"DEMO.P1", "demo.p1"}, "Demo.P1"), "DEMO.P1");
}

TEST(FilesNamedLike, ListsSmallLettersAmongCapitals) {
  const TempFolder folder;
  for (const char* name : {"Zeta.map", "alpha.MAP", "beta.map", "map.txt"}) folder.Write(name, "");
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", ".map"),
            (std::vector<std::filesystem::path>{"alpha.MAP", "beta.map", "Zeta.map"}));
}

TEST(Files, MayHaveNamesInAnyScriptAndKeepEveryByte) {
  const TempFolder folder;
  const std::string content = "a\r\nb\n\n\r\x1A\tc\r";
  for (const std::string name : {"Größe.QVD", "Łódź.QVD", "Марс.QVD", "火星.QVD", "🚀.QVD"}) {
    ASSERT_TRUE(ReplaceFile(folder / name, "old")) << name;
    ASSERT_TRUE(ReplaceFile(folder / name, content)) << name;
    EXPECT_EQ(*ReadTextFile(folder / name), content) << name;
    EXPECT_EQ(folder.Read(name), content) << name;
    EXPECT_EQ(FilesNamedLike(folder.Path(), PathFromText(name), ""),
              std::vector{PathFromText(name)});
    EXPECT_TRUE(TextFromPath(folder / name).ends_with(name)) << name;
  }
}

TEST(ReadTextFile, SaysWhatIsWrongWithAFileThatCannotBeUsed) {
  const TempFolder folder;
  folder.Write("binary", std::string("one\ntwo\n\0", 9));
  std::filesystem::resize_file(folder.Write("large", ""), kLargestTextFile + 1);
  const std::pair<const char*, const char*> cases[] = {{"binary", "binary, line 3: "},
                                                       {"large", "too large"}};
  for (const auto& [name, reason] : cases) {
    const std::string message = ReadTextFile(folder / name).Message();
    EXPECT_NE(message.find(reason), message.npos) << message;
  }
}

TEST(SaveText, WritesNothingThatCouldNotBeReadBack) {
  const TempFolder folder;
  EXPECT_FALSE(SaveText(folder / "Demo.QVD", std::string(kLargestTextFile + 1, 'x')));
  EXPECT_FALSE(FindFile(folder / "Demo.QVD"));
  EXPECT_TRUE(SaveText(folder / "Demo.QVD", std::string(kLargestTextFile, 'x')));
}

}  // namespace
}  // namespace quorvane

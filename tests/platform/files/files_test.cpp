#include "platform/files/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

TEST(FindFile, PrefersTheExactNameToOneInAnotherCase) {
  const TempFolder folder;
  folder.Write("DEMO.P1", "1");
  folder.Write("demo.p12", "12");
  EXPECT_EQ(FindFile(folder / "Demo.P1"), folder / "DEMO.P1");
  folder.Write("Demo.P1", "1");
  EXPECT_EQ(FindFile(folder / "Demo.P1"), folder / "Demo.P1");
  EXPECT_EQ(FindFile(folder / "Demo.P2"), std::nullopt);
  std::filesystem::create_directory(folder / "Demo.P3");
  EXPECT_EQ(FindFile(folder / "Demo.P3"), std::nullopt);
  EXPECT_EQ(FindFile(""), std::nullopt);
}

TEST(ReadTextFile, SaysWhatIsWrongWithAFileThatCannotBeUsed) {
  const TempFolder folder;
  EXPECT_NE(ReadTextFile(folder / "none").Message().find("there is no such file"),
            std::string::npos);
  folder.Write("binary", std::string("one\ntwo\n\0", 9));
  EXPECT_NE(ReadTextFile(folder / "binary").Message().find("binary, line 3:"), std::string::npos);
  const auto large = folder.Write("large", "");
  std::filesystem::resize_file(large, kLargestTextFile + 1);
  EXPECT_NE(ReadTextFile(large).Message().find("too large"), std::string::npos);
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_FALSE(ReadTextFile(folder / "pipe"));  // and does not wait for it
}

TEST(ReplaceFile, ReplacesWholeFilesUnderTheirOwnName) {
  const TempFolder folder;
  folder.Write("demo.qvd", "old content");
  ASSERT_TRUE(ReplaceFile(folder / "Demo.QVD", "new"));
  EXPECT_EQ(folder.Read("demo.qvd"), "new");
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", ""), std::vector<std::string>{"demo.qvd"});
}

TEST(ReplaceFile, LeavesTheOldFileWhenTheNewOneCannotBeWritten) {
  const Result<void> missing = ReplaceFile("/no/such/folder/Demo.QVD", "x");
  EXPECT_NE(missing.Message().find("Demo.QVD: the file cannot be written"), std::string::npos);

  // A folder that bears the name of the new file beside the old one is in the way.
  const TempFolder folder;
  folder.Write("Demo.QVD", "old");
  std::filesystem::create_directories(folder / "Demo.QVD.quorvane-new/full");
  EXPECT_FALSE(ReplaceFile(folder / "Demo.QVD", "new"));
  EXPECT_EQ(folder.Read("Demo.QVD"), "old");
}

}  // namespace
}  // namespace quorvane

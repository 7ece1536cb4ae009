#include "files/files.h"

#include <gtest/gtest.h>

#include <fstream>
#include <tuple>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

TEST(PathFromText, TakesAnyBytesAndGivesTheSystemsSeparators) {
  const std::tuple<const char*, const wchar_t*> cases[] = {
      {"C:/Spiele/Łódź.MAP", L"C:\\Spiele\\Łódź.MAP"},
      {"\\\\server\\share/x", L"\\\\server\\share\\x"},
      {"J\xFCrgen", L"J\x00FCrgen"},
      {"cut\xC3", L"cut\x00C3"}};
  for (const auto& [text, path] : cases) EXPECT_EQ(PathFromText(text).native(), path) << text;
}

TEST(TextFromPath, TakesNamesThatAreNoText) {
  EXPECT_EQ(TextFromPath(L"a\xD800.MAP"), "a\uFFFD.MAP");
  EXPECT_EQ(TextFromPath(L"\xDE80.MAP"), "\uFFFD.MAP");
  EXPECT_EQ(TextFromPath(L"\xD83D\xDE80"), "\U0001F680");
  EXPECT_EQ(TextFromPath(""), "");
}

void ExpectFailure(const fs::path& path, const char* reason) {
  const std::string message = ReplaceFile(path, "new").Message();
  EXPECT_TRUE(message.starts_with(TextFromPath(path) + ": ")) << message;
  EXPECT_NE(message.find(reason), message.npos) << message;
}

TEST(ReplaceFile, NamesFileAndReasonAndLeavesTheOldOneWhereItCannotBeReplaced) {
  const TempFolder folder;
  fs::create_directory(folder / "folder");
  ExpectFailure(folder / "folder", "Is a directory");
  ExpectFailure(folder / "no/new", "No such file");
  const fs::path path = folder.Write("Demo.QVD", "old");
  {
    const std::ifstream reader(path);  // an open file may be written, but not replaced
    ASSERT_TRUE(reader);
    ExpectFailure(path, "Permission denied");
  }
  EXPECT_EQ(folder.Read("Demo.QVD"), "old");
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", ""), std::vector<fs::path>{"Demo.QVD"});
}

TEST(ReplaceFile, RespectsWriteProtection) {
  const TempFolder folder;
  const fs::path path = folder.Write("Demo.QVD", "old");
  fs::permissions(path, fs::perms::owner_read);
  const bool isProtected = !std::fstream(path);
  if (isProtected) ExpectFailure(path, "Permission denied");
  fs::permissions(path, fs::perms::owner_all);  // so that it can be removed
  if (!isProtected) GTEST_SKIP() << "Nothing is protected against root, under Wine neither.";
  EXPECT_EQ(folder.Read("Demo.QVD"), "old");
}

}  // namespace
}  // namespace quorvane

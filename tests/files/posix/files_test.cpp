#include "files/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <thread>

#include "files/system_files.h"
#include "support/temp_folder.h"
#include "support/write_faults.h"

namespace quorvane {
namespace {

TEST(TextFromPath, ReadsEachStepInItsOwnEncoding) {
  EXPECT_EQ(TextFromPath("/home/Jürgen//K\xF6n.map"), "/home/Jürgen//Kön.map");
  EXPECT_EQ(TextFromPath("K\xF6n/"), "Kön/");
}

TEST(ReadTextFile, DoesNotWaitForAPipe) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  const std::string message = ReadTextFile(folder / "pipe").Message();
  EXPECT_NE(message.find("pipe: there is no such file"), message.npos) << message;
}

TEST(ReplaceFile, NamesFileAndReasonWhereNothingCanBeWritten) {
  const TempFolder folder;
  std::filesystem::create_directory(folder / "folder");
  std::filesystem::create_symlink("nowhere", folder / "link");
  const std::pair<const char*, const char*> cases[] = {
      {"no/new", "No such file"}, {"folder", "Is a directory"}, {"link", "No such file"}};
  for (const auto& [name, reason] : cases) {
    const std::string message = ReplaceFile(folder / name, "x").Message();
    EXPECT_TRUE(message.starts_with(TextFromPath(folder / name) + ": ")) << message;
    EXPECT_NE(message.find(reason), message.npos) << message;
  }
  EXPECT_TRUE(FilesNamedLike(folder.Path(), "", "").empty());
}

TEST(ReplaceFile, LeavesTheOldFileWholeWhenTheProgramDiesWhileWriting) {
  const TempFolder folder;
  const std::filesystem::path path = folder.Write("Demo.QVD", "old");
  std::filesystem::permissions(path, std::filesystem::perms(0604));
  const pid_t child = fork();
  if (child == 0) {
    const FullDisk disk(1 << 19, SIG_DFL);
    _exit(ReplaceFile(path, std::string(1 << 20, 'x')) ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << status;
  EXPECT_EQ(folder.Read("Demo.QVD"), "old");
  const auto files = FilesNamedLike(folder.Path(), "", "");
  ASSERT_TRUE(ReplaceFile(path, "new"));  // what the dead one left is no hindrance
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0604));
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", ""), files);
}

TEST(ReplaceFile, NeverLeavesHalfAFileWhereTwoSaveUnderTheLongestNameAtOnce) {
  const TempFolder folder;
  const std::string texts[] = {std::string(300'000, 'a'), std::string(200'000, 'b')};
  const std::string longest = std::string(251, 'x') + ".QVD";
  const std::filesystem::path path = folder.Write(longest, texts[0]);
  const auto save = [&](const std::string& text) {
    for (int i = 0; i < 30; ++i) {
      EXPECT_TRUE(ReplaceFile(path, text));
      const std::string found = folder.Read(longest);
      EXPECT_TRUE(found == texts[0] || found == texts[1]) << found.size();
    }
  };
  std::thread other(save, texts[1]);
  save(texts[0]);
  other.join();
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", "").size(), 1U);
}

TEST(OpenForBytes, CreatesNothingWhereSomethingHasTheName) {
  const TempFolder folder;
  folder.Write("file", "old");
  std::filesystem::create_symlink("file", folder / "link");
  std::filesystem::create_symlink("nowhere", folder / "loose link");
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  for (const char* name : {"file", "link", "loose link", "pipe"}) {
    EXPECT_FALSE(OpenForBytes(folder / name, OpenTo::Create)) << name;
    EXPECT_EQ(errno, EEXIST) << name;
  }
  EXPECT_EQ(folder.Read("file"), "old");
  EXPECT_FALSE(FindFile(folder / "nowhere"));
}

}  // namespace
}  // namespace quorvane

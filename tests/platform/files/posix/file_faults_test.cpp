#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files/files.h"
#include "support/temp_folder.h"
#include "support/write_faults.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

void ExpectFailure(const Result<void>& replaced, const fs::path& path, const char* reason) {
  const std::string message = replaced.Message();
  EXPECT_TRUE(message.starts_with(TextFromPath(path) + ": ")) << message;
  EXPECT_NE(message.find(reason), message.npos) << message;
}

Result<void> ReplaceWithinLimit(const fs::path& path, void (*atLimit)(int)) {
  const std::string content(1 << 20, 'x');
  const FullDisk disk(content.size() / 2, atLimit);
  return ReplaceFile(path, content);
}

TEST(FileFaults, NameFileAndReasonWhereNothingCanBeWritten) {
  const TempFolder folder;
  fs::create_directory(folder / "folder");
  fs::create_symlink("nowhere", folder / "link");
  ExpectFailure(ReplaceFile(folder / "no/new", "x"), folder / "no/new", "No such file");
  ExpectFailure(ReplaceFile(folder / "folder", "x"), folder / "folder", "Is a directory");
  ExpectFailure(ReplaceFile(folder / "link", "x"), folder / "link", "No such file");
  EXPECT_TRUE(FilesNamedLike(folder.Path(), "", "").empty());
}

TEST(FileFaults, LeaveTheOldFileWholeOnAFullDisk) {
  const TempFolder folder;
  const fs::path path = folder.Write("Demo.QVD", "old");
  ExpectFailure(ReplaceWithinLimit(path, SIG_IGN), path, "File too large");
  EXPECT_EQ(folder.Read("Demo.QVD"), "old");
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", ""), std::vector<std::string>{"Demo.QVD"});
}

TEST(FileFaults, LeaveTheOldFileWholeWhenTheProgramDiesWhileWriting) {
  const TempFolder folder;
  const fs::path path = folder.Write("Demo.QVD", "old");
  const pid_t child = fork();
  if (child == 0) _exit(ReplaceWithinLimit(path, SIG_DFL) ? 0 : 1);
  int status = 0;
  ASSERT_TRUE(waitpid(child, &status, 0) == child && WIFSIGNALED(status) &&
              WTERMSIG(status) == SIGXFSZ)
      << status;
  EXPECT_EQ(folder.Read("Demo.QVD"), "old");
  ASSERT_TRUE(ReplaceFile(path, "new"));  // what the dead one left is no hindrance
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", ""), std::vector<std::string>{"Demo.QVD"});
}

TEST(FileFaults, RespectWriteProtection) {
  const OrdinaryUser user;
  const TempFolder folder;
  const fs::path path = folder.Write("Demo.QVD", "old");
  fs::permissions(path, fs::perms::owner_read);
  ExpectFailure(ReplaceFile(path, "new"), path, "Permission denied");
  fs::permissions(folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  ExpectFailure(ReplaceFile(folder / "Demo.QVL", "new"), folder / "Demo.QVL", "Permission denied");
  EXPECT_EQ(folder.Read("Demo.QVD"), "old");
  fs::permissions(folder.Path(), fs::perms::owner_all);  // so that it can be removed
}

}  // namespace
}  // namespace quorvane

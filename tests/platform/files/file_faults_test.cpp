#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/files/files.h"
#include "support/temp_folder.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

void ExpectFailure(const Result<void>& replaced, const fs::path& path, const char* reason) {
  const std::string message = replaced.Message();
  EXPECT_TRUE(message.starts_with(TextFromPath(path) + ": ")) << message;
  EXPECT_NE(message.find(reason), message.npos) << message;
}

// Writes while no file may grow beyond half of it. At that size writing fails, as it does on a full
// disk, when the signal is ignored; otherwise the process ends in mid-file.
Result<void> ReplaceWithinLimit(const fs::path& path, void (*atLimit)(int)) {
  const std::string content(1 << 20, 'x');
  rlimit old = {};
  getrlimit(RLIMIT_FSIZE, &old);
  const rlimit half = {.rlim_cur = content.size() / 2, .rlim_max = old.rlim_max};
  const auto before = signal(SIGXFSZ, atLimit);
  setrlimit(RLIMIT_FSIZE, &half);
  const Result<void> replaced = ReplaceFile(path, content);
  setrlimit(RLIMIT_FSIZE, &old);
  signal(SIGXFSZ, before);
  return replaced;
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

// Nothing is protected against root, who therefore tests as somebody else.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    if (geteuid() == 0) isChanged_ = seteuid(kNobody) == 0;
  }
  ~OrdinaryUser() {
    const bool isBack = !isChanged_ || seteuid(0) == 0;
    EXPECT_TRUE(isBack);
  }

 private:
  static constexpr uid_t kNobody = 65534;
  bool isChanged_ = false;
};

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

#include "platform/files/files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

TEST(FindFile, PrefersTheExactNameToOneInAnotherCase) {
  const TempFolder folder;
  folder.Write("demo.p1", "1");
  folder.Write("DEMO.P1", "1");
  EXPECT_EQ(FindFile(folder / "Demo.P1"), folder / "DEMO.P1");
  folder.Write("Demo.P1", "1");
  EXPECT_EQ(FindFile(folder / "Demo.P1"), folder / "Demo.P1");
}

TEST(ReadTextFile, DoesNotWaitForAPipe) {
  const TempFolder folder;
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  const std::string message = ReadTextFile(folder / "pipe").Message();
  EXPECT_NE(message.find("pipe: there is no such file"), message.npos) << message;
}

}  // namespace
}  // namespace quorvane

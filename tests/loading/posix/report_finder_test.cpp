#include "loading/report_finder.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace quorvane {
namespace {

TEST(FindReportFiles, PrefersTheExactNameToOneInAnotherCase) {
  const TempFolder folder;
  for (const char* name : {"Demo.MAP", "DEMO.P12", "Demo.P12"}) folder.Write(name, "x");
  GameChoice choice;
  ChooseMap(choice, folder / "Demo.MAP");
  ASSERT_TRUE(FindReportFiles(choice, "", [] { return true; }));
  EXPECT_EQ(choice.ReportFiles[12].Path, folder / "Demo.P12");
}

}  // namespace
}  // namespace quorvane

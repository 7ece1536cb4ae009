#include "ui/about.h"

#include <gtest/gtest.h>

#include "support/window_driver.h"

namespace quorvane {
namespace {

TEST(About, SaysItsVersionAndClosesByEnterAndEscape) {
  About about(nullptr);
  WindowDriver driver(about);
  EXPECT_EQ(about.windowTitle(), "About Quorvane");
  EXPECT_EQ(driver.Text("lblVersion"), "Version 1.6.8");
  EXPECT_FALSE(about.Picture1->pixmap(Qt::ReturnByValue).isNull());
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    about.show();
    driver.Press("cmdOK", key);
    EXPECT_FALSE(about.isVisible());
  }
}

}  // namespace
}  // namespace quorvane

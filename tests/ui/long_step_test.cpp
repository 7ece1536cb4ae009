#include "ui/long_step.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QLineEdit>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

namespace quorvane {
namespace {

class LongStepTest : public testing::Test {
 protected:
  LongStepTest() {
    bar.setValue(30);
    typed.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&typed));
  }

  // Runs a step that would take ten seconds while the user does something again and again.
  template <typename Act>
  bool IsStoppedBy(const Act& act) {
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, act);
    user.start(0);
    LongStep step(bar);
    const Progress display = step.Display();
    const QDeadlineTimer tooLong(10000);
    while (!display.IsStopped() && !tooLong.hasExpired()) {
    }
    return !tooLong.hasExpired();
  }

  QLineEdit typed;
  QProgressBar bar;
};

TEST_F(LongStepTest, LetsWindowsAnswerDropsInputAndIsStoppedByEscape) {
  int answers = 0;
  EXPECT_TRUE(IsStoppedBy([&] {
    EXPECT_EQ(bar.maximum(), 0) << "only shows that something goes on";
    QTest::keyClick(&typed, Qt::Key_A);
    if (++answers == 2) QTest::keyClick(&typed, Qt::Key_Escape);
  }));
  EXPECT_EQ(bar.value(), 30);
  QTest::keyClick(&typed, Qt::Key_B);
  EXPECT_EQ(typed.text(), "b");
}

TEST_F(LongStepTest, WindowThatIsClosedMeanwhileClosesBehindIt) {
  EXPECT_TRUE(IsStoppedBy([&] {
    typed.close();
    EXPECT_TRUE(typed.isVisible());
  }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !typed.isVisible(); }));
}

}  // namespace
}  // namespace quorvane

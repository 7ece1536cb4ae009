#include "ui/text_box.h"

#include <gtest/gtest.h>

#include <QTest>

namespace quorvane {
namespace {

TEST(TextBox, GivesBackToTheCharacterWhatWasShownTypedAndAppended) {
  TextBox box(nullptr);
  const QString texts[] = {"",
                           "one",
                           "\u00A0no\u00A0break ",
                           "a\rb\r\nc\nd\u2028e\u2029f\r ",
                           "\r\n\r\r\n\n\r\n",
                           "\u2028\u2029"};
  for (const QString& text : texts) {
    box.ShowText(text);
    EXPECT_EQ(box.Text(), text);
    box.moveCursor(QTextCursor::Start);
    QTest::keyClicks(&box, "x\rx");
    EXPECT_EQ(box.Text(), "x\nx" + text);
    box.moveCursor(QTextCursor::End);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(&box, Qt::Key_Y);
    EXPECT_EQ(box.Text(), "x\nx" + text + "\ny");
    box.AppendText("\u2029 z\r\n");
    EXPECT_EQ(box.Text(), "x\nx" + text + "\ny\u2029 z\r\n");
    box.undo();
    EXPECT_EQ(box.Text(), "x\nx" + text + "\ny");
  }
}

}  // namespace
}  // namespace quorvane

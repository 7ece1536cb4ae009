#include "ui/message_box_prompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <tuple>

namespace quorvane {
namespace {

using Answer = std::optional<std::string>;

TEST(MessageBoxPrompts, AskTextGivesWhatWasTypedOrNothing) {
  const std::tuple<const char*, Qt::Key, Answer> cases[] = {{"1.5", Qt::Key_Return, "1.5"},
                                                            {"", Qt::Key_Return, "preset"},
                                                            {"1.5", Qt::Key_Escape, std::nullopt},
                                                            {"\b", Qt::Key_Return, std::nullopt}};
  QWidget parent;
  MessageBoxPrompts prompts(parent);
  for (const auto& [typed, key, expected] : cases) {
    QTimer::singleShot(0, &parent, [keys = typed, last = key] {
      const QWidget* box = QApplication::activeModalWidget();
      EXPECT_EQ(box->windowTitle(), "Title");
      EXPECT_EQ(box->findChild<QLabel*>()->text(), "Value for <b>Salt && Sons</b>\r\n\r\n(hint)");
      auto* text = box->findChild<QLineEdit*>();
      EXPECT_EQ(text->selectedText(), "preset");
      QTest::keyClicks(text, keys);
      QTest::keyClick(text, last);
    });
    EXPECT_EQ(prompts.AskText("Title", "Value for <b>Salt & Sons</b>\r\n\r\n(hint)", "preset"),
              expected);
  }
}

}  // namespace
}  // namespace quorvane

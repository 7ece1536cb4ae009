#include "ui/message_box_prompts.h"

#include <QApplication>
#include <QMessageBox>

#include "ui/texts.h"

namespace quorvane {

void MessageBoxPrompts::Inform(const std::string& text) {
  QMessageBox box(QMessageBox::NoIcon, kProgramName, ToQString(text), QMessageBox::Ok, Parent());
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

bool MessageBoxPrompts::AskYesNo(const std::string& title, const std::string& question) {
  // The game's line end is two characters, the box's is one.
  const QString shown = ToQString(question).replace("\r\n", "\n");
  QMessageBox box(QMessageBox::Question, ToQString(title), shown,
                  QMessageBox::Yes | QMessageBox::No, Parent());
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

QWidget* MessageBoxPrompts::Parent() const {
  QWidget* active = QApplication::activeModalWidget();
  return active != nullptr ? active : &parent_;
}

}  // namespace quorvane

#include "ui/message_box_prompts.h"

#include <QApplication>
#include <QInputDialog>
#include <QLabel>
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
  QMessageBox box(QMessageBox::Question, ToQString(title), ToQString(question),
                  QMessageBox::Yes | QMessageBox::No, Parent());
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

std::optional<std::string> MessageBoxPrompts::AskText(const std::string& title,
                                                      const std::string& prompt,
                                                      const std::string& preset) {
  QInputDialog box(Parent());
  box.setObjectName("InputBox");
  box.setWindowTitle(ToQString(title));
  // The prompt stands for the text box, so that an "&" in it would mark an access key.
  box.setLabelText(WithoutAccessKeys(ToQString(prompt)));
  for (QLabel* label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  box.setTextValue(ToQString(preset));
  if (box.exec() != QDialog::Accepted || box.textValue().isEmpty()) return std::nullopt;
  return ToText(box.textValue());
}

QWidget* MessageBoxPrompts::Parent() const {
  QWidget* active = QApplication::activeModalWidget();
  return active != nullptr ? active : &parent_;
}

}  // namespace quorvane

#include "ui/message_box_prompts.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include "ui/texts.h"

namespace quorvane {
namespace {

// The format comes first, so that no text is ever taken for markup.
void SetText(QMessageBox& box, const std::string& text) {
  box.setObjectName("MessageBox");
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQString(text));
}

// Another format was chosen for the file.
void TakeExtension(QFileDialog& box, const QString& extension) {
  box.setDefaultSuffix(extension);
  if (box.selectedFiles().isEmpty()) return;
  const QFileInfo file(box.selectedFiles().constFirst());
  if (!file.isDir()) box.selectFile(file.completeBaseName() + "." + extension);
}

}  // namespace

void MessageBoxPrompts::Inform(const std::string& text) {
  QMessageBox box(QMessageBox::NoIcon, kProgramName, "", QMessageBox::Ok, Parent());
  SetText(box, text);
  box.exec();
}

bool MessageBoxPrompts::AskYesNo(const std::string& title, const std::string& question) {
  QMessageBox box(QMessageBox::Question, ToQString(title), "", QMessageBox::Yes | QMessageBox::No,
                  Parent());
  SetText(box, question);
  box.setDefaultButton(QMessageBox::Yes);
  return box.exec() == QMessageBox::Yes;
}

SaveAnswer MessageBoxPrompts::AskSave(const std::string& question) {
  QMessageBox box(QMessageBox::Question, kProgramName, "",
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, Parent());
  SetText(box, question);
  box.setDefaultButton(QMessageBox::Save);
  switch (box.exec()) {
    case QMessageBox::Save:
      return SaveAnswer::Save;
    case QMessageBox::Discard:
      return SaveAnswer::Discard;
    default:
      return SaveAnswer::Cancel;
  }
}

std::optional<std::string> MessageBoxPrompts::AskText(const std::string& title,
                                                      const std::string& prompt,
                                                      const std::string& preset) {
  QInputDialog box(Parent());
  box.setObjectName("InputBox");
  box.setWindowTitle(ToQString(title));
  box.setLabelText("");  // makes the label
  for (QLabel* label : box.findChildren<QLabel*>()) label->setTextFormat(Qt::PlainText);
  // The prompt stands for the text box, so that an "&" in it would mark an access key.
  box.setLabelText(WithoutAccessKeys(ToQString(prompt)));
  box.setTextValue(ToQString(preset));
  if (box.exec() != QDialog::Accepted || box.textValue().isEmpty()) return std::nullopt;
  return ToText(box.textValue());
}

std::optional<std::filesystem::path> MessageBoxPrompts::AskSaveFile(
    const std::string& title, const std::filesystem::path& suggestion,
    const std::string& otherExtension) {
  const QString extension = PathText(suggestion.extension());
  QFileDialog box(Parent(), ToQString(title), PathText(suggestion.parent_path()));
  box.setObjectName("SaveFileBox");
  box.setAcceptMode(QFileDialog::AcceptSave);
  QStringList filters = {"*" + extension, "*"};
  if (!otherExtension.empty()) filters.insert(1, "*" + ToQString(otherExtension));
  box.setNameFilters(filters);
  box.setDefaultSuffix(extension.mid(1));
  box.selectFile(PathText(suggestion.filename()));
  QObject::connect(&box, &QFileDialog::filterSelected, &box, [&box](const QString& filter) {
    if (filter != "*") TakeExtension(box, filter.mid(2));
  });
  if (box.exec() != QDialog::Accepted) return std::nullopt;
  return ToPath(box.selectedFiles().constFirst());
}

QWidget* MessageBoxPrompts::Parent() const {
  QWidget* active = QApplication::activeModalWidget();
  return active != nullptr ? active : &parent_;
}

}  // namespace quorvane

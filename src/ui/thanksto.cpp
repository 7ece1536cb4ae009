#include "ui/thanksto.h"

#include <QVBoxLayout>

#include "ui/controls.h"

namespace quorvane {
namespace {

constexpr int kTextWidth = 360;

constexpr const char* kPlayers =
    "... the players who export their reports turn after turn and share them with their allies. "
    "Every border on the map is drawn from what they have seen.";

constexpr const char* kTesters =
    "... everyone who tried this program on games that were too large, too old or too strange, "
    "and told what went wrong.";

constexpr const char* kAuthors =
    "... the authors of the free compilers and libraries that it is built with, Qt above all.";

}  // namespace

Thanksto::Thanksto(QWidget* parent) : QDialog(parent) {
  setObjectName("Thanksto");
  setWindowTitle("Special Thanks to");
  Label1 = NewParagraph("Label1", "My Thanks to...", kTextWidth, this);
  Label1->setProperty("title", true);
  Label2 = NewParagraph("Label2", kPlayers, kTextWidth, this);
  Label3 = NewParagraph("Label3", kTesters, kTextWidth, this);
  Label5 = NewParagraph("Label5", kAuthors, kTextWidth, this);
  Label4 = NewParagraph("Label4", "And to you, for using my program, and giving me feedback.",
                        kTextWidth, this);
  cmdOK = NewButton("cmdOK", "OK", this);
  cmdOK->setDefault(true);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 16, 16, 12);
  column->setSpacing(10);
  for (QLabel* label : {Label1, Label2, Label3, Label5, Label4}) column->addWidget(label);
  column->addWidget(cmdOK, 0, Qt::AlignRight);
  column->setSizeConstraint(QLayout::SetFixedSize);
  connect(cmdOK, &QPushButton::clicked, this, &Thanksto::cmdOK_Click);
}

void Thanksto::cmdOK_Click() { accept(); }

}  // namespace quorvane

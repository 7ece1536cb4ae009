#include "ui/about.h"

#include <QGridLayout>

#include "ui/controls.h"
#include "ui/icons.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QSize kPictureSize(128, 128);
constexpr int kTextWidth = 380;

constexpr const char* kDescription =
    "Quorvane turns the reports that your game exports, and those of your allies, into one star "
    "map: who holds which part of space, what scanners see, where stargates reach, which planets "
    "are worth settling and which are worth attacking. The game's own files are only read. What "
    "Quorvane remembers is kept in small files beside the map.";

constexpr const char* kDisclaimer =
    "Stars! belongs to its makers, who have no part in this program. Quorvane is made by players "
    "for players. It is free software under the MIT licence and comes without any warranty.";

constexpr const char* kContact =
    "New versions, and the place for questions, ideas and reports of mistakes, are on the "
    "project's own pages.";

}  // namespace

About::About(QWidget* parent) : QDialog(parent) {
  setObjectName("About");
  Picture1 = new QLabel(this);
  Picture1->setObjectName("Picture1");
  Picture1->setAccessibleName(tr("Quorvane's picture: a star map under a magnifying glass"));
  Picture1->setPixmap(ThemedIcon("quorvane").pixmap(kPictureSize, devicePixelRatio()));
  lblTitle = NewValue("lblTitle", this);
  lblTitle->setText("Quorvane for Stars!");
  lblTitle->setProperty("title", true);
  lblVersion = NewValue("lblVersion", this);
  lblDescription = NewParagraph("lblDescription", kDescription, kTextWidth, this);
  lblDisclaimer = NewParagraph("lblDisclaimer", kDisclaimer, kTextWidth, this);
  Label1 = NewParagraph("Label1", kContact, kTextWidth, this);
  cmdOK = NewButton("cmdOK", "OK", this);
  cmdOK->setDefault(true);
  connect(cmdOK, &QPushButton::clicked, this, &About::cmdOK_Click);
  LayOut();
  Form_Load();
}

void About::Form_Load() {
  setWindowTitle(QString("About ") + kProgramName);
  lblVersion->setText("Version " QUORVANE_VERSION);
}

void About::LayOut() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 16, 16, 12);
  grid->setHorizontalSpacing(18);
  grid->setVerticalSpacing(10);
  QLabel* const texts[] = {lblTitle, lblVersion, lblDescription, lblDisclaimer, Label1};
  for (QLabel* text : texts) grid->addWidget(text, grid->rowCount(), 1);
  grid->addWidget(Picture1, 1, 0, grid->rowCount() - 1, 1, Qt::AlignTop);
  grid->addWidget(cmdOK, grid->rowCount(), 1, Qt::AlignRight);
  grid->setSizeConstraint(QLayout::SetFixedSize);
}

void About::cmdOK_Click() { accept(); }

}  // namespace quorvane

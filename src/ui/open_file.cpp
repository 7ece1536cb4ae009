#include "ui/open_file.h"

#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "formats/dialog_files.h"
#include "screens/open_checks.h"
#include "ui/controls.h"
#include "ui/file_chooser.h"
#include "ui/icons.h"
#include "ui/report_rows.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(820, 560);
constexpr int kLeastRoom = 80;  // of the reports, which scroll

QLabel* NewLabel(const char* name, const QString& text, QWidget* parent) {
  QLabel* label = NewCaption(text, parent);
  label->setObjectName(name);
  return label;
}

template <typename Widget>
Widget* Named(Widget* widget, const char* name, const QString& accessibleName) {
  widget->setObjectName(name);
  widget->setAccessibleName(accessibleName);
  return widget;
}

}  // namespace

OpenFile::OpenFile(OpenState& state, Prompts& prompts, QWidget* parent)
    : QDialog(parent), state_(state), prompts_(prompts) {
  setObjectName("OpenFile");
  setWindowTitle("Open Stars! game files");
  Build();
  ConnectControls();
  ShowStartFolder();
}

void OpenFile::Build() {
  auto* columns = new QHBoxLayout(this);
  columns->setSpacing(16);
  auto* left = new QVBoxLayout();
  auto* right = new QVBoxLayout();
  left->setSpacing(6);
  right->setSpacing(10);
  columns->addLayout(left, 2);
  columns->addLayout(right, 3);
  AddFileChooser(*left);
  AddReports(*right);
  AddYear(*right);
  AddSettings(*right);
  AddButtons(*right);
  resize(kFirstSize.boundedTo(RoomOnScreen(*this)));
}

void OpenFile::AddFileChooser(QBoxLayout& column) {
  QLabel* heading = NewLabel("Label3", "Choose a MAP file:", this);
  Drive1 = Named(new DriveList(this), "Drive1", tr("Drive"));
  QBoxLayout* folderRow = NewFolderRow();
  Dir1 = Named(new FolderList(this), "Dir1", tr("Folder"));
  NameBox(*Drive1, tr("Drive"));
  File1 = Named(new ChoiceList(this), "File1", tr("Map files"));
  heading->setBuddy(File1);
  column.addWidget(heading);
  column.addWidget(Drive1);
  column.addLayout(folderRow);
  column.addWidget(Dir1, 3);
  column.addWidget(File1, 2);
}

QBoxLayout* OpenFile::NewFolderRow() {
  auto* row = new QHBoxLayout();
  row->setSpacing(6);
  FolderPath = Named(new FolderBox(this), "FolderPath", tr("Path of a folder or a map file"));
  FolderPath->setToolTip(tr("Type or paste the path of a folder or a map file, and press Enter"));
  RecentFolders =
      Named(new RecentFoldersButton("Recent", this), "RecentFolders", tr("Recent folders"));
  RecentFolders->setToolTip(tr("The folders of the last games"));
  row->addWidget(FolderPath, 1);
  row->addWidget(RecentFolders);
  return row;
}

void OpenFile::AddReports(QBoxLayout& column) {
  Label1 = NewLabel("Label1",
                    "Mark the option button next to the file which represents your race. Enter the "
                    "Year of each report in the box next to the filename:",
                    this);
  Label1->setWordWrap(true);
  PLALabelText = NewLabel("PLALabelText", "", this);
  PLALabelText->setWordWrap(true);
  Rows = new ReportRows(state_.Choice, this);
  auto* area = new QWidget(this);
  auto* areaLayout = new QVBoxLayout(area);
  areaLayout->setContentsMargins(0, 0, 0, 0);
  areaLayout->addWidget(Label1);
  areaLayout->addWidget(PLALabelText);
  areaLayout->addWidget(Rows);
  areaLayout->addStretch(1);
  // The rows come and go; the room for them stays, so that nothing below them jumps.
  QScrollArea* room = NewScrollArea(area);
  room->setMinimumHeight(kLeastRoom);
  column.addWidget(room, 1);
  Label1->hide();
  PLALabelText->hide();
}

void OpenFile::AddYear(QBoxLayout& column) {
  auto* yearRow = new QHBoxLayout();
  QLabel* yearLabel = NewLabel("Label2", "Current Game Year:", this);
  txtGameYear = Named(new QLineEdit(this), "txtGameYear", tr("Current game year"));
  txtGameYear->setFixedWidth(80);
  yearLabel->setBuddy(txtGameYear);
  yearRow->addWidget(yearLabel);
  yearRow->addWidget(txtGameYear);
  OfferedYear = NewButton("OfferedYear", "", this);
  OfferedYear->hide();
  // It comes and goes in the height of the box, so that nothing above and below it moves.
  OfferedYear->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
  yearRow->addWidget(OfferedYear);
  yearRow->addStretch(1);
  column.addLayout(yearRow);
}

void OpenFile::AddSettings(QBoxLayout& column) {
  auto* frame = new QGroupBox("Sphere of Influence Setting", this);
  frame->setObjectName("Frame1");
  auto* frameRow = new QHBoxLayout(frame);
  txtSOI = Named(new QLineEdit("100", frame), "txtSOI", tr("Sphere of influence in light years"));
  txtSOI->setFixedWidth(60);
  QLabel* advice = NewLabel(
      "Label4",
      "By altering this value, you can increase/decrease the SOI of each planet, thus changing the "
      "maximum radius of a planets border. Increasing the SOI will slow the loading and may cause "
      "an overflow in some universes. I recommend you stick with 100ly",
      frame);
  advice->setWordWrap(true);
  frameRow->addWidget(txtSOI, 0, Qt::AlignTop);
  frameRow->addWidget(advice, 1);
  column.addWidget(frame);
}

void OpenFile::AddButtons(QBoxLayout& column) {
  auto* row = new QHBoxLayout();
  RemRace = NewButton("RemRace", "&Remember My Race", this);
  SaveYears = NewButton("SaveYears", "Save &Years", this);
  Command1 = NewButton("Command1", "&Load && Generate Data", this);
  Command2 = NewButton("Command2", "&Cancel", this);
  for (QPushButton* button : {RemRace, SaveYears, Command1, Command2}) {
    button->setAutoDefault(false);
    row->addWidget(button);
  }
  row->insertStretch(2, 1);
  Command1->setDefault(true);
  Command1->setIcon(ThemedIcon("load"));
  QSizePolicy keepsRoom = RemRace->sizePolicy();
  keepsRoom.setRetainSizeWhenHidden(true);
  RemRace->setSizePolicy(keepsRoom);
  column.addLayout(row);
}

void OpenFile::ConnectControls() {
  connect(Drive1, &QComboBox::currentIndexChanged, this, &OpenFile::Drive1_Change);
  connect(FolderPath, &FolderBox::PathEntered, this, &OpenFile::FolderPath_Enter);
  connect(RecentFolders, &RecentFoldersButton::FolderChosen, this, &OpenFile::GoToFolder);
  connect(Dir1, &FolderList::FolderChanged, this, &OpenFile::Dir1_Change);
  connect(Dir1, &FolderList::FolderRefused, this, &OpenFile::TellRefusal);
  connect(File1, &ChoiceList::Chosen, this, &OpenFile::File1_Click);
  connect(Rows, &ReportRows::RaceChosen, this, &OpenFile::ShowOffer);
  connect(OfferedYear, &QPushButton::clicked, this, &OpenFile::OfferedYear_Click);
  connect(RemRace, &QPushButton::clicked, this, &OpenFile::RemRace_Click);
  connect(SaveYears, &QPushButton::clicked, this, &OpenFile::SaveYears_Click);
  connect(txtSOI, &QLineEdit::textChanged, this, &OpenFile::txtSOI_Change);
  connect(Command1, &QPushButton::clicked, this, &OpenFile::Command1_Click);
  connect(Command2, &QPushButton::clicked, this, &OpenFile::Command2_Click);
}

void OpenFile::RemRace_Click() {
  const Result<void> saved =
      SaveRememberedRace(state_.Choice.RememberedRaceFilePath, state_.Choice.MyRaceRow);
  prompts_.Inform(saved ? "Your Race number has been remembered" : saved.Message());
}

void OpenFile::SaveYears_Click() {
  const Result<void> saved = SaveYearsFile(state_.Choice.YearsFilePath, Rows->Years());
  prompts_.Inform(saved ? "Year Information saved" : saved.Message());
}

void OpenFile::txtSOI_Change() {
  if (!IsSoiTooLarge(ToText(txtSOI->text()))) return;
  prompts_.Inform("Maximum SOI must be 500ly");
  txtSOI->setText(QString::number(kLargestSoiSetting));
}

void OpenFile::Command1_Click() {
  const OpenProblem problem =
      AcceptOpenInput(state_.Choice, {.Soi = ToText(txtSOI->text()),
                                      .GameYear = ToText(txtGameYear->text()),
                                      .Years = Rows->Years()});
  if (problem.Message.empty()) {
    state_.OpenDialogResult = 0;
    accept();
    return;
  }
  prompts_.Inform(problem.Message);
  switch (problem.Remedy) {
    case OpenRemedy::UseSmallestSoi:
      txtSOI->setText(QString::number(kSmallestSoiSetting));
      Correct(*txtSOI);
      break;
    case OpenRemedy::UseLargestSoi:
      txtSOI->setText(QString::number(kLargestSoiSetting));
      Correct(*txtSOI);
      break;
    case OpenRemedy::FindReportsAgain:
      File1_Click();
      break;
    case OpenRemedy::None:
      break;
  }
  if (!problem.YearRow) return;
  const int row = *problem.YearRow;
  Correct(Rows->IsShown(row) ? *Rows->TxtPxYear[static_cast<std::size_t>(row)] : *txtGameYear);
}

void OpenFile::Correct(QLineEdit& box) {
  box.setFocus();
  box.selectAll();
}

void OpenFile::Command2_Click() { reject(); }

void OpenFile::reject() {
  state_.OpenDialogResult = 1;
  QDialog::reject();
}

void OpenFile::showEvent(QShowEvent* event) {
  if (!event->spontaneous()) {
    FolderPath->ShowFolder(Dir1->Folder());
    RecentFolders->ShowFolders(state_.RecentFolders);
    File1->setFocus();
  }
  QDialog::showEvent(event);
}

void OpenFile::closeEvent(QCloseEvent* event) {
  isDiscarded_ = true;
  QDialog::closeEvent(event);  // ends in reject
}

}  // namespace quorvane

#include "ui/open_file.h"

#include <QCloseEvent>
#include <QDir>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QSignalBlocker>
#include <QUrl>
#include <QVBoxLayout>

#include "files/files.h"
#include "formats/dialog_files.h"
#include "formats/game_files.h"
#include "loading/report_finder.h"
#include "model/field_value.h"
#include "screens/open_checks.h"
#include "screens/reload_plan.h"
#include "screens/typed_path.h"
#include "ui/controls.h"
#include "ui/file_chooser.h"
#include "ui/icons.h"
#include "ui/report_rows.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(820, 560);
constexpr int kWidestOffer = 240;
constexpr int kLeastRoom = 80;  // of the reports, which scroll
// A map of the list: the name that its file has on the disk.
constexpr int kPathRole = Qt::UserRole;

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
  AddSettings(*right);
  AddButtons(*right);
  resize(kFirstSize.boundedTo(RoomOnScreen(*this)));
}

void OpenFile::AddFileChooser(QBoxLayout& column) {
  QLabel* heading = NewLabel("Label3", "Choose a MAP file:", this);
  Drive1 = Named(new DriveList(this), "Drive1", tr("Drive"));
  QBoxLayout* pathRow = NewPathRow();
  Dir1 = Named(new FolderList(this), "Dir1", tr("Folder"));
  NameBox(*Drive1, tr("Drive"));
  File1 = Named(new ChoiceList(this), "File1", tr("Map files"));
  heading->setBuddy(File1);
  column.addWidget(heading);
  column.addWidget(Drive1);
  column.addLayout(pathRow);
  column.addWidget(Dir1, 3);
  column.addWidget(File1, 2);
}

QBoxLayout* OpenFile::NewPathRow() {
  auto* row = new QHBoxLayout();
  FolderPath = Named(new QLineEdit(this), "FolderPath", tr("Path of the folder"));
  FolderPath->setToolTip(tr("Type or paste the path of a folder or a map, and press Enter"));
  FolderPath->installEventFilter(this);
  RecentFolders = NewButton("RecentFolders", tr("Recent"), this);
  RecentFolders->setAutoDefault(false);
  recent_ = new QMenu(RecentFolders);
  RecentFolders->setMenu(recent_);
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

QBoxLayout* OpenFile::NewYearRow() {
  auto* row = new QHBoxLayout();
  QLabel* label = NewLabel("Label2", "Current Game Year:", this);
  txtGameYear = Named(new QLineEdit(this), "txtGameYear", tr("Current game year"));
  txtGameYear->setFixedWidth(80);
  label->setBuddy(txtGameYear);
  OfferedYear = NewButton("OfferedYear", "", this);
  OfferedYear->setAutoDefault(false);
  OfferedYear->hide();
  row->addWidget(label);
  row->addWidget(txtGameYear);
  row->addWidget(OfferedYear);
  row->addStretch(1);
  return row;
}

void OpenFile::AddSettings(QBoxLayout& column) {
  column.addLayout(NewYearRow());

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
  connect(Dir1, &FolderList::FolderChanged, this, &OpenFile::Dir1_Change);
  connect(Dir1, &FolderList::FolderRefused, this, &OpenFile::RefuseFolder);
  connect(recent_, &QMenu::aboutToShow, this, &OpenFile::RecentFolders_Show);
  connect(OfferedYear, &QPushButton::clicked, this, &OpenFile::OfferedYear_Click);
  for (const QRadioButton* player : Rows->Player) {
    connect(player, &QRadioButton::toggled, this, &OpenFile::ShowOfferedYear);
  }
  connect(File1, &ChoiceList::Chosen, this, &OpenFile::File1_Click);
  connect(RemRace, &QPushButton::clicked, this, &OpenFile::RemRace_Click);
  connect(SaveYears, &QPushButton::clicked, this, &OpenFile::SaveYears_Click);
  connect(txtSOI, &QLineEdit::textChanged, this, &OpenFile::txtSOI_Change);
  connect(Command1, &QPushButton::clicked, this, &OpenFile::Command1_Click);
  connect(Command2, &QPushButton::clicked, this, &OpenFile::Command2_Click);
}

void OpenFile::ShowStartFolder() {
  if (!Dir1->ShowFolder(state_.StarsInstallDir)) {
#if defined(Q_OS_WIN)
    Dir1->ShowFolder("C:\\");
#else
    if (!Dir1->ShowFolder(ToPath(QDir::homePath()))) Dir1->ShowFolder("/");
#endif
  }
  Drive1->SelectDriveOf(Dir1->Folder());
}

void OpenFile::Drive1_Change() {
  if (Dir1->ShowFolder(Drive1->Drive())) return;
  prompts_.Inform(ToText(tr("The drive %1 cannot be read.").arg(Drive1->currentText())));
  Drive1->SelectDriveOf(Dir1->Folder());
}

void OpenFile::Dir1_Change() {
  File1->clear();
  for (const std::filesystem::path& name : FilesNamedLike(Dir1->Folder(), "", ".map")) {
    auto* item = new QListWidgetItem(PathText(name), File1);
    item->setData(kPathRole, QVariant::fromValue(name));  // which its text may not tell
  }
  ShowFolderPath();
  stamps_.clear();
  ShowOfferedYear();
  state_.Choice.MapDirectory = " ";
  Command1->setEnabled(false);
  SaveYears->setEnabled(false);
  RemRace->hide();
  Rows->HideAll();
  Label1->hide();
}

void OpenFile::File1_Click() {
  const auto askForNewStyle = [this] {
    return prompts_.AskYesNo("Map Error",
                             "PLA and P?? files have both been found for this map.\r\n\r\n"
                             "Import New style P?? files? (NO will import PLA file)");
  };
  if (!ShowMap(askForNewStyle)) prompts_.Inform("No Player files found for this map");
}

// Shows the map that is chosen in the list. @return false for one without reports
bool OpenFile::ShowMap(const AskForNewStyle& ask) {
  const QListWidgetItem* map = File1->currentItem();
  if (map == nullptr) return true;
  Command1->setEnabled(true);
  RemRace->show();
  ChooseMap(state_.Choice, Dir1->Folder() / map->data(kPathRole).value<std::filesystem::path>());
  state_.StarsInstallDir = state_.Choice.MapDirectory;
  stamps_ = StampGameFiles(state_.Choice.MapFilePath);
  const bool areFound = FindReportFiles(state_.Choice, ToText(txtGameYear->text()), ask);
  if (areFound) {
    ClearReports();
    if (state_.Choice.ReportStyle == kNewReportStyle) {
      ShowNewReports();
    } else {
      ShowOldReport();
    }
  }
  ShowOfferedYear();
  return areFound;
}

// Makes a map of the folder the current one of the list, without choosing it yet.
bool OpenFile::SelectMap(const std::filesystem::path& map) {
  const QSignalBlocker noChoice(File1);
  for (int row = 0; row < File1->count(); ++row) {
    if (File1->item(row)->data(kPathRole).value<std::filesystem::path>() != map) continue;
    File1->setCurrentRow(row);
    return true;
  }
  return false;
}

void OpenFile::ShowChoice(const GameChoice& accepted) {
  if (!ShowFolder(accepted.MapFilePath.parent_path())) return;
  if (!SelectMap(accepted.MapFilePath.filename())) return;
  txtGameYear->setText(accepted.GameYear != 0 ? QString::number(accepted.GameYear) : "");
  txtSOI->setText(QString::number(accepted.SoiSetting));
  const bool isNew = accepted.ReportStyle == kNewReportStyle;
  if (!ShowMap([isNew] { return isNew; }) || state_.Choice.ReportStyle != kNewReportStyle) return;
  const RowYears years = TypedYears(accepted);
  for (int row = 1; row <= kMaxPlayers; ++row) {
    const auto index = static_cast<std::size_t>(row);
    const ReportFileSlot& report = accepted.ReportFiles[index];
    if (!Rows->IsShown(row) || report.Path.empty()) continue;
    Rows->Check1[index]->setChecked(FieldValue(report.Included).ReadsAs(1));
    Rows->TxtPxYear[index]->setText(ToQString(years[index]));
  }
  if (!Rows->IsShown(accepted.MyRaceRow)) return;
  Rows->Player[static_cast<std::size_t>(accepted.MyRaceRow)]->setChecked(true);
}

bool OpenFile::ShowFolder(const std::filesystem::path& folder) {
  if (!Dir1->ShowFolder(folder)) return false;
  Drive1->SelectDriveOf(Dir1->Folder());
  return true;
}

void OpenFile::RefuseFolder(const QString& folder) {
  prompts_.Inform(ToText(tr("The folder %1 cannot be opened.").arg(folder)));
}

void OpenFile::ShowFolderPath() {
  FolderPath->setText(QDir::toNativeSeparators(PathText(Dir1->Folder())));
}

// A folder, or a map, which is chosen then.
void OpenFile::FolderPath_Enter() {
  const QString typed = FolderPath->text().trimmed();
  const QUrl url(typed);
  const std::string text = ToText(url.isLocalFile() ? url.toLocalFile() : typed);
  const std::filesystem::path path = TypedPath(text, Dir1->Folder(), ToPath(QDir::homePath()));
  const auto map = FindFile(path);
  if (!ShowFolder(map ? map->parent_path() : path)) {
    FolderPath->selectAll();
    return RefuseFolder(typed);
  }
  if (!map || !SelectMap(map->filename())) return;
  File1->setFocus();
  File1_Click();
}

void OpenFile::RecentFolders_Show() {
  recent_->clear();
  for (const std::filesystem::path& folder : state_.RecentFolders) {
    const QString text = QDir::toNativeSeparators(PathText(folder));
    connect(recent_->addAction(WithoutAccessKeys(text)), &QAction::triggered, this,
            [this, folder, text] {
              if (!ShowFolder(folder)) RefuseFolder(text);
            });
  }
}

void OpenFile::ShowOfferedYear() {
  const std::optional<YearOffer> offer = OfferYear(stamps_, state_.Choice);
  OfferedYear->setVisible(offer.has_value());
  if (!offer) return;
  OfferedYear->setProperty("year", offer->Year);
  const QString text = tr("%1, from %2").arg(offer->Year).arg(PathText(offer->File));
  const QString shortened = fontMetrics().elidedText(text, Qt::ElideMiddle, kWidestOffer);
  OfferedYear->setText(WithoutAccessKeys(shortened));
  SetPlainToolTip(*OfferedYear, tr("Take this year, which %1 tells").arg(PathText(offer->File)));
}

void OpenFile::OfferedYear_Click() {
  txtGameYear->setText(OfferedYear->property("year").toString());
  txtGameYear->setFocus();
}

// Enter is the path's own: the dialog would take it for its button. Half a path that is left is
// none.
bool OpenFile::eventFilter(QObject* target, QEvent* event) {
  if (target == FolderPath && event->type() == QEvent::FocusOut && !FolderPath->hasSelectedText()) {
    ShowFolderPath();
  }
  if (target != FolderPath || event->type() != QEvent::KeyPress) {
    return QDialog::eventFilter(target, event);
  }
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  FolderPath_Enter();
  return true;
}

void OpenFile::ClearReports() {
  PLALabelText->hide();
  Label1->hide();
  Rows->Clear();
}

void OpenFile::ShowOldReport() {
  RemRace->hide();
  const QString caption = "Old Report game using " + PathText(OldReportFileName(state_.Choice));
  Rows->SetOldReport(caption);
  PLALabelText->setText(caption);
  PLALabelText->show();
}

void OpenFile::ShowNewReports() {
  SaveYears->setEnabled(true);
  Label1->show();
  Rows->ShowReports();
  if (const auto years = LoadYearsFile(state_.Choice.YearsFilePath)) Rows->SetYears(*years);
  const auto row = LoadRememberedRace(state_.Choice.RememberedRaceFilePath);
  if (row && Rows->IsShown(*row)) Rows->Player[static_cast<std::size_t>(*row)]->setChecked(true);
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
  if (!event->spontaneous()) File1->setFocus();
  RecentFolders->setEnabled(!state_.RecentFolders.empty());
  QDialog::showEvent(event);
}

void OpenFile::closeEvent(QCloseEvent* event) {
  isDiscarded_ = true;
  QDialog::closeEvent(event);  // ends in reject
}

}  // namespace quorvane

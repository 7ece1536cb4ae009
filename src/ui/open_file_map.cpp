// What happens in the open dialog around folders, maps and what lies beside a map.
#include <QDir>
#include <QSignalBlocker>

#include "files/files.h"
#include "formats/dialog_files.h"
#include "formats/game_files.h"
#include "model/text.h"
#include "screens/typed_path.h"
#include "ui/controls.h"
#include "ui/file_chooser.h"
#include "ui/open_file.h"
#include "ui/report_rows.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// A map of the list: the name that its file has on the disk.
constexpr int kPathRole = Qt::UserRole;
constexpr int kWidestFileName = 160;  // pixels
constexpr const char* kYear = "offeredYear";

}  // namespace

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

// As Dir1 does, and the drive's box follows.
bool OpenFile::ShowFolder(const std::filesystem::path& folder) {
  if (!Dir1->ShowFolder(folder)) return false;
  Drive1->SelectDriveOf(Dir1->Folder());
  return true;
}

void OpenFile::GoToFolder(const std::filesystem::path& folder) {
  if (!ShowFolder(folder)) TellRefusal(QDir::toNativeSeparators(PathText(folder)));
}

void OpenFile::TellRefusal(const QString& folder) {
  prompts_.Inform(ToText(tr("The folder %1 cannot be opened.").arg(folder)));
}

// Shows the folder of a map and makes it the list's current entry, in whatever case it is written.
bool OpenFile::GoToMap(const std::filesystem::path& map) {
  const auto found = FindFile(map);
  if (!found || !EqualIgnoringCase(TextFromPath(found->extension()), ".map")) return false;
  if (!ShowFolder(found->parent_path())) return false;
  for (int row = 0; row < File1->count(); ++row) {
    const QVariant name = File1->item(row)->data(kPathRole);
    if (name.value<std::filesystem::path>() == found->filename()) File1->setCurrentRow(row);
  }
  return File1->currentItem() != nullptr;
}

void OpenFile::FolderPath_Enter(const QString& typed) {
  const std::filesystem::path path =
      TypedPath(ToText(typed), Dir1->Folder(), ToPath(QDir::homePath()));
  if (ShowFolder(path)) return;
  if (GoToMap(path)) {
    File1->setFocus();
    return;
  }
  TellRefusal(typed);
  FolderPath->setText(typed);  // whatever became of it while the message was read
  Correct(*FolderPath);
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
  FolderPath->ShowFolder(Dir1->Folder());
  state_.Choice.MapDirectory = " ";
  gameFiles_.clear();
  ShowOffer();
  Command1->setEnabled(false);
  SaveYears->setEnabled(false);
  RemRace->hide();
  Rows->HideAll();
  Label1->hide();
}

void OpenFile::File1_Click() {
  if (File1->currentItem() == nullptr) return;
  const auto askForNewStyle = [this] {
    return prompts_.AskYesNo("Map Error",
                             "PLA and P?? files have both been found for this map.\r\n\r\n"
                             "Import New style P?? files? (NO will import PLA file)");
  };
  if (!ChooseCurrentMap(askForNewStyle)) prompts_.Inform("No Player files found for this map");
}

// Whether the map has reports.
bool OpenFile::ChooseCurrentMap(const AskForNewStyle& askForNewStyle) {
  Command1->setEnabled(true);
  RemRace->show();
  const QVariant name = File1->currentItem()->data(kPathRole);
  ChooseMap(state_.Choice, Dir1->Folder() / name.value<std::filesystem::path>());
  state_.StarsInstallDir = state_.Choice.MapDirectory;
  gameFiles_ = StampGameFiles(state_.Choice.MapFilePath);
  const bool hasReports =
      FindReportFiles(state_.Choice, ToText(txtGameYear->text()), askForNewStyle);
  if (hasReports) {
    ClearReports();
    if (state_.Choice.ReportStyle == kNewReportStyle) {
      ShowNewReports();
    } else {
      ShowOldReport();
    }
  }
  ShowOffer();
  return hasReports;
}

void OpenFile::ShowOffer() {
  const auto offer = OfferYear(gameFiles_, state_.Choice);
  OfferedYear->setVisible(offer.has_value());
  if (!offer) return;
  const QString file = PathText(offer->File);
  const QString shown = fontMetrics().elidedText(file, Qt::ElideMiddle, kWidestFileName);
  const QString text = tr("%1, from %2");
  const QString year = QString::number(offer->Year);
  OfferedYear->setProperty(kYear, offer->Year);
  OfferedYear->setText(WithoutAccessKeys(text.arg(year, shown)));
  OfferedYear->setAccessibleName(text.arg(year, file));
  SetPlainToolTip(*OfferedYear, tr("Take this year, which %1 tells").arg(file));
}

void OpenFile::OfferedYear_Click() {
  txtGameYear->setText(OfferedYear->property(kYear).toString());
  txtGameYear->setFocus();
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

void OpenFile::ShowChoice(const GameChoice& accepted) {
  const GameChoice wanted = accepted;  // it may be the one that changes here
  {
    const QSignalBlocker noQuestions(File1);
    if (!GoToMap(wanted.MapFilePath)) {
      if (!ShowFolder(wanted.MapFilePath.parent_path())) Dir1_Change();
      return;
    }
  }
  if (!ChooseCurrentMap([&] { return wanted.ReportStyle == kNewReportStyle; })) {
    // Nobody is told, so that nothing may be left that belongs to another map.
    state_.Choice.ReportFiles.fill(ReportFileSlot());
    state_.Choice.MyRaceRow = 0;
  }
  Rows->ShowAccepted(wanted);
  txtSOI->setText(QString::number(wanted.SoiSetting));
  txtGameYear->setText(wanted.GameYear != 0 ? QString::number(wanted.GameYear) : QString());
}

}  // namespace quorvane

#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <filesystem>
#include <vector>

#include "loading/game_file_stamps.h"
#include "loading/report_finder.h"
#include "model/game_choice.h"
#include "ui/prompts.h"

class QBoxLayout;

namespace quorvane {

class ChoiceList;
class DriveList;
class FolderBox;
class FolderList;
class RecentFoldersButton;
class ReportRows;

/// What the open dialog works on; it outlives the dialog.
struct OpenState {
  GameChoice Choice;
  /// The folder in which the dialog starts: the game's own, later that of the last chosen map.
  std::filesystem::path StarsInstallDir;
  /// The folders of the last games, the newest first, none of them twice.
  std::vector<std::filesystem::path> RecentFolders;
  /// 0: the choice is to be loaded; 1: cancelled.
  int OpenDialogResult = 1;
};

/// The dialog "Open Stars! game files": choose a game's map, its reports, the user's own race, the
/// years and the sphere of influence. Hidden between uses, so that everything stays as it was.
class OpenFile : public QDialog {
  Q_OBJECT

 public:
  OpenFile(OpenState& state, Prompts& prompts, QWidget* parent = nullptr);

  /// Shows a choice that was accepted earlier, so that loading gives the same one again, as far as
  /// its files are still there. Where reports of both styles are, it decides; nothing is asked or
  /// told. Without its map only the folder is shown.
  void ShowChoice(const GameChoice& accepted);

  /// Whether the close box was used: the next opening starts afresh.
  bool IsDiscarded() const { return isDiscarded_; }

  DriveList* Drive1 = nullptr;
  FolderBox* FolderPath = nullptr;
  RecentFoldersButton* RecentFolders = nullptr;
  FolderList* Dir1 = nullptr;
  ChoiceList* File1 = nullptr;
  ReportRows* Rows = nullptr;
  QLabel* Label1 = nullptr;
  QLabel* PLALabelText = nullptr;
  QLineEdit* txtGameYear = nullptr;
  QPushButton* OfferedYear = nullptr;
  QLineEdit* txtSOI = nullptr;
  QPushButton* RemRace = nullptr;
  QPushButton* SaveYears = nullptr;
  QPushButton* Command1 = nullptr;
  QPushButton* Command2 = nullptr;

 public slots:
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build();
  void AddFileChooser(QBoxLayout& column);
  QBoxLayout* NewFolderRow();
  void AddReports(QBoxLayout& column);
  void AddYear(QBoxLayout& column);
  void AddSettings(QBoxLayout& column);
  void AddButtons(QBoxLayout& column);
  void ConnectControls();

  void ShowStartFolder();
  bool ShowFolder(const std::filesystem::path& folder);
  void GoToFolder(const std::filesystem::path& folder);
  void TellRefusal(const QString& folder);
  bool GoToMap(const std::filesystem::path& map);

  void Drive1_Change();
  void FolderPath_Enter(const QString& typed);
  void Dir1_Change();
  void File1_Click();
  void OfferedYear_Click();
  void RemRace_Click();
  void SaveYears_Click();
  void txtSOI_Change();
  void Command1_Click();
  void Command2_Click();

  bool ChooseCurrentMap(const AskForNewStyle& askForNewStyle);
  void ShowOffer();
  void ClearReports();
  void ShowOldReport();
  void ShowNewReports();
  void Correct(QLineEdit& box);

  OpenState& state_;
  Prompts& prompts_;
  std::vector<GameFileStamp> gameFiles_;  // of the chosen map
  bool isDiscarded_ = false;
};

}  // namespace quorvane

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
class QMenu;

namespace quorvane {

class ChoiceList;
class DriveList;
class FolderList;
class ReportRows;

/// What the open dialog works on; it outlives the dialog.
struct OpenState {
  GameChoice Choice;
  /// The folder in which the dialog starts: the game's own, later that of the last chosen map.
  std::filesystem::path StarsInstallDir;
  /// 0: the choice is to be loaded; 1: cancelled.
  int OpenDialogResult = 1;
  /// The folders of the games that were opened last.
  std::vector<std::filesystem::path> RecentFolders;
};

/// The dialog "Open Stars! game files": choose a game's map, its reports, the user's own race, the
/// years and the sphere of influence. Hidden between uses, so that everything stays as it was.
class OpenFile : public QDialog {
  Q_OBJECT

 public:
  OpenFile(OpenState& state, Prompts& prompts, QWidget* parent = nullptr);

  /// Shows a choice that was accepted before, so that it can be accepted again: the map with its
  /// reports, own race, ticks, years and setting, as far as they are there still. Asks nothing.
  void ShowChoice(const GameChoice& accepted);

  /// Whether the close box was used: the next opening starts afresh.
  bool IsDiscarded() const { return isDiscarded_; }

  DriveList* Drive1 = nullptr;
  QLineEdit* FolderPath = nullptr;
  QPushButton* RecentFolders = nullptr;
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
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void Build();
  void AddFileChooser(QBoxLayout& column);
  QBoxLayout* NewPathRow();
  QBoxLayout* NewYearRow();
  void AddReports(QBoxLayout& column);
  void AddSettings(QBoxLayout& column);
  void AddButtons(QBoxLayout& column);
  void ConnectControls();
  void ShowStartFolder();

  void Drive1_Change();
  void FolderPath_Enter();
  void RecentFolders_Show();
  void OfferedYear_Click();
  void Dir1_Change();
  void File1_Click();
  void RemRace_Click();
  void SaveYears_Click();
  void txtSOI_Change();
  void Command1_Click();
  void Command2_Click();

  bool ShowFolder(const std::filesystem::path& folder);
  void RefuseFolder(const QString& folder);
  void ShowFolderPath();
  bool SelectMap(const std::filesystem::path& map);
  bool ShowMap(const AskForNewStyle& ask);
  void ShowOfferedYear();
  void ClearReports();
  void ShowOldReport();
  void ShowNewReports();
  void Correct(QLineEdit& box);

  OpenState& state_;
  Prompts& prompts_;
  bool isDiscarded_ = false;
  QMenu* recent_ = nullptr;
  std::vector<GameFileStamp> stamps_;  // of the chosen map's game
};

}  // namespace quorvane

#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "model/game_session.h"
#include "model/result.h"
#include "screens/import_plan.h"
#include "ui/prompts.h"

class QBoxLayout;

namespace quorvane {

class FolderBox;
class ImportTable;

/// The dialog "Import Earlier Years": finds old files of the game in a folder, and has each year
/// that the user leaves ticked loaded and stored. It answers while it works, and what was stored
/// before the user cancels stays.
class ImportYears : public QDialog {
  Q_OBJECT

 public:
  /// Stores a loaded year, or tells why that is not possible.
  using StoreYear = std::function<Result<void>(const GameSession&)>;

  /// @param game        the choice that the game on screen was loaded with
  /// @param myRaceName  the user's race in it
  /// @param kept        the years of the game that the history has
  ImportYears(const GameChoice& game, std::string myRaceName, std::vector<int> kept,
              StoreYear store, Prompts& prompts, QWidget* parent);
  ~ImportYears() override;

  FolderBox* ImportFolder = nullptr;
  QPushButton* ImportBrowse = nullptr;
  ImportTable* Table = nullptr;
  QLabel* ImportHint = nullptr;
  QProgressBar* ImportProgress = nullptr;
  QPushButton* ImportCancel = nullptr;
  QPushButton* ImportStart = nullptr;
  QPushButton* ImportClose = nullptr;

 public slots:
  /// Closes the dialog; while it works it only stops that.
  void reject() override;

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build();
  void AddFolder(QBoxLayout& column);
  void AddButtons(QBoxLayout& column);
  void ConnectControls();

  void ImportFolder_Enter(const QString& typed);
  void ImportBrowse_Click();
  void ImportStart_Click();

  bool ShowFolder(const std::filesystem::path& folder);
  void LookThrough();
  void ShowPlan();
  Result<void> Import(std::size_t row, int done);
  void ShowFailure(const std::vector<std::size_t>& rows);
  void ShowStep(std::size_t row, int done, int planned);
  void BeginWork(const QString& sentence);
  void EndWork();
  bool Answer();

  GameChoice game_;
  std::string myRaceName_;
  StoreYear store_;
  Prompts& prompts_;
  std::filesystem::path folder_;
  ImportPlan plan_;
  bool isAtWork_ = false;
  bool isStopped_ = false;
  bool closesBehind_ = false;   // when it has stopped
  QPointer<QWidget> hadFocus_;  // before the work began
  QElapsedTimer sinceAnswer_;
};

}  // namespace quorvane

#pragma once

#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QTabWidget>

#include "model/game_session.h"
#include "ui/empire_totals.h"
#include "ui/prompts.h"
#include "ui/race_information.h"
#include "ui/text_box.h"

namespace quorvane {

/// The window "Empire Statistics": an empire's totals and averages, and what the user knows better
/// than the reports about its race. Changes go straight into the session and reach the disc with
/// "Save".
class EmpireStat : public QDialog {
  Q_OBJECT

 public:
  /// Opens on the user's own race, where the game has it.
  EmpireStat(GameSession& session, Prompts& prompts, QWidget* parent);

  /// Lets nothing be changed or saved.
  /// @param reason  what the user is told of it
  void ShowOnly(const QString& reason);

  QComboBox* Combo1 = nullptr;
  QTabWidget* SSTab1 = nullptr;
  EmpireTotals* Totals = nullptr;
  RaceInformation* Race = nullptr;
  TextBox* RaceNotes = nullptr;
  QPushButton* SaveInfo = nullptr;
  QPushButton* OK = nullptr;

  /// The player that the window shows; 0 until one has been chosen.
  int CurrentPlayer = 0;
  /// Set while a player's record is copied into the controls, which then store nothing.
  bool FillingControls = false;

 signals:
  /// The information of all races has been saved.
  void Saved();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Combo1_Change();
  void ShowData_Click(std::size_t index);
  void ImmuneMark_Click(std::size_t index);
  void RacePRT_Click();
  void LRT_Click(std::size_t index);
  void RaceNotes_Change();
  void ReCalcHab_Click();
  void SaveInfo_Click();
  void OK_Click();

  void BuildSelector();
  void BuildTabs();
  void BuildButtons();
  void LayOut();
  void ConnectControls();
  void FillSelector();
  void ShowPlayer(int player);
  void EnableEditing(bool isEnabled);
  PlayerRecord& Current() { return session_.Player(CurrentPlayer); }

  GameSession& session_;
  Prompts& prompts_;
  bool isShownOnly_ = false;
};

}  // namespace quorvane

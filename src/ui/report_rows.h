#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QWidget>
#include <array>

#include "formats/dialog_files.h"
#include "model/game_choice.h"

namespace quorvane {

/// The open dialog's report rows 1 … 16: which report is the user's own race, which ones are loaded
/// and of which year they are. Row 0 exists and stays hidden. Shows a choice and writes the user's
/// clicks back into it.
class ReportRows : public QWidget {
  Q_OBJECT

 public:
  explicit ReportRows(GameChoice& choice, QWidget* parent = nullptr);

  /// Hides all rows, releases their option buttons and empties their years.
  void Clear();
  /// Hides all rows and leaves what they hold.
  void HideAll();
  /// Shows a row for every new-style report of the choice, ticked, the user's race chosen.
  void ShowReports();
  /// Ticks hidden row 0, which stands for the old-style report, and gives it its caption.
  void SetOldReport(const QString& caption);

  /// Shows race, ticks and years of a choice that was accepted earlier, as far as its reports are
  /// shown. New reports stay as they are, without a year.
  void ShowAccepted(const GameChoice& accepted);

  RowYears Years() const;
  void SetYears(const RowYears& years);
  bool IsShown(int row) const;

  std::array<QRadioButton*, kMaxPlayers + 1> Player = {};
  std::array<QCheckBox*, kMaxPlayers + 1> Check1 = {};
  std::array<QLineEdit*, kMaxPlayers + 1> TxtPxYear = {};

 signals:
  /// The own race is another one.
  void RaceChosen();

 private:
  void AddRow(int row);
  void SetRowVisible(int row, bool isVisible);
  void Player_Click(int row);
  void Check1_Click(int row);

  GameChoice& choice_;
  bool isFillingRows_ = false;
};

}  // namespace quorvane

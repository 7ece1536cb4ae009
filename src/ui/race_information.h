#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QWidget>
#include <array>

#include "model/player_record.h"
#include "ui/range_button.h"

class QGridLayout;

namespace quorvane {

/// The second tab of the statistics: what is known of a race's habitability ranges and traits. The
/// controls only show; the window that they belong to stores what is changed.
class RaceInformation : public QWidget {
  Q_OBJECT

 public:
  explicit RaceInformation(QWidget* parent);

  void ShowPlayer(const PlayerRecord& player);
  /// Only the range labels, which depend on the immunities too.
  void ShowRanges(const PlayerRecord& player);
  /// Whether there is a player whose information can be changed.
  void EnableEditing(bool isEnabled) { fields_->setEnabled(isEnabled); }

  /// `ShowData(8)` … `ShowData(13)`, each by the number of the field that it shows.
  std::array<RangeButton*, 14> ShowData = {};
  std::array<QCheckBox*, 3> ImmuneMark = {};
  QComboBox* RacePRT = nullptr;
  std::array<QCheckBox*, kLesserTraitCount> LRT = {};
  QPushButton* ReCalcHab = nullptr;

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  QGridLayout* NewRangeGrid();
  QWidget* NewTraitChooser();
  QGridLayout* NewTraitGrid();

  QWidget* fields_ = nullptr;
};

}  // namespace quorvane

#pragma once

#include <QWidget>
#include <array>

#include "model/player_record.h"
#include "screens/empire_statistics.h"
#include "ui/elided_label.h"

namespace quorvane {

/// The first tab of the statistics: an empire's totals and what its planets have on average.
class EmpireTotals : public QWidget {
  Q_OBJECT

 public:
  explicit EmpireTotals(QWidget* parent);

  void ShowTotals(const PlayerRecord& player);
  /// Blank for a player without planets.
  void ShowAverages(const PlayerRecord& player);

  /// `ShowData`, each by the number of the field that it shows; the tab has fields 2 … 7 and
  /// 14 … 17.
  std::array<ElidedLabel*, 18> ShowData = {};
  std::array<ElidedLabel*, kAverageCount> AvgData = {};
};

}  // namespace quorvane

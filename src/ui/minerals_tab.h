#pragma once

#include <QPushButton>
#include <QTabWidget>
#include <QWidget>
#include <array>

#include "model/planet_record.h"
#include "paint/pie_chart.h"

namespace quorvane {

/// The "Minerals" tab of the details panel: what a planet's ground holds and what is stored on it,
/// as pies or as bars, above a table of the numbers.
class MineralsTab : public QWidget {
  Q_OBJECT

 public:
  explicit MineralsTab(QTabWidget* panel);

  /// Draws a planet's charts. The table's labels are filled by the panel, with all other texts.
  void ShowCharts(const PlanetRecord& planet);
  /// Shows no planet's charts, as before the first one.
  void ClearCharts();
  /// Until a planet of the loaded game has been shown, there are no charts to switch.
  void DisableCharts() { ChartType->setEnabled(false); }

  QPushButton* ChartType = nullptr;
  PieChart* Pie1 = nullptr;
  PieChart* Pie2 = nullptr;
  /// The bars `MCI`, `MCB`, `MCG` of the concentrations, and `MSI`, `MSB`, `MSG` of what is stored.
  std::array<QWidget*, 3> ConcentrationBars = {};
  std::array<QWidget*, 3> StoredBars = {};

 signals:
  /// The charts were switched; the map takes the focus.
  void ChartsSwitched();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void AlignPlane();
  void ChartType_Click();

  QTabWidget& panel_;
  bool showsBars_ = false;
  QWidget* plane_ = nullptr;  // carries the controls, which stand where the panel's twips say
};

}  // namespace quorvane

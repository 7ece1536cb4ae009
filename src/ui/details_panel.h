#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <array>

#include "model/game_session.h"
#include "platform/toolkit/pie_chart.h"
#include "ui/drawing_tools.h"

namespace quorvane {

/// The tabbed panel `Detail`: what is known of the planet picked last, and the drawing tools.
class DetailsPanel : public QTabWidget {
  Q_OBJECT

 public:
  explicit DetailsPanel(QWidget* parent);

  /// Names the races of a newly loaded game on the "Hab" tab.
  void ShowRaces(const GameSession& session);
  /// Shows everything that is known of a planet.
  /// @param planet its number, from 1
  void ShowPlanet(const GameSession& session, int planet);
  /// Until a planet of the loaded game has been shown, there are no charts to switch.
  void DisableCharts() { ChartType->setEnabled(false); }

  DrawingTools* Tools = nullptr;
  QPushButton* ChartType = nullptr;
  PieChart* Pie1 = nullptr;
  PieChart* Pie2 = nullptr;
  /// The bars `MCI`, `MCB`, `MCG` of the concentrations, and `MSI`, `MSB`, `MSG` of what is stored.
  std::array<QWidget*, 3> ConcentrationBars = {};
  std::array<QWidget*, 3> StoredBars = {};
  QLabel* SGType = nullptr;
  QListWidget* SSGList = nullptr;
  QListWidget* DSGList = nullptr;
  std::array<QLabel*, kMaxPlayers> RName = {};
  std::array<QLabel*, kMaxPlayers> RHab = {};

 signals:
  /// The charts were switched; the map takes the focus.
  void ChartsSwitched();

 private:
  void ChartType_Click();
  void ShowEnvironment(const GameSession& session, int planet);
  void AddPlanetTab();
  void AddMineralsTab();
  void AddPopulationTab();
  void AddHabTab();
  void AddStargateTab();
};

}  // namespace quorvane

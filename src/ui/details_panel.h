#pragma once

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <array>

#include "model/game_session.h"
#include "platform/toolkit/picture_box.h"
#include "ui/drawing_tools.h"

namespace quorvane {

/// The tabbed panel `Detail`: what is known of the planet picked last, and the drawing tools.
class DetailsPanel : public QTabWidget {
  Q_OBJECT

 public:
  explicit DetailsPanel(QWidget* parent);

  /// Names the races of a newly loaded game on the "Hab" tab.
  void ShowRaces(const GameSession& session);

  DrawingTools* Tools = nullptr;
  QPushButton* ChartType = nullptr;
  PictureBox* Pie1 = nullptr;
  PictureBox* Pie2 = nullptr;
  QLabel* SGType = nullptr;
  QListWidget* SSGList = nullptr;
  QListWidget* DSGList = nullptr;
  std::array<QLabel*, kMaxPlayers> RName = {};
  std::array<QLabel*, kMaxPlayers> RHab = {};

 private:
  void AddPlanetTab();
  void AddMineralsTab();
  void AddPopulationTab();
  void AddHabTab();
  void AddStargateTab();
};

}  // namespace quorvane

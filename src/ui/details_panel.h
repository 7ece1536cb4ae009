#pragma once

#include <QLabel>
#include <QListWidget>
#include <QTabWidget>
#include <array>

#include "model/game_session.h"
#include "ui/drawing_tools.h"
#include "ui/minerals_tab.h"

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

  DrawingTools* Tools = nullptr;
  MineralsTab* Minerals = nullptr;
  QLabel* SGType = nullptr;
  QListWidget* SSGList = nullptr;
  QListWidget* DSGList = nullptr;
  std::array<QLabel*, kMaxPlayers> RName = {};
  std::array<QLabel*, kMaxPlayers> RHab = {};

 private:
  void ShowEnvironment(const GameSession& session, int planet);
  void AddPlanetTab();
  void AddPopulationTab();
  void AddHabTab();
  void AddStargateTab();
};

}  // namespace quorvane

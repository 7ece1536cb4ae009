#pragma once

#include <QLabel>
#include <QListWidget>
#include <QTabWidget>
#include <array>
#include <filesystem>
#include <string>

#include "model/game_session.h"
#include "ui/drawing_tools.h"
#include "ui/minerals_tab.h"

namespace quorvane {

/// The tabbed panel `Detail`: what is known of the planet picked last, and the drawing tools.
class DetailsPanel : public QTabWidget {
  Q_OBJECT

 public:
  explicit DetailsPanel(QWidget* parent);

  /// Names the races of a newly loaded game on the "Hab" tab. The planet on show is told anew when
  /// it is one of the same map; otherwise the panel is emptied. Its habitability and its charts'
  /// button wait for the next click, as after every load.
  void ShowLoadedGame(const GameSession& session);
  /// Shows everything that is known of a planet.
  /// @param planet its number, from 1
  void ShowPlanet(const GameSession& session, int planet);
  /// The planet on show; 0 while there is none.
  int Planet() const { return planet_; }

  DrawingTools* Tools = nullptr;
  MineralsTab* Minerals = nullptr;
  QLabel* SGType = nullptr;
  QListWidget* SSGList = nullptr;
  QListWidget* DSGList = nullptr;
  std::array<QLabel*, kMaxPlayers> RName = {};
  std::array<QLabel*, kMaxPlayers> RHab = {};

 private:
  bool StillExists(const GameSession& session) const;
  void Clear();
  void ShowEnvironment(const GameSession& session, int planet);
  void AddPlanetTab();
  void AddPopulationTab();
  void AddHabTab();
  void AddStargateTab();

  // The planet on show; number 0 while there is none.
  std::filesystem::path map_;
  int planet_ = 0;
  std::string planetName_;
};

}  // namespace quorvane

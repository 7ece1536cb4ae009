#pragma once

#include <QMenu>

#include "model/game_session.h"

namespace quorvane {

/// What can be done about a planet.
enum class PlanetCommand { Show, Zoom, Centre, Copy, Distance };

/// The menu of one planet.
class PlanetMenu : public QMenu {
  Q_OBJECT

 public:
  explicit PlanetMenu(const QString& title, QWidget* parent = nullptr);

  /// Makes it the menu of a planet.
  /// @param planet    0: there is none, and nothing can be done
  /// @param selected  from which the way to it is told; 0: none
  /// @param isZoomed  whether the map can be centred
  void ShowPlanet(const GameSession& session, int planet, int selected, bool isZoomed);

 signals:
  void Asked(PlanetCommand command, int planet);

 private:
  QAction* Add(const char* name, const QString& caption, PlanetCommand command);

  QAction* centre_ = nullptr;
  QAction* distance_ = nullptr;
  int planet_ = 0;
};

}  // namespace quorvane

#pragma once

#include <QLabel>
#include <QObject>
#include <array>

#include "model/game_session.h"
#include "platform/toolkit/picture_box.h"
#include "render/main_layout.h"

namespace quorvane {

/// The race legend: every player's name beside a swatch of the player's colour.
class Legend : public QObject {
  Q_OBJECT

 public:
  explicit Legend(QWidget& area);

  void Place(const MainLayout& layout);
  /// Shows the players of a newly loaded game.
  void ShowPlayers(const GameSession& session);

  std::array<QLabel*, kLegendRows> Race = {};
  std::array<PictureBox*, kLegendRows> RaceC = {};

 private:
  void PaintRow(std::size_t row);

  std::array<Colour, kLegendRows> colours_ = {};
};

}  // namespace quorvane

#pragma once

#include <QLabel>
#include <QObject>
#include <array>
#include <optional>

#include "model/game_session.h"
#include "paint/picture_box.h"
#include "screens/main_layout.h"

class QPainter;

namespace quorvane {

/// A swatch of the legend: clicked, or chosen by the keyboard, it lets its colour be changed.
class RaceSwatch : public PictureBox {
  Q_OBJECT

 public:
  explicit RaceSwatch(QWidget* parent);

  /// Writes a race's number above the picture; 0: none.
  void ShowNumber(int number);

 signals:
  void Chosen();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QRect SeenPart() const;
  void PaintNumber(QPainter& painter) const;

  int number_ = 0;
};

/// The race legend: every player's name beside a swatch of the player's colour.
class Legend : public QObject {
  Q_OBJECT

 public:
  explicit Legend(QWidget& area);

  void Place(const MainLayout& layout);
  /// Shows the players of a newly loaded game.
  void ShowPlayers(const GameSession& session);
  /// Whether colours can be changed.
  /// @param reason  what the user is told where they cannot
  void EnableChoosing(bool isEnabled, const QString& reason);
  /// Whether each swatch carries its race's number, for eyes to which some colours are alike.
  void ShowNumbers(bool areShown);
  /// Shows the colours of the game again after the user changed that of a row.
  void ShowChangedColour(const GameSession& session, int row);

  std::array<QLabel*, kLegendRows> Race = {};
  std::array<RaceSwatch*, kLegendRows> RaceC = {};

 signals:
  /// A swatch was chosen. @param row its place in the legend, from 0
  void Chosen(int row);

 private:
  void TakeColours(const GameSession& session);
  void PaintRow(std::size_t row);

  std::array<Colour, kLegendRows> colours_ = {};
  // Only swatches whose colour was chosen by the user have an outline.
  std::array<std::optional<Colour>, kLegendRows> outlines_ = {};
};

}  // namespace quorvane

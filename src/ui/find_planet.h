#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "map/map_state.h"
#include "model/game_session.h"
#include "ui/prompts.h"

namespace quorvane {

/// The dialog that selects a planet by its name, typed or chosen from the list of all planets.
class FindPlanet : public QDialog {
  Q_OBJECT

 public:
  /// @param session the game on screen, which may be another one at each opening
  /// @param state   where the found planet is selected
  FindPlanet(const GameSession& session, MapState& state, Prompts& prompts, QWidget* parent);

  QLabel* Label1 = nullptr;
  QComboBox* PlanetList = nullptr;
  QCheckBox* Check1 = nullptr;
  QPushButton* Command1 = nullptr;
  QPushButton* Command2 = nullptr;

  /// 1 when the found planet's details are to be shown as well; kept from one opening to the next.
  int ShowFoundDetails = 0;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void LayOut();
  void FillPlanetList();
  int ChosenRow() const;
  void Check1_Click();
  void Command1_Click();
  void Command2_Click();

  const GameSession& session_;
  MapState& state_;
  Prompts& prompts_;
};

}  // namespace quorvane

#pragma once

#include <QDockWidget>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <array>
#include <string>
#include <vector>

#include "model/game_session.h"
#include "screens/distance_texts.h"
#include "ui/elided_label.h"

namespace quorvane {

/// The dock that tells how far it is from the selected planet to the pointer and to a planet that
/// is kept as destination, and which planets are near the selected one.
class DistancesDock : public QDockWidget {
  Q_OBJECT

 public:
  /// Shows no game at first.
  explicit DistancesDock(QWidget* parent);

  /// Shows what is told of the ways, for every move of the pointer: only what differs is changed.
  /// @param from      the selected planet's name; empty: none is selected, and no way is shown
  /// @param toPointer without a target while the pointer is not on the map
  /// @param toKept    without a target while no destination is kept
  void ShowWays(const std::string& from, const DistanceTexts& toPointer,
                const DistanceTexts& toKept);
  /// Lists the planets near the selected one; a list in which nothing changed stays as it is.
  /// @param selectedPlanet its number; 0, or one that the game does not have: the lists are empty
  void ShowNearest(const GameSession& session, int selectedPlanet);

  /// The number of the planet whose row has the keyboard focus; 0 when none has it.
  int ChosenPlanet() const;

 signals:
  /// A row was clicked, or Enter pressed on it.
  void PlanetChosen(int number);
  /// The user wants a planet kept as destination.
  void KeepAsked();
  /// The user wants the destination forgotten.
  void ForgetAsked();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  // What the grid shows of one way.
  struct Column {
    ElidedLabel* To = nullptr;
    QLabel* LightYears = nullptr;
    std::array<QLabel*, kWarpCount> Years = {};
    QLabel* GateThere = nullptr;
    QLabel* GateBack = nullptr;
    DistanceTexts Shown;
  };
  // A list of near planets and what it shows.
  struct NearList {
    QTreeWidget* View = nullptr;
    std::vector<NearRow> Shown;
  };

  QWidget* NewButtons(QWidget* page);
  QWidget* NewWayGrid(QWidget* page);
  void AddColumn(QWidget* grid, int index);
  QTreeWidget* NewNearList(const char* name, const QString& meaning, QWidget* page);
  static void ShowColumn(Column& column, const DistanceTexts& texts);
  static void Fill(NearList& list, const std::vector<NearRow>& rows);

  ElidedLabel* from_ = nullptr;
  QPushButton* keep_ = nullptr;
  QPushButton* forget_ = nullptr;
  std::array<Column, 2> columns_;  // pointer, destination
  NearList own_;
  NearList gates_;
};

}  // namespace quorvane

#pragma once

#include <QDockWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <array>
#include <string>
#include <vector>

#include "screens/distance_texts.h"
#include "ui/elided_label.h"

namespace quorvane {

/// How far it is from the selected planet to the pointer and to a kept destination, for fleets and
/// by stargate, and which planets lie nearest.
class DistancesDock : public QDockWidget {
  Q_OBJECT

 public:
  explicit DistancesDock(QWidget* parent);

  /// Shows the ways from a planet. Cheap enough for every move of the pointer.
  /// @param from  the selected planet's name; empty: none is selected
  void ShowWays(const std::string& from, const WayTexts& toPointer, const WayTexts& toKept);
  /// Fills the lists of the planets nearest to the selected one.
  void ShowNearest(std::vector<NearPlanet> own, std::vector<NearPlanet> withGate);
  /// The planet whose row the keyboard is on, in whichever list has the focus; 0: in none.
  int FocusedPlanet() const;

  ElidedLabel* DistancesFrom = nullptr;
  QPushButton* DistancesKeep = nullptr;
  QPushButton* DistancesForget = nullptr;
  QTreeWidget* DistancesOwn = nullptr;
  QTreeWidget* DistancesGates = nullptr;

 signals:
  /// A row was clicked, or chosen by the keyboard.
  void PlanetChosen(int planet);
  void KeepAsked();
  void ForgetAsked();

 private:
  // The labels of one way, from the top down.
  static constexpr std::size_t kRows = kWarps + 4;
  using Column = std::array<ElidedLabel*, kRows>;

  QWidget* NewWays(QWidget* parent);
  QTreeWidget* NewList(const char* name, const QString& meaning, QWidget* parent);
  static void Fill(QTreeWidget& list, const std::vector<NearPlanet>& planets);
  static void ShowWay(const Column& column, const WayTexts& way);

  Column pointer_ = {};
  Column kept_ = {};
  std::vector<NearPlanet> own_;
  std::vector<NearPlanet> withGate_;
};

}  // namespace quorvane

#pragma once

#include <QAction>
#include <QMenu>
#include <QObject>
#include <vector>

#include "map/overlay_sets.h"

namespace quorvane {

/// The menu of the overlay sets, each with its key. The one that is on is marked.
class OverlaySetsMenu : public QObject {
  Q_OBJECT

 public:
  explicit OverlaySetsMenu(QMenu& menu);

  void ShowSets(const std::vector<OverlaySet>& sets);
  /// Marks the set that is on.
  /// @param isEnabled  whether overlays can be switched now
  void ShowLit(const OverlaySwitches& current, bool hasNewReports, bool isEnabled);

 signals:
  /// @param index of the set, from 0
  void SetChosen(int index);
  /// The overlays that are on are to be kept as a set.
  void SaveAsked();
  void RemoveAsked(int index);

 private:
  void AddSet(int index);

  QMenu& menu_;
  std::vector<OverlaySet> sets_;
  std::vector<QAction*> items_;
  QAction* save_ = nullptr;
  QAction* remove_ = nullptr;
  int lit_ = -1;
};

}  // namespace quorvane

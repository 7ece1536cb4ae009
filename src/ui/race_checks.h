#pragma once

#include <QListWidget>
#include <string>
#include <unordered_set>
#include <vector>

#include "screens/race_curves.h"

namespace quorvane {

/// The races with their colours in as many columns as there is room for; a click or Space on one
/// shows or hides it. A hidden race stays hidden when the list is filled anew.
class RaceChecks : public QListWidget {
  Q_OBJECT

 public:
  RaceChecks(const QString& name, QWidget* parent);

  void ShowRaces(const std::vector<RaceCurve>& curves);
  /// The names of the races that are not shown.
  const std::unordered_set<std::string>& Hidden() const { return hidden_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// The user shows or hides a race.
  void RaceSwitched(const std::string& race, bool isShown);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  struct Grid {
    int Lines;
    int Width;  // of a column
  };

  void TakeSwitch(const QListWidgetItem& entry);
  Grid GridIn(int room) const;
  int LineHeight() const;
  void Arrange();

  std::unordered_set<std::string> hidden_;
  int longest_ = 0;  // of the names, in pixels
  int lines_ = 1;
};

}  // namespace quorvane

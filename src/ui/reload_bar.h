#pragma once

#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <map>

#include "screens/reload_plan.h"
#include "ui/elided_label.h"

namespace quorvane {

/// The quiet bar above the map that tells of new files of the game on the screen. It covers the
/// upper edge of the map and takes no room from it.
class ReloadBar : public QFrame {
  Q_OBJECT

 public:
  explicit ReloadBar(QWidget* map);

  /// Shows what is new and the years that a reload would take; a year that was typed for the same
  /// report stays.
  void ShowNews(const QString& news, const ReloadPlan& plan);
  /// Gives a plan the years that the boxes hold.
  void TakeYears(ReloadPlan& plan) const;
  /// Lets the user type the year of a report, by its row.
  void AskForYear(int row);

  /// The box for a report's year and its caption.
  struct YearBox {
    QLabel* Name = nullptr;
    QLineEdit* Year = nullptr;
  };

  ElidedLabel* ReloadNews = nullptr;
  QPushButton* ReloadNow = nullptr;
  QPushButton* ReloadLater = nullptr;

 signals:
  void ReloadAsked();
  void Dismissed();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void ShowBoxes(const ReloadPlan& plan);
  void Place();

  QWidget* map_;
  QWidget* years_ = nullptr;
  std::map<int, YearBox> boxes_;  // by the reports' rows
};

}  // namespace quorvane

#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace quorvane {

/// The band above the map that says which year it shows, while that is not the one of the game that
/// is loaded. It covers the upper edge of the map and takes no room from it.
class YearBand : public QFrame {
  Q_OBJECT

 public:
  /// @param map  what it lies on
  explicit YearBand(QWidget* map);

  /// @param below  how many pixels at the map's upper edge are taken already
  void ShowYear(int year, int loaded, int below);

  /// Why nothing can be saved or edited while the band is there.
  QString Reason() const;

  QLabel* BandYear = nullptr;
  QPushButton* BandBack = nullptr;

 signals:
  void BackAsked();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void Place();

  QWidget* map_;
  int year_ = 0;
  int loaded_ = 0;
  int below_ = 0;
};

}  // namespace quorvane

#pragma once

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>
#include <vector>

#include "history/race_years.h"
#include "ui/curve_chart.h"
#include "ui/elided_label.h"
#include "ui/race_checks.h"

namespace quorvane {

/// The dock with a slider over the stored years of a game, which plays them like a film, too, and
/// with the races' curves over these years.
class YearsDock : public QDockWidget {
  Q_OBJECT

 public:
  /// Shows no year at first.
  explicit YearsDock(QWidget* parent);

  /// Shows which years there are. Other years than before stop the playing.
  /// @param years   those to choose from, in ascending order
  /// @param present the year that was loaded; 0 when it is not known
  /// @param shown   the year on the map
  void ShowYears(const std::vector<int>& years, int present, int shown);
  /// Shows that another year is on the map; nobody is told of it.
  void ShowYear(int shown);
  /// Shows what is known of the races, in ascending order of the years.
  void ShowCurves(const std::vector<RaceYear>& years);

  /// The curves as they are shown, with the names of the races, at device pixels.
  QPixmap ChartPicture();
  /// All that is known of the races.
  const std::vector<RaceYear>& Curves() const { return known_; }

  bool IsPlaying() const { return play_->isChecked(); }
  void StopPlaying() { play_->setChecked(false); }

 signals:
  /// The user, or the playing, has moved the slider to another year.
  void YearChosen(int year);
  /// The user wants the loaded year again.
  void BackAsked();
  void SavePictureAsked();
  void SaveTableAsked();

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  QWidget* NewYearRow(QWidget* page);
  QWidget* NewPlayRow(QWidget* page);
  QWidget* NewCurvesPart(QWidget* page);
  QWidget* NewSaveRow(QWidget* page);
  CurveKind Kind() const { return static_cast<CurveKind>(curve_->currentIndex()); }

  void ChooseYear(int index);
  void Play(bool isOn);
  void PlayNext(int index);
  void FillChart();
  void ShowPage();
  void ShowValues();

  QStackedWidget* pages_;
  QSlider* slider_ = nullptr;
  QLabel* shownYear_ = nullptr;
  QToolButton* play_ = nullptr;
  QSpinBox* speed_ = nullptr;
  QPushButton* back_ = nullptr;
  QComboBox* curve_ = nullptr;
  CurveChart* chart_ = nullptr;
  ElidedLabel* values_ = nullptr;
  RaceChecks* races_ = nullptr;
  QPushButton* savePicture_ = nullptr;
  QPushButton* saveTable_ = nullptr;
  QTimer nextYear_;
  std::vector<int> years_;
  std::vector<RaceYear> known_;
  int present_ = 0;
  int shown_ = 0;
};

}  // namespace quorvane

#pragma once

#include <QCategoryAxis>
#include <QChartView>
#include <QGraphicsLineItem>
#include <QPixmap>
#include <QString>
#include <QXYSeries>
#include <string>
#include <unordered_set>
#include <vector>

#include "screens/race_curves.h"

namespace quorvane {

/// Draws the races' curves over the years in the races' colours, on black as the map. The pointer
/// tells the values of the nearest year.
class CurveChart : public QChartView {
  Q_OBJECT

 public:
  explicit CurveChart(QWidget* parent);

  /// Shows other curves. @param hidden  the races whose curves are not shown
  void ShowCurves(std::vector<RaceCurve> curves, const std::unordered_set<std::string>& hidden);
  /// Shows or hides a race's curve.
  void ShowRace(const std::string& race, bool isShown);
  /// Marks a year with a line; the curves are not drawn anew.
  void ShowYear(int year);

  /// The curves that are shown.
  const std::vector<RaceCurve>& Shown() const { return shown_; }
  /// The year nearest to a place of the chart of which something is known; 0 without curves.
  int YearAt(QPoint place) const;
  /// The year and each shown race with its value, in lines, the largest first.
  QString ValuesText(int year) const;
  /// The chart under a title and above the names of the shown races, without the line of the year.
  /// It has as many pixels as the chart has on the screen.
  QPixmap Picture(const QString& title);

  QSize sizeHint() const override;

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  // A race and what is drawn for it.
  struct RaceSeries {
    RaceCurve Curve;
    std::vector<QXYSeries*> Series;
    bool IsShown = true;
  };

  void AddSeries(RaceSeries& race);
  void Take(RaceSeries& race, QXYSeries* series, const QList<QPointF>& points);
  void FindShown();
  void ShowRange();
  void PlaceMarker();
  void TellValues(QPoint place);

  QCategoryAxis* years_;
  QCategoryAxis* values_;
  QGraphicsLineItem* marker_;
  std::vector<RaceSeries> races_;
  std::vector<RaceCurve> shown_;
  int markedYear_ = 0;
};

}  // namespace quorvane

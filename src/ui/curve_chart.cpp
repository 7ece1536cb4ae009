#include "ui/curve_chart.h"

#include <QGraphicsLayout>
#include <QHelpEvent>
#include <QLegend>
#include <QLineSeries>
#include <QMouseEvent>
#include <QPainter>
#include <QScatterSeries>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "paint/colours.h"
#include "ui/controls.h"
#include "ui/curve_picture.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QRgb kGridColour = qRgb(0x2c, 0x32, 0x3d);
constexpr QRgb kAxisColour = qRgb(0x5a, 0x64, 0x78);
constexpr QRgb kMarkerColour = qRgb(0xe8, 0xeb, 0xf0);
constexpr int kCurveWidth = 2;
constexpr int kDotSize = 7;
constexpr QSize kFirstSize(280, 220);
constexpr QSize kLeastSize(160, 120);
constexpr double kHundredth = 0.01;  // values are told no finer
constexpr double kHalfYear = 0.5;
constexpr double kRoomAbove = 1.03;  // so that the highest dot is whole
constexpr int kYearWidth = 56;       // room for a labelled year
constexpr int kValueHeight = 28;     // room for a labelled value

struct YearSpan {
  int First = std::numeric_limits<int>::max();
  int Last = std::numeric_limits<int>::min();
  double Largest = 0;
  double LeastStep = 1;  // between labelled values
};

YearSpan SpanOf(const std::vector<RaceCurve>& curves) {
  YearSpan span;
  for (const RaceCurve& curve : curves) {
    span.First = std::min(span.First, curve.Runs.front().front().first);
    span.Last = std::max(span.Last, curve.Runs.back().back().first);
    for (const auto& run : curve.Runs) {
      for (const auto& [year, value] : run) {
        span.Largest = std::max(span.Largest, value);
        if (value != std::floor(value)) span.LeastStep = kHundredth;
      }
    }
  }
  return span;
}

QCategoryAxis* NewAxis(QChart& chart, const QFont& font, Qt::Alignment edge) {
  auto* axis = new QCategoryAxis(&chart);
  axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
  axis->setLabelsFont(font);
  axis->setLabelsColor(QColor(kChartText));
  axis->setLinePen(QPen(QColor(kAxisColour)));
  axis->setGridLinePen(QPen(QColor(kGridColour)));
  axis->setTruncateLabels(false);
  chart.addAxis(axis, edge);
  return axis;
}

void SetLook(QChart& chart) {
  chart.setBackgroundBrush(QColor(kChartBackground));
  chart.setBackgroundRoundness(0);
  chart.setMargins({4, 10, 16, 2});
  chart.layout()->setContentsMargins(0, 0, 0, 0);
  chart.legend()->hide();
}

// Labels each multiple of the step in the range; years have no commas.
void SetLabels(QCategoryAxis& axis, double first, double last, double step, bool isYears) {
  constexpr double kStepShare = 0.001;  // sums of steps such as 0.1 are not exact
  for (const QString& label : axis.categoriesLabels()) axis.remove(label);
  axis.setRange(first, last);
  axis.setStartValue(first);
  const int past = static_cast<int>(std::floor(last / step + kStepShare));
  for (int place = static_cast<int>(std::ceil(first / step)); place <= past; ++place) {
    const double value = place * step;
    axis.append(isYears ? QString::number(value) : ToQString(GroupedNumber(value)), value);
  }
}

}  // namespace

CurveChart::CurveChart(QWidget* parent) : QChartView(new QChart, parent) {
  SetLook(*chart());
  years_ = NewAxis(*chart(), font(), Qt::AlignBottom);
  values_ = NewAxis(*chart(), font(), Qt::AlignLeft);
  marker_ = new QGraphicsLineItem(chart());
  marker_->setPen(QPen(QColor(kMarkerColour), 0));
  marker_->setZValue(std::numeric_limits<short>::max());
  setFrameShape(QFrame::NoFrame);
  setBackgroundBrush(QColor(kChartBackground));
  setRenderHint(QPainter::Antialiasing);
  setFocusPolicy(Qt::NoFocus);
  setMinimumSize(kLeastSize);
  setMouseTracking(true);
  viewport()->setMouseTracking(true);
  connect(chart(), &QChart::plotAreaChanged, this, &CurveChart::PlaceMarker);
}

QSize CurveChart::sizeHint() const { return kFirstSize; }

void CurveChart::ShowCurves(std::vector<RaceCurve> curves,
                            const std::unordered_set<std::string>& hidden) {
  chart()->removeAllSeries();
  races_.clear();
  races_.reserve(curves.size());
  for (RaceCurve& curve : curves) {
    const bool isShown = !hidden.contains(curve.Race);
    races_.push_back({std::move(curve), {}, isShown});
  }
  FindShown();
  for (RaceSeries& race : races_) AddSeries(race);
}

void CurveChart::AddSeries(RaceSeries& race) {
  QList<QPointF> dots;
  for (const auto& run : race.Curve.Runs) {
    QList<QPointF> points;
    for (const auto& [year, value] : run) points.append({static_cast<double>(year), value});
    if (points.size() == 1) {
      dots += points;
    } else {
      auto* line = new QLineSeries(chart());
      Take(race, line, points);
      line->setPen(QPen(QColor(RgbOf(race.Curve.RaceColour)), kCurveWidth, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    }
  }
  if (dots.empty()) return;
  auto* single = new QScatterSeries(chart());
  Take(race, single, dots);
  single->setMarkerSize(kDotSize);
  single->setColor(QColor(RgbOf(race.Curve.RaceColour)));
  single->setBorderColor(Qt::transparent);
}

void CurveChart::Take(RaceSeries& race, QXYSeries* series, const QList<QPointF>& points) {
  series->replace(points);
  chart()->addSeries(series);
  series->attachAxis(years_);
  series->attachAxis(values_);
  series->setVisible(race.IsShown);
  race.Series.push_back(series);
}

void CurveChart::ShowRace(const std::string& race, bool isShown) {
  for (RaceSeries& other : races_) {
    if (other.Curve.Race != race) continue;
    other.IsShown = isShown;
    for (QXYSeries* series : other.Series) series->setVisible(isShown);
  }
  FindShown();
}

void CurveChart::FindShown() {
  shown_.clear();
  for (const RaceSeries& race : races_) {
    if (race.IsShown) shown_.push_back(race.Curve);
  }
  ShowRange();
}

// The years stay the same whichever races are shown; the values fill the height.
void CurveChart::ShowRange() {
  if (races_.empty()) return;
  std::vector<RaceCurve> all;
  all.reserve(races_.size());
  for (const RaceSeries& race : races_) all.push_back(race.Curve);
  const YearSpan years = SpanOf(all);
  const double margin = years.First == years.Last ? kHalfYear : 0;
  const double first = years.First - margin;
  const double last = years.Last + margin;
  const double yearStep = RoundStep(last - first, std::max(width() / kYearWidth - 1, 1));
  SetLabels(*years_, first, last, std::max(yearStep, 1.0), true);
  const YearSpan values = SpanOf(shown_);
  const double largest = std::max(values.Largest, values.LeastStep);
  const double step =
      std::max(RoundStep(largest, std::max(height() / kValueHeight - 1, 1)), values.LeastStep);
  SetLabels(*values_, 0, std::ceil(largest * kRoomAbove / step) * step, step, false);
  PlaceMarker();
}

void CurveChart::ShowYear(int year) {
  markedYear_ = year;
  PlaceMarker();
}

void CurveChart::PlaceMarker() {
  const QRectF area = chart()->plotArea();
  const bool isInside = markedYear_ >= years_->min() && markedYear_ <= years_->max();
  marker_->setVisible(isInside && !races_.empty());
  if (!marker_->isVisible()) return;
  const double share = (markedYear_ - years_->min()) / (years_->max() - years_->min());
  const double x = area.left() + share * area.width();
  marker_->setLine(x, area.top(), x, area.bottom());
}

int CurveChart::YearAt(QPoint place) const {
  const QRectF area = chart()->plotArea();
  const double share = (place.x() - area.left()) / area.width();
  const double pointed = years_->min() + share * (years_->max() - years_->min());
  int nearest = 0;
  for (const RaceCurve& curve : shown_) {
    for (const auto& run : curve.Runs) {
      const int year = static_cast<int>(
          std::lround(std::clamp<double>(pointed, run.front().first, run.back().first)));
      if (nearest == 0 || std::abs(year - pointed) < std::abs(nearest - pointed)) nearest = year;
    }
  }
  return nearest;
}

QString CurveChart::ValuesText(int year) const {
  QStringList lines = {QString::number(year)};
  for (const RaceValue& race : ValuesInYear(shown_, year)) {
    lines << ToQString(race.Race + ": " + GroupedNumber(race.Value));
  }
  return lines.join('\n');
}

QPixmap CurveChart::Picture(const QString& title) {
  marker_->hide();
  const QPixmap curves = grab();
  PlaceMarker();
  return CurvePicture(curves, title, shown_, font());
}

void CurveChart::mouseMoveEvent(QMouseEvent* event) {
  TellValues(event->position().toPoint());
  QChartView::mouseMoveEvent(event);
}

bool CurveChart::viewportEvent(QEvent* event) {
  // The view itself would take the tooltip away when the pointer rests.
  if (event->type() == QEvent::ToolTip) {
    TellValues(static_cast<QHelpEvent*>(event)->pos());
    return true;
  }
  return QChartView::viewportEvent(event);
}

void CurveChart::TellValues(QPoint place) {
  const int year = YearAt(place);
  if (year == 0 || !chart()->plotArea().adjusted(-1, 0, 1, 0).contains(place)) {
    return QToolTip::hideText();
  }
  QToolTip::showText(viewport()->mapToGlobal(place), PlainToolTip(ValuesText(year)), viewport());
}

void CurveChart::resizeEvent(QResizeEvent* event) {
  QChartView::resizeEvent(event);
  ShowRange();
}

}  // namespace quorvane

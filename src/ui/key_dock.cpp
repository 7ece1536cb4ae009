#include "ui/key_dock.h"

#include <QGridLayout>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>
#include <QtMath>
#include <algorithm>
#include <utility>

#include "paint/picture_surface.h"
#include "paint/twips.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kMargin = 8;
constexpr int kWidestBar = 200;

QString LightYears(int lightYears) { return QLocale(QLocale::English).toString(lightYears); }

QString Across(int lightYears) {
  return LightYears(lightYears) + (lightYears == 1 ? " light year across" : " light years across");
}

// A piece of the map that is shown smaller than on the map, with all that is drawn on it.
class ShrunkSurface : public PictureSurface {
 public:
  // @param share  of its size on the map, at most 1
  ShrunkSurface(int side, double ratio, double unitsPerPixel, double share)
      : PictureSurface({side, side}, ratio, QSizeF(side, side) * unitsPerPixel / share),
        share_(share) {}

  void SetPen(const Pen& pen) override {
    Pen shrunk = pen;
    shrunk.Width = std::max(qRound(pen.Width * share_), 1);
    PictureSurface::SetPen(shrunk);
  }
  void SetFontSize(double points) override { PictureSurface::SetFontSize(points * share_); }
  // Pens of this width are shrunk as well.
  int WidthToCover(double distance) const override {
    return qCeil(PictureSurface::WidthToCover(distance) / share_);
  }

 private:
  double share_;
};

}  // namespace

ScaleBar::ScaleBar(QWidget* parent) : QWidget(parent) {
  setObjectName("KeyScaleBar");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ScaleBar::sizeHint() const { return {kWidestBar, fontMetrics().height() + 12}; }

int ScaleBar::LightYears() const {
  return pixelsPerLightYear_ > 0
             ? ScaleBarLength(pixelsPerLightYear_, std::min(width() - 2, kWidestBar))
             : 0;
}

void ScaleBar::ShowScale(double pixelsPerLightYear) {
  pixelsPerLightYear_ = pixelsPerLightYear;
  setAccessibleName("Scale bar");
  setAccessibleDescription(LightYears() > 0 ? quorvane::LightYears(LightYears()) + " l.y." : "");
  update();
}

// A wider bar may be of more light years.
void ScaleBar::resizeEvent(QResizeEvent*) { ShowScale(pixelsPerLightYear_); }

void ScaleBar::paintEvent(QPaintEvent*) {
  constexpr int kTick = 4;
  if (LightYears() == 0) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const double length = LightYears() * pixelsPerLightYear_;
  const double base = fontMetrics().height() + kTick + 2.5;
  const QPointF start(0.5, base);
  const QPointF end(0.5 + length, base);
  painter.drawLine(start, end);
  painter.drawLine(start, start - QPointF(0, kTick));
  painter.drawLine(end, end - QPointF(0, kTick));
  painter.drawText(QPointF(4, fontMetrics().ascent()), accessibleDescription());
}

KeyDock::KeyDock(QWidget* parent) : QDockWidget("Key to the Map", parent) {
  setObjectName("KeyDock");
  auto* all = new QWidget(this);
  auto* column = new QVBoxLayout(all);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  KeyAcross = NewValue("KeyAcross", all);
  KeyScaleBar = new ScaleBar(all);
  content_ = new QWidget(all);
  auto* whole = new QVBoxLayout(content_);
  whole->setContentsMargins(0, 0, 0, 0);
  KeyList = NewScrollArea(content_);
  KeyList->setObjectName("KeyList");
  KeyList->setAccessibleName("Key to the Map");
  KeyList->setFocusPolicy(Qt::StrongFocus);  // its keys scroll it
  KeyList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  column->addWidget(KeyAcross);
  column->addWidget(KeyScaleBar);
  column->addWidget(KeyList, 1);
  setWidget(all);
  ShowSections({}, {});
}

void KeyDock::ShowKey(const GameSession& session, const OverlaySwitches& switches,
                      const MapView& view, const MapOptions& options, QSize map) {
  const bool isLoaded = view.UniverseWidth() > 0;
  KeyAcross->setText(isLoaded ? Across(view.WidthShown()) : "No game is loaded");
  const double unitsPerPixel = 1.0 * kSurfaceUnits / std::max(map.width(), 1);
  KeyScaleBar->ShowScale(isLoaded ? view.MapScale / unitsPerPixel : 0);
  Shown shown = {.Switches = switches,
                 .Options = options,
                 .UniverseExtent = view.UniverseExtent,
                 .ZoomFactor = view.ZoomFactor(),
                 .IsFullView = view.IsFull(),
                 .Map = map,
                 .PixelRatio = devicePixelRatioF(),
                 .RaceColours = SampleNeighbours(session),
                 .HasRanges = session.ReportStyle == kNewReportStyle,
                 .IsRaceKnown = session.FindPlayerByName(switches.RaceName) > 0};
  if (shown == std::exchange(shown_, shown)) return;
  ShowSections(MapKey({.Session = session,
                       .Switches = switches,
                       .View = view,
                       .Options = options,
                       .MapWidthInTwips = TwipsFromPixels(map.width())}),
               map);
}

void KeyDock::ShowSections(const std::vector<KeySection>& sections, QSize map) {
  delete rows_;
  rows_ = new QWidget(content_);
  content_->layout()->addWidget(rows_);
  auto* rows = new QGridLayout(rows_);
  rows->setContentsMargins(4, 2, kMargin, 2);  // apart from the frame of the focus
  rows->setHorizontalSpacing(kMargin);
  rows->setVerticalSpacing(3);
  int row = 0;
  for (const KeySection& section : sections) {
    QLabel* heading = NewHeading(ToQString(section.Title), rows_);
    heading->setContentsMargins(0, row > 0 ? 5 : 0, 0, 0);
    rows->addWidget(heading, row++, 0, 1, 2);
    for (const KeyLine& line : section.Lines) {
      QLabel* words = NewCaption(ToQString(line.Words), rows_);
      words->setWordWrap(true);
      rows->addWidget(NewSample(line, map), row, 0, Qt::AlignCenter);
      rows->addWidget(words, row++, 1);
    }
  }
  if (sections.empty()) rows->addWidget(NewCaption("No overlay is on", rows_), row++, 0, 1, 2);
  rows->setRowStretch(row, 1);
  rows->setColumnStretch(1, 1);
  rows_->show();
}

// A piece of the map with the sample in the middle, as large as on the map where it has room.
QWidget* KeyDock::NewSample(const KeyLine& line, QSize map) {
  constexpr int kLeastSide = 18;
  constexpr int kMostSide = 48;
  const double unitsPerPixel = 1.0 * kSurfaceUnits / std::max(map.width(), 1);
  const double wanted = 2 * line.Reach / unitsPerPixel + 4;
  const int side = static_cast<int>(std::clamp<double>(wanted, kLeastSide, kMostSide));
  ShrunkSurface surface(side, devicePixelRatioF(), unitsPerPixel,
                        std::min(kMostSide / wanted, 1.0));
  line.Draw(surface, {surface.Units().width() / 2, surface.Units().height() / 2});
  QPixmap picture = QPixmap::fromImage(surface.Picture());
  picture.setDevicePixelRatio(devicePixelRatioF());
  auto* sample = new QLabel(rows_);
  sample->setPixmap(picture);
  return sample;
}

}  // namespace quorvane

#include "ui/years_dock.h"

#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>

#include "ui/controls.h"
#include "ui/icons.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(340, 480);
constexpr int kMargin = 6;
constexpr int kGap = 6;
constexpr int kMostTicks = 40;
constexpr int kTickHeight = 3;
constexpr QRgb kTickColour = qRgb(0x77, 0x82, 0x9a);
constexpr int kDecade = 10;
constexpr int kFirstSpeed = 2;
constexpr int kFastest = 10;
constexpr int kSecond = 1000;  // milliseconds
constexpr const char* kNoYears =
    "No years are kept yet. Each year of the game that you load is kept, and from the second one "
    "on "
    "you can look back here: on the map, and at how the races grew.";

// The dock's content; a scrolled part alone would ask for more or less room, as its font goes.
class Content : public QStackedWidget {
 public:
  using QStackedWidget::QStackedWidget;
  QSize sizeHint() const override { return kFirstSize; }
};

// A notch of the wheel is one year, whatever the desktop takes it for in texts. A few years have
// ticks that can be seen on dark windows.
class YearSlider : public QSlider {
 public:
  using QSlider::QSlider;
  QSize sizeHint() const override { return QSlider::sizeHint() + QSize(0, 2 * kTickHeight); }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QSlider::paintEvent(event);
    if (maximum() == 0 || maximum() > kMostTicks) return;
    const int handle = style()->pixelMetric(QStyle::PM_SliderLength, nullptr, this);
    QPainter painter(this);
    painter.setPen(QColor(kTickColour));
    for (int tick = minimum(); tick <= maximum(); ++tick) {
      const int x = handle / 2 +
                    QStyle::sliderPositionFromValue(minimum(), maximum(), tick, width() - handle);
      painter.drawLine(x, height() - kTickHeight, x, height() - 1);
    }
  }
  void wheelEvent(QWheelEvent* event) override {
    const QPoint turned = event->angleDelta();
    turned_ += turned.y() != 0 ? turned.y() : turned.x();
    setValue(value() + turned_ / QWheelEvent::DefaultDeltasPerStep);
    turned_ %= QWheelEvent::DefaultDeltasPerStep;
    event->accept();
  }

 private:
  int turned_ = 0;
};

template <typename Layout>
Layout* NewLayout(QWidget* parent) {
  auto* layout = new Layout(parent);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  return layout;
}

QLabel* NewNoYears(QWidget* parent) {
  QLabel* label = NewCaption(QObject::tr(kNoYears), parent);
  label->setObjectName("YearsNone");
  label->setWordWrap(true);
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  label->setMargin(kMargin);
  return label;
}

}  // namespace

YearsDock::YearsDock(QWidget* parent)
    : QDockWidget(tr("Years"), parent), pages_(new Content(this)) {
  setObjectName("YearsDock");
  auto* page = new QWidget(pages_);
  auto* column = NewLayout<QVBoxLayout>(page);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(NewYearRow(page));
  column->addWidget(NewPlayRow(page));
  column->addWidget(NewCurvesPart(page), 1);
  column->addWidget(NewSaveRow(page));
  pages_->addWidget(NewNoYears(pages_));
  pages_->addWidget(NewScrollArea(page));
  setWidget(pages_);
  ShowYears({}, 0, 0);
  ShowCurves({});
  nextYear_.setSingleShot(true);
  connect(&nextYear_, &QTimer::timeout, this, [this] { PlayNext(slider_->value() + 1); });
}

QWidget* YearsDock::NewYearRow(QWidget* page) {
  auto* part = new QWidget(page);
  auto* row = NewLayout<QHBoxLayout>(part);
  slider_ = new YearSlider(Qt::Horizontal, part);
  slider_->setObjectName("YearsSlider");
  slider_->setAccessibleName(tr("Year"));
  slider_->setPageStep(kDecade);
  shownYear_ = NewValue("YearsShown", part);
  row->addWidget(slider_, 1);
  row->addWidget(shownYear_);
  connect(slider_, &QSlider::valueChanged, this, &YearsDock::ChooseYear);
  return part;
}

QWidget* YearsDock::NewPlayRow(QWidget* page) {
  auto* part = new QWidget(page);
  auto* row = NewLayout<QHBoxLayout>(part);
  play_ = new QToolButton(part);
  play_->setObjectName("YearsPlay");
  play_->setProperty("overlay", true);
  play_->setCheckable(true);
  play_->setFocusPolicy(Qt::StrongFocus);
  play_->setAccessibleName(tr("Play the years"));
  speed_ = new QSpinBox(part);
  speed_->setObjectName("YearsSpeed");
  speed_->setAccessibleName(tr("Speed"));
  speed_->findChild<QLineEdit*>()->setAccessibleName(tr("Speed"));
  speed_->setRange(1, kFastest);
  speed_->setValue(kFirstSpeed);
  speed_->setSuffix(tr(" years a second"));
  back_ = NewButton("YearsBack", "", part);
  row->addWidget(play_);
  row->addWidget(speed_);
  row->addStretch(1);
  row->addWidget(back_);
  connect(play_, &QToolButton::toggled, this, &YearsDock::Play);
  connect(back_, &QPushButton::clicked, this, [this] {
    StopPlaying();
    emit BackAsked();
  });
  Play(false);
  return part;
}

QWidget* YearsDock::NewCurvesPart(QWidget* page) {
  auto* part = new QWidget(page);
  auto* column = NewLayout<QVBoxLayout>(part);
  curve_ = new QComboBox(part);
  curve_->setObjectName("YearsCurve");
  NameBox(*curve_, tr("Curves"));
  for (int kind = 0; kind < kCurveKinds; ++kind) {
    curve_->addItem(tr(CurveName(static_cast<CurveKind>(kind))));
    curve_->setItemData(kind, tr(CurveMeaning(static_cast<CurveKind>(kind))), Qt::ToolTipRole);
  }
  chart_ = new CurveChart(part);
  chart_->setObjectName("YearsChart");
  chart_->setAccessibleName(tr("Curves of the races"));
  values_ = new ElidedLabel("YearsValues", part);
  races_ = new RaceChecks("YearsRaces", part);
  column->addWidget(curve_);
  column->addWidget(chart_, 1);
  column->addWidget(values_);
  column->addWidget(races_);
  connect(curve_, &QComboBox::currentIndexChanged, this, &YearsDock::FillChart);
  connect(races_, &RaceChecks::RaceSwitched, this, [this](const std::string& race, bool isShown) {
    chart_->ShowRace(race, isShown);
    ShowValues();
  });
  return part;
}

QWidget* YearsDock::NewSaveRow(QWidget* page) {
  auto* part = new QWidget(page);
  auto* row = NewLayout<QHBoxLayout>(part);
  savePicture_ = NewButton("YearsSavePicture", tr("Save &Picture ..."), part);
  saveTable_ = NewButton("YearsSaveTable", tr("Save &Table ..."), part);
  row->addWidget(savePicture_);
  row->addWidget(saveTable_);
  row->addStretch(1);
  connect(savePicture_, &QPushButton::clicked, this, &YearsDock::SavePictureAsked);
  connect(saveTable_, &QPushButton::clicked, this, &YearsDock::SaveTableAsked);
  return part;
}

void YearsDock::ShowYears(const std::vector<int>& years, int present, int shown) {
  const int last = std::max(static_cast<int>(years.size()) - 1, 0);
  if (years_ != years) {
    StopPlaying();
    years_ = years;
    const QSignalBlocker filling(slider_);
    slider_->setRange(0, last);
  }
  present_ = present;
  back_->setText(present > 0 ? tr("&Back to %1").arg(present) : tr("&Back"));
  for (QWidget* control : {static_cast<QWidget*>(slider_), static_cast<QWidget*>(play_),
                           static_cast<QWidget*>(speed_)}) {
    control->setEnabled(last > 0);
  }
  ShowYear(shown);
  ShowPage();
}

void YearsDock::ShowYear(int shown) {
  shown_ = shown;
  const auto place = std::ranges::lower_bound(years_, shown);
  {
    const QSignalBlocker showing(slider_);
    slider_->setValue(static_cast<int>(place - years_.begin()));
  }
  const QString text = shown > 0 ? tr("Year %1").arg(shown) : QString();
  shownYear_->setText(text);
  slider_->setAccessibleDescription(text);
  back_->setEnabled(present_ > 0 && shown != present_);
  chart_->ShowYear(shown);
  ShowValues();
}

void YearsDock::ShowCurves(const std::vector<RaceYear>& years) {
  known_ = years;
  savePicture_->setEnabled(!years.empty());
  saveTable_->setEnabled(!years.empty());
  FillChart();
  ShowPage();
}

void YearsDock::FillChart() {
  std::vector<RaceCurve> curves = CurvesOf(known_, Kind());
  curve_->setToolTip(tr(CurveMeaning(Kind())));
  races_->ShowRaces(curves);
  chart_->ShowCurves(std::move(curves), races_->Hidden());
  ShowValues();
}

// A year that was just loaded and that nothing is kept of is no history yet.
void YearsDock::ShowPage() {
  pages_->setCurrentIndex(years_.size() > 1 || (!years_.empty() && !known_.empty()) ? 1 : 0);
}

// What the pointer tells over the chart, in one line for those who use keys.
void YearsDock::ShowValues() {
  QStringList races;
  for (const RaceValue& race : ValuesInYear(chart_->Shown(), shown_)) {
    races << ToQString(race.Race + " " + GroupedNumber(race.Value));
  }
  values_->ShowValue(races.join(tr(", ")));
  chart_->setAccessibleDescription(values_->text());
}

QPixmap YearsDock::ChartPicture() { return chart_->Picture(tr(CurveMeaning(Kind()))); }

void YearsDock::ChooseYear(int index) {
  const int year = years_.at(static_cast<std::size_t>(index));
  ShowYear(year);
  emit YearChosen(year);
}

void YearsDock::Play(bool isOn) {
  play_->setIcon(ThemedIcon(isOn ? "pause" : "play"));
  play_->setToolTip(isOn ? tr("Stop playing") : tr("Play the years"));
  if (!isOn) return nextYear_.stop();
  PlayNext(slider_->value() == slider_->maximum() ? 0 : slider_->value() + 1);
}

// The next year is waited for when this one is on the map, so a slow map is never asked for more
// than it can show; a year that could not be shown ends the playing.
void YearsDock::PlayNext(int index) {
  QElapsedTimer elapsed;
  elapsed.start();
  slider_->setValue(index);
  const bool isShown = slider_->value() == index && index < slider_->maximum();
  if (!isShown) return StopPlaying();
  if (!IsPlaying()) return;
  const int interval = kSecond / speed_->value();
  nextYear_.start(std::max(interval - static_cast<int>(elapsed.elapsed()), 1));
}

void YearsDock::hideEvent(QHideEvent* event) {
  QDockWidget::hideEvent(event);
  if (!event->spontaneous()) StopPlaying();
}

}  // namespace quorvane

#include "ui/minerals_tab.h"

#include <QGridLayout>

#include "map/palette.h"
#include "paint/colours.h"
#include "paint/twips.h"
#include "screens/mineral_charts.h"
#include "ui/controls.h"
#include "ui/pixel_rect.h"

namespace quorvane {
namespace {

constexpr int kPieSide = 1680;
constexpr int kPieTop = 735;
constexpr int kBarFoot = 2400;
constexpr int kBarWidth = 315;
constexpr const char* kViewAsBars = "View as Bar Chart";
constexpr const char* kViewAsPies = "View as Pie Chart";

void Place(QWidget& widget, int left, int top, int width, int height) {
  widget.setGeometry(PixelRect({.Left = left, .Top = top, .Width = width, .Height = height}));
}

PieChart* NewPie(const char* name, const QString& accessibleName, int left, QWidget* page) {
  auto* pie = new PieChart(page);
  pie->setObjectName(name);
  pie->setAccessibleName(accessibleName);
  Place(*pie, left, kPieTop, kPieSide, kPieSide);
  return pie;
}

// A bar of the charts: what it is called, where it stands and its colour.
struct Bar {
  const char* Name;
  int Left;
  Colour BarColour;
};
constexpr std::array<Bar, 3> kConcentrationBars = {
    {{"MCI", 300, kIroniumColour}, {"MCB", 720, kBoraniumColour}, {"MCG", 1140, kGermaniumColour}}};
constexpr std::array<Bar, 3> kStoredBars = {{{"MSI", 2880, kIroniumColour},
                                             {"MSB", 3300, kBoraniumColour},
                                             {"MSG", 3720, kGermaniumColour}}};

void SetBarHeight(QWidget& bar, int left, double height) {
  const int pixels = PixelsFromTwips(height);
  const int foot = PixelsFromTwips(kBarFoot);
  bar.setGeometry(PixelsFromTwips(left), foot - pixels, PixelsFromTwips(kBarWidth), pixels);
}

void SetBarHeights(const std::array<QWidget*, 3>& widgets, const std::array<Bar, 3>& bars,
                   const std::array<double, 3>& heights) {
  for (std::size_t bar = 0; bar < bars.size(); ++bar) {
    SetBarHeight(*widgets[bar], bars[bar].Left, heights[bar]);
  }
}

std::array<QWidget*, 3> NewBars(const std::array<Bar, 3>& bars, QWidget* page) {
  std::array<QWidget*, 3> widgets = {};
  for (std::size_t bar = 0; bar < bars.size(); ++bar) {
    widgets[bar] = new QWidget(page);
    widgets[bar]->setObjectName(bars[bar].Name);
    widgets[bar]->setAutoFillBackground(true);
    widgets[bar]->setPalette(QColor(RgbOf(bars[bar].BarColour)));
    widgets[bar]->hide();
  }
  SetBarHeights(widgets, bars, {});
  return widgets;
}

// The table below the charts. Its values carry the control names by which the panel fills them.
void FillTable(QWidget& table) {
  struct Row {
    const char* Caption;
    std::array<const char*, 3> Names;
  };
  constexpr std::array kHeadings = {"Mining:", "Conc.:", "Stored:"};
  constexpr Row kRows[] = {{"Ironium:", {"IronMR", "IronMCT", "IronS"}},
                           {"Boranium:", {"BoraMR", "BoraMCT", "BoraS"}},
                           {"Germanium:", {"GermMR", "GermMCT", "GermS"}}};
  auto* grid = new QGridLayout(&table);
  grid->setContentsMargins(8, 0, 8, 0);
  grid->setVerticalSpacing(0);
  grid->setHorizontalSpacing(10);
  for (std::size_t i = 0; i < kHeadings.size(); ++i) {
    const int column = static_cast<int>(i) + 1;
    grid->addWidget(NewHeading(kHeadings[i], &table), 0, column);
    grid->setColumnStretch(column, 1);
  }
  for (const Row& row : kRows) {
    const int line = grid->rowCount();
    grid->addWidget(NewCaption(row.Caption, &table), line, 0);
    for (std::size_t i = 0; i < row.Names.size(); ++i) {
      grid->addWidget(NewValue(row.Names[i], &table), line, static_cast<int>(i) + 1);
    }
  }
}

}  // namespace

MineralsTab::MineralsTab(QTabWidget* panel) : QWidget(panel), panel_(*panel) {
  plane_ = new QWidget(this);
  QLabel* concentration = NewHeading("< Conc.", plane_);
  QLabel* stored = NewHeading("Stored >", plane_);
  stored->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  Place(*concentration, 120, 450, 900, 255);
  Place(*stored, 3480, 450, 900, 255);
  ChartType = NewButton("ChartType", kViewAsBars, plane_);
  ChartType->setEnabled(false);
  Place(*ChartType, 1290, 420, 1935, 300);
  Pie1 = NewPie("Pie1", tr("Mineral concentrations"), 150, plane_);
  Pie2 = NewPie("Pie2", tr("Stored minerals"), 2670, plane_);
  ConcentrationBars = NewBars(kConcentrationBars, plane_);
  StoredBars = NewBars(kStoredBars, plane_);
  connect(ChartType, &QPushButton::clicked, this, &MineralsTab::ChartType_Click);

  auto* table = new QWidget(plane_);
  FillTable(*table);
  Place(*table, 0, 2475, 4485, 1170);
}

// A page begins below the tabs, whose height is the system's choice; the plane begins where the
// panel does.
void MineralsTab::AlignPlane() { plane_->setGeometry({mapFrom(&panel_, QPoint()), panel_.size()}); }

void MineralsTab::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  AlignPlane();
}

void MineralsTab::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  AlignPlane();
}

void MineralsTab::ShowCharts(const PlanetRecord& planet) {
  const MineralChart concentrations = ConcentrationChart(planet);
  Pie1->SetSlices(concentrations.Slices);
  SetBarHeights(ConcentrationBars, kConcentrationBars, concentrations.BarHeights);
  const MineralChart stored = StoredChart(planet);
  Pie2->SetSlices(stored.Slices);
  SetBarHeights(StoredBars, kStoredBars, stored.BarHeights);
  ChartType->setEnabled(true);
}

void MineralsTab::ClearCharts() {
  for (PieChart* pie : {Pie1, Pie2}) pie->SetSlices({});
  SetBarHeights(ConcentrationBars, kConcentrationBars, {});
  SetBarHeights(StoredBars, kStoredBars, {});
}

void MineralsTab::ChartType_Click() {
  showsBars_ = !showsBars_;
  ChartType->setText(showsBars_ ? kViewAsPies : kViewAsBars);
  for (PieChart* pie : {Pie1, Pie2}) pie->setVisible(!showsBars_);
  for (const auto& bars : {ConcentrationBars, StoredBars}) {
    for (QWidget* bar : bars) bar->setVisible(showsBars_);
  }
  emit ChartsSwitched();
}

}  // namespace quorvane

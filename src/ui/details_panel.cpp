#include "ui/details_panel.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <array>
#include <span>

#include "analysis/planet_details.h"
#include "platform/toolkit/colours.h"
#include "platform/toolkit/twips.h"
#include "render/mineral_charts.h"
#include "render/palette.h"
#include "ui/labels.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// The fixed text in front of a value, and the value's control name.
struct Row {
  const char* Caption;
  const char* Name;
};

constexpr int kTabStrip = 390;  // the height of the tabs, in twips of the whole panel
constexpr int kPieSide = 1680;
constexpr int kPieTop = 735;
constexpr int kBarFoot = 2400;
constexpr int kBarWidth = 315;
constexpr const char* kViewAsBars = "View as Bar Chart";
constexpr const char* kViewAsPies = "View as Pie Chart";

QGridLayout* NewGrid(QWidget* page) {
  auto* grid = new QGridLayout(page);
  grid->setContentsMargins(8, 6, 8, 4);
  grid->setVerticalSpacing(2);
  grid->setHorizontalSpacing(10);
  return grid;
}

void AddRows(QGridLayout& grid, QWidget* page, std::span<const Row> rows) {
  for (const Row& row : rows) {
    const int line = grid.rowCount();
    grid.addWidget(NewCaption(row.Caption, page), line, 0);
    grid.addWidget(NewValue(row.Name, page), line, 1);
  }
  grid.setColumnStretch(1, 1);
}

// Puts a control where the panel's own twips say; the page begins below the tabs.
void Place(QWidget& widget, int left, int top, int width, int height) {
  widget.setGeometry(PixelsFromTwips(left), PixelsFromTwips(top - kTabStrip),
                     PixelsFromTwips(width), PixelsFromTwips(height));
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
  const int foot = PixelsFromTwips(kBarFoot - kTabStrip);
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

void FillList(QListWidget& list, const std::vector<std::string>& entries) {
  list.clear();
  for (const std::string& entry : entries) list.addItem(ToQString(entry));
}

// One row of the minerals tab: a caption and the control names of its three values.
struct MineralRow {
  const char* Caption;
  std::array<const char*, 3> Names;
};

void FillMineralTable(QWidget* table) {
  constexpr std::array kHeadings = {"Mining:", "Conc.:", "Stored:"};
  constexpr MineralRow kRows[] = {{"Ironium:", {"IronMR", "IronMCT", "IronS"}},
                                  {"Boranium:", {"BoraMR", "BoraMCT", "BoraS"}},
                                  {"Germanium:", {"GermMR", "GermMCT", "GermS"}}};
  QGridLayout* grid = NewGrid(table);
  grid->setContentsMargins(8, 0, 8, 0);
  grid->setVerticalSpacing(0);
  for (std::size_t i = 0; i < kHeadings.size(); ++i) {
    const int column = static_cast<int>(i) + 1;
    grid->addWidget(NewHeading(kHeadings[i], table), 0, column);
    grid->setColumnStretch(column, 1);
  }
  for (const MineralRow& row : kRows) {
    const int line = grid->rowCount();
    grid->addWidget(NewCaption(row.Caption, table), line, 0);
    for (std::size_t i = 0; i < row.Names.size(); ++i) {
      grid->addWidget(NewValue(row.Names[i], table), line, static_cast<int>(i) + 1);
    }
  }
}

}  // namespace

DetailsPanel::DetailsPanel(QWidget* parent) : QTabWidget(parent) {
  setObjectName("Detail");
  setAccessibleName(tr("Planet details and drawing tools"));
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideNone);
  AddPlanetTab();
  AddMineralsTab();
  AddPopulationTab();
  AddHabTab();
  Tools = new DrawingTools(this);
  addTab(Tools, "QVL");
  AddStargateTab();
}

void DetailsPanel::AddPlanetTab() {
  constexpr Row kRows[] = {{"Planet:", "PlanetName"},
                           {"Hab Value:", "HabValue"},
                           {"Owner:", "Owner2"},
                           {"Report Age:", "ReportAge2"}};
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  auto* rows = new QWidget(page);
  AddRows(*NewGrid(rows), rows, kRows);
  auto* environment = new QWidget(page);
  QGridLayout* grid = NewGrid(environment);
  grid->addWidget(NewHeading("Current", environment), 0, 1);
  grid->addWidget(NewHeading("Original", environment), 0, 2);
  struct Reading {
    const char* Caption;
    const char* Current;
    const char* Original;
  };
  constexpr Reading kReadings[] = {{"Gravity:", "Grav1", "Grav2"},
                                   {"Temperature:", "Temp1", "Temp2"},
                                   {"Radiation:", "Rad1", "Rad2"}};
  for (const Reading& reading : kReadings) {
    const int line = grid->rowCount();
    grid->addWidget(NewCaption(reading.Caption, environment), line, 0);
    grid->addWidget(NewValue(reading.Current, environment), line, 1);
    grid->addWidget(NewValue(reading.Original, environment), line, 2);
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(2, 1);
  column->addWidget(rows);
  column->addWidget(environment);
  column->addStretch(1);
  addTab(page, "Planet");
}

void DetailsPanel::AddMineralsTab() {
  auto* page = new QWidget(this);
  QLabel* concentration = NewHeading("< Conc.", page);
  QLabel* stored = NewHeading("Stored >", page);
  stored->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  Place(*concentration, 120, 450, 900, 255);
  Place(*stored, 3480, 450, 900, 255);
  ChartType = new QPushButton(kViewAsBars, page);
  ChartType->setObjectName("ChartType");
  ChartType->setEnabled(false);
  Place(*ChartType, 1290, 420, 1935, 300);
  Pie1 = NewPie("Pie1", tr("Mineral concentrations"), 150, page);
  Pie2 = NewPie("Pie2", tr("Stored minerals"), 2670, page);
  ConcentrationBars = NewBars(kConcentrationBars, page);
  StoredBars = NewBars(kStoredBars, page);
  connect(ChartType, &QPushButton::clicked, this, &DetailsPanel::ChartType_Click);

  auto* table = new QWidget(page);
  FillMineralTable(table);
  Place(*table, 0, 2475, 4485, 1170);
  addTab(page, "Minerals");
}

void DetailsPanel::AddPopulationTab() {
  constexpr Row kRows[] = {{"Stars! Score:", "StarsScore"},
                           {"Owner:", "Owner"},
                           {"Report Age:", "ReportAge"},
                           {"Starbase:", "Starbase"},
                           {"Popluation:", "Population"},
                           {"Defence:", "Defence"},
                           {"Mines:", "Mines"},
                           {"Factories:", "Factories"},
                           {"Resources:", "Resources"},
                           {"SOI:", "SOI"}};
  auto* page = new QWidget(this);
  QGridLayout* grid = NewGrid(page);
  AddRows(*grid, page, kRows);
  grid->setRowStretch(grid->rowCount(), 1);
  addTab(page, "Pop.");
}

void DetailsPanel::AddHabTab() {
  constexpr int kRowsPerColumn = kMaxPlayers / 2;
  auto* page = new QWidget(this);
  QGridLayout* grid = NewGrid(page);
  for (int race = 0; race < kMaxPlayers; ++race) {
    const auto index = static_cast<std::size_t>(race);
    RName[index] = NewValue(IndexedName("RName", race), page);
    RHab[index] = NewValue(IndexedName("RHab", race), page);
    RHab[index]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int column = race / kRowsPerColumn * 2;
    grid->addWidget(RName[index], race % kRowsPerColumn, column);
    grid->addWidget(RHab[index], race % kRowsPerColumn, column + 1);
  }
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(2, 1);
  grid->setRowStretch(kRowsPerColumn, 1);
  addTab(page, "Hab");
}

void DetailsPanel::AddStargateTab() {
  auto* page = new QWidget(this);
  QGridLayout* grid = NewGrid(page);
  SGType = NewValue("SGType", page);
  SGType->setText("None Detected");
  SSGList = new QListWidget(page);
  SSGList->setObjectName("SSGList");
  DSGList = new QListWidget(page);
  DSGList->setObjectName("DSGList");
  grid->addWidget(NewCaption("Type of Stargate at this Planet:", page), 0, 0, 1, 2);
  grid->addWidget(SGType, 1, 0, 1, 2);
  grid->addWidget(NewHeading("Safe Distances", page), 2, 0);
  grid->addWidget(NewHeading("Danger Distances", page), 2, 1);
  grid->addWidget(SSGList, 3, 0);
  grid->addWidget(DSGList, 3, 1);
  SSGList->setAccessibleName(tr("Safe distances"));
  DSGList->setAccessibleName(tr("Danger distances"));
  addTab(page, "Stargate");
}

void DetailsPanel::ShowRaces(const GameSession& session) {
  for (int race = 0; race < kMaxPlayers; ++race) {
    const auto index = static_cast<std::size_t>(race);
    const bool isPlayer = race < session.PlayerCount;
    RName[index]->setText(isPlayer ? ToQString(session.Player(race + 1).Name()) : QString());
    RHab[index]->clear();
  }
}

void DetailsPanel::ShowPlanet(const GameSession& session, int planet) {
  for (const DetailText& detail : DescribePlanet(session, planet)) {
    findChild<QLabel*>(ToQString(detail.Label))->setText(ToQString(detail.Text));
  }
  const MineralChart concentrations = ConcentrationChart(session.Planet(planet));
  Pie1->SetSlices(concentrations.Slices);
  SetBarHeights(ConcentrationBars, kConcentrationBars, concentrations.BarHeights);
  const MineralChart stored = StoredChart(session.Planet(planet));
  Pie2->SetSlices(stored.Slices);
  SetBarHeights(StoredBars, kStoredBars, stored.BarHeights);
  ChartType->setEnabled(true);
  // The old report knows neither environments nor stargates.
  if (session.ReportStyle == kNewReportStyle) ShowEnvironment(session, planet);
}

void DetailsPanel::ShowEnvironment(const GameSession& session, int planet) {
  const std::vector<std::string> habs = HabTexts(session, planet);
  for (std::size_t race = 0; race < habs.size(); ++race) {
    RHab[race]->setText(ToQString(habs[race]));
  }
  const StargateDetails stargate = DescribeStargate(session, planet);
  SGType->setText(ToQString(stargate.Type));
  FillList(*SSGList, stargate.Safe);
  FillList(*DSGList, stargate.Dangerous);
}

void DetailsPanel::ChartType_Click() {
  const bool showsBars = ChartType->text() == kViewAsBars;
  ChartType->setText(showsBars ? kViewAsPies : kViewAsBars);
  for (PieChart* pie : {Pie1, Pie2}) pie->setVisible(!showsBars);
  for (const auto& bars : {ConcentrationBars, StoredBars}) {
    for (QWidget* bar : bars) bar->setVisible(showsBars);
  }
  emit ChartsSwitched();
}

}  // namespace quorvane

#include "ui/details_panel.h"

#include <QGridLayout>
#include <QVBoxLayout>
#include <span>

#include "screens/planet_details.h"
#include "ui/controls.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr const char* kNoStargate = "None Detected";

// The fixed text in front of a value, and the value's control name.
struct Row {
  const char* Caption;
  const char* Name;
};

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

void FillList(QListWidget& list, const std::vector<std::string>& entries) {
  list.clear();
  for (const std::string& entry : entries) list.addItem(ToQString(entry));
}

}  // namespace

DetailsPanel::DetailsPanel(QWidget* parent) : QTabWidget(parent) {
  setObjectName("Detail");
  setAccessibleName(tr("Planet details and drawing tools"));
  setUsesScrollButtons(false);
  setElideMode(Qt::ElideNone);
  AddPlanetTab();
  Minerals = new MineralsTab(this);
  addTab(Minerals, "Minerals");
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
  SGType->setText(kNoStargate);
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

void DetailsPanel::ShowLoadedGame(const GameSession& session) {
  if (StillExists(session)) {
    ShowPlanet(session, planet_);
  } else {
    Clear();
  }
  Minerals->DisableCharts();
  for (int race = 0; race < kMaxPlayers; ++race) {
    const auto index = static_cast<std::size_t>(race);
    const bool isPlayer = race < session.PlayerCount;
    RName[index]->setText(isPlayer ? ToQString(session.Player(race + 1).Name()) : QString());
    RHab[index]->clear();
  }
}

// The map's file may have been replaced by another game's.
bool DetailsPanel::StillExists(const GameSession& session) const {
  return planet_ > 0 && map_ == session.MapFilePath && planet_ <= session.PlanetCount &&
         planetName_ == session.Planet(planet_).Name();
}

void DetailsPanel::Clear() {
  planet_ = 0;
  for (QLabel* label : findChildren<QLabel*>()) {
    if (label->property("value").toBool()) label->clear();
  }
  SGType->setText(kNoStargate);
  SSGList->clear();
  DSGList->clear();
  Minerals->ClearCharts();
}

void DetailsPanel::ShowPlanet(const GameSession& session, int planet) {
  map_ = session.MapFilePath;
  planet_ = planet;
  planetName_ = session.Planet(planet).Name();
  for (const DetailText& detail : DescribePlanet(session, planet)) {
    findChild<QLabel*>(ToQString(detail.Label))->setText(ToQString(detail.Text));
  }
  Minerals->ShowCharts(session.Planet(planet));
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

}  // namespace quorvane

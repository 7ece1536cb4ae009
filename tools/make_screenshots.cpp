// Loads a game through the program's real windows and saves pictures of them, for the README and
// for looking at what was changed. Run it on the offscreen platform; QT_SCALE_FACTOR=2 shows what a
// screen of double density would.
#include <CLI/CLI.hpp>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QEventLoop>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <iostream>

#include "formats/turn_file.h"
#include "loading/earlier_years.h"
#include "loading/load_game.h"
#include "map/planets_in_view.h"
#include "ui/details_panel.h"
#include "ui/distances_dock.h"
#include "ui/empire_stat.h"
#include "ui/grid.h"
#include "ui/grid_heading.h"
#include "ui/legend.h"
#include "ui/main_window.h"
#include "ui/map_panel.h"
#include "ui/overlay_bar.h"
#include "ui/planet_list.h"
#include "ui/planets_dock.h"
#include "ui/texts.h"
#include "ui/theme.h"
#include "ui/years_dock.h"

namespace quorvane {
namespace {

struct ScreenshotJob {
  QString GameFolder;
  QString MapName;
  QString OutFolder;
  QString Suffix;
  QString Year = "2450";
};

void Save(QWidget& window, const ScreenshotJob& job, const QString& name) {
  QApplication::processEvents();
  const QString path = job.OutFolder + "/" + name + job.Suffix + ".png";
  if (!window.grab().save(path)) std::cerr << "Cannot write " << path.toStdString() << "\n";
}

// Runs while the open dialog is shown: chooses the map, takes a picture and loads.
void UseOpenDialog(const ScreenshotJob& job) {
  QWidget* dialog = QApplication::activeModalWidget();
  auto* maps = dialog->findChild<QListWidget*>("File1");
  const QList<QListWidgetItem*> found = maps->findItems(job.MapName, Qt::MatchExactly);
  if (found.isEmpty()) {
    std::cerr << "There is no map " << job.MapName.toStdString() << "\n";
    dialog->findChild<QPushButton*>("Command2")->click();
    return;
  }
  maps->setCurrentItem(nullptr);  // the first map may be the current one without being chosen
  maps->setCurrentItem(found.first());
  dialog->findChild<QLineEdit*>("txtGameYear")->setText(job.Year);
  Save(*dialog, job, "open-dialog");
  dialog->findChild<QPushButton*>("Command1")->click();
}

// Clicks on the map where a planet lies, given in stored coordinates.
void ClickPlanet(Main& window, const PlanetRecord& planet) {
  const MapView& view = window.Map->State().View;
  const SurfacePoint at = PositionOf(planet, view);
  emit window.Map->Universe->MouseDown(at);
}

// The planet with the largest population of the user's own race.
const PlanetRecord& HomeWorld(const GameSession& session) {
  int home = 1;
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& planet = session.Planet(number);
    const bool isOwn = planet.Owner() == session.MyRaceName;
    if (isOwn && planet.Population() > session.Planet(home).Population()) home = number;
  }
  return session.Planet(home);
}

// Opens a modal window from its menu item, takes its picture and closes it.
void TakeDialog(Main& window, const ScreenshotJob& job, const char* item, const QString& name) {
  QTimer::singleShot(100, &window, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    Save(*dialog, job, name);
    dialog->reject();
  });
  window.findChild<QAction*>(item)->trigger();
}

void TakeStatistics(Main& window, const ScreenshotJob& job) {
  QTimer::singleShot(100, &window, [&] {
    auto* statistics = qobject_cast<EmpireStat*>(QApplication::activeModalWidget());
    for (int tab = 0; tab < statistics->SSTab1->count(); ++tab) {
      statistics->SSTab1->setCurrentIndex(tab);
      Save(*statistics, job, QString("empire-statistics-%1").arg(tab));
    }
    statistics->reject();
  });
  window.findChild<QAction*>("mnuGrid2")->trigger();
}

void ShowColourDialog(Main& window, const ScreenshotJob& job) {
  QTimer::singleShot(100, &window, [&job] {
    QWidget* dialog = QApplication::activeModalWidget();
    Save(*dialog, job, "race-colour");
    dialog->close();
  });
  emit window.RaceLegend->RaceC[3]->Chosen();
}

void TakeDrawings(Main& window, const ScreenshotJob& job) {
  window.Detail->setCurrentWidget(window.Detail->Tools);
  window.findChild<QToolButton*>("OvButt(10)")->setChecked(true);
  window.Detail->Tools->Draw[2]->setChecked(true);
  window.Detail->Tools->DColour[5]->setChecked(true);
  emit window.Map->Universe->MouseDown({1000, 9000});
  emit window.Map->Universe->MouseDown({7000, 8000});
  emit window.Map->Universe->MouseDown({3000, 3000});
  emit window.Map->Universe->MouseMove({6000, 5000});
  Save(window, job, "main-drawing");
  emit window.Map->Universe->MouseDown({6000, 5000});
  window.findChild<QToolButton*>("OvButt(10)")->setChecked(false);
}

void ShowGrid(Main& window, const ScreenshotJob& job) {
  window.findChild<QAction*>("mnuGrid")->trigger();
  QApplication::processEvents();  // it becomes the active window
  auto* grid = qobject_cast<Grid*>(QApplication::activeWindow());
  constexpr int kResources = 12;
  emit grid->findChild<GridHeading*>()->Clicked(kResources, Qt::RightButton);
  Save(*grid, job, "planet-grid");
  QTimer::singleShot(100, grid, [&job] {
    QWidget* chooser = QApplication::activeModalWidget();
    chooser->findChild<QListWidget*>()->item(1)->setCheckState(Qt::Unchecked);
    Save(*chooser, job, "show-hide");
    chooser->close();
  });
  grid->mnuSH->trigger();
  grid->close();
}

void TakeOverlays(Main& window, const ScreenshotJob& job) {
  for (const OverlayTexts& overlay : kOverlayTable) {
    if (overlay.Kind <= OverlayKind::ZoomIn) continue;
    OverlaySwitches one;
    one.Set(overlay.Kind, true);
    window.Overlays->Show(one);
    window.DrawOverlays();
    Save(window, job, "overlay-" + ToQString(overlay.MenuName));
  }
  window.Overlays->Show({});
  window.DrawOverlays();
}

void TakeDetails(Main& window, const ScreenshotJob& job) {
  for (int tab = 0; tab < window.Detail->count(); ++tab) {
    window.Detail->setCurrentIndex(tab);
    Save(*window.Detail, job, QString("details-%1").arg(tab));
  }
  window.Detail->setCurrentIndex(1);
  window.Detail->Minerals->ChartType->click();
  Save(*window.Detail, job, "details-bars");
  window.Detail->Minerals->ChartType->click();
  window.Detail->setCurrentIndex(0);
}

// The map zoomed by the wheel, with names above territories and both docks open.
void TakeDocks(Main& window, const ScreenshotJob& job) {
  window.resize(1280, 800);
  window.Detail->setCurrentIndex(0);
  window.findChild<QAction*>("ViewWholeUniverse")->trigger();
  OverlaySwitches several;
  for (const OverlayKind kind :
       {OverlayKind::InfluenceBorders, OverlayKind::OwnedPlanets, OverlayKind::NamesColoured}) {
    several.Set(kind, true);
  }
  window.Overlays->Show(several);
  window.DrawOverlays();
  ClickPlanet(window, HomeWorld(window.Session()));
  window.findChild<QAction*>("ViewKey")->trigger();
  Save(window, job, "main-key");
  window.findChild<QAction*>("ViewKey")->trigger();
  window.findChild<QAction*>("ViewDistances")->trigger();
  window.findChild<QAction*>("ViewZoomIn")->trigger();
  emit window.Map->Universe->MouseMove({2500, 3000});
  emit window.DistancesDock->PlanetChosen(1);
  window.findChild<QAction*>("ViewKeepDestination")->trigger();
  ClickPlanet(window, HomeWorld(window.Session()));
  Save(window, job, "main-distances");
  window.findChild<QAction*>("ViewKey")->trigger();
  Save(window, job, "main-docks");
}

// What the bar above the map tells once a new turn of the user's race has arrived.
void TakeNewTurn(Main& window, const ScreenshotJob& job) {
  for (const char* dock : {"ViewKey", "ViewDistances", "ViewWholeUniverse", "ViewSet(1)"}) {
    window.findChild<QAction*>(dock)->trigger();
  }
  window.findChild<QAction*>("GameReports")->trigger();
  const GameSession& session = window.Session();
  const int own = session.MyRaceRow;
  GameWatcher::Stamps files = StampGameFiles(session.MapFilePath);
  for (GameFileStamp& file : files) {
    if (file.Kind == GameFileKind::Report && file.Row <= own) file.Size += 1;
  }
  files.push_back({.Kind = GameFileKind::Turn,
                   .Row = own,
                   .Name = TurnFileName(session, own),
                   .Year = session.GameYear + 1});
  emit window.Watcher().Changed(session.MapFilePath, files);
  window.findChild<QAction*>("ViewNumbersInLegend")->trigger();
  QEventLoop survey;  // the reports are read in another thread
  QTimer::singleShot(500, &survey, &QEventLoop::quit);
  survey.exec();
  Save(window, job, "main-new-turn");
}

// What the user could settle, in the list and ringed on the map.
void TakePlanets(const ScreenshotJob& job) {
  constexpr QSize kWide(1500, 820);  // with room for the columns that the search is about
  Main window(ToPath(job.GameFolder));
  window.Map->Timer1->stop();
  window.resize(kWide);
  window.show();
  QTimer::singleShot(100, &window, [&job] { UseOpenDialog(job); });
  window.mnuMap_Click();
  window.findChild<QAction*>("ViewSet(1)")->trigger();
  window.findChild<QAction*>("ViewPlanets")->trigger();
  QApplication::processEvents();
  window.findChild<QLineEdit*>("SearchLine")->setText("owner:none near<=250 terra>0");
  window.findChild<QCheckBox*>("PlanetsMark")->setChecked(true);
  window.PlanetsDock->List->SortBy({{"Terra %", true}, {"Nearest Own l.y.", false}});
  window.PlanetsDock->List->ChooseFirst();
  Save(window, job, "planets");
  auto* help = window.findChild<QPushButton*>("SearchHelpButton");
  help->click();
  Save(*window.findChild<QDialog*>("SearchHelp"), job, "search-help");
  window.findChild<QLineEdit*>("SearchLine")->setText("owner:nobody");
  Save(*window.PlanetsDock, job, "planets-fault");
}

void TakePictures(const ScreenshotJob& job) {
  Main window(ToPath(job.GameFolder));
  window.Map->Timer1->stop();  // the marker's colours are random
  window.show();
  Save(window, job, "main-empty");
  QTimer::singleShot(100, &window, [&job] { UseOpenDialog(job); });
  window.mnuMap_Click();
  TakeOverlays(window, job);

  OverlaySwitches several;
  for (const OverlayKind kind :
       {OverlayKind::InfluenceBorders, OverlayKind::OwnedPlanets, OverlayKind::TerritoryEdges}) {
    several.Set(kind, true);
  }
  window.Overlays->Show(several);
  window.DrawOverlays();
  ClickPlanet(window, HomeWorld(window.Session()));
  Save(window, job, "main-window");
  TakeDetails(window, job);
  ShowColourDialog(window, job);
  TakeDrawings(window, job);
  ShowGrid(window, job);
  TakeDialog(window, job, "mnuSearchPlanet", "find-planet");
  TakeDialog(window, job, "mnuAbout", "about");
  TakeDialog(window, job, "mnuThanks", "thanks");
  TakeStatistics(window, job);

  window.findChild<QToolButton*>("OvButt(1)")->setChecked(true);
  const SurfacePoint home = PositionOf(HomeWorld(window.Session()), window.Map->State().View);
  const SurfacePoint corner = {std::max(home.X - 1500, 0.0), std::max(home.Y - 1500, 0.0)};
  const SurfacePoint opposite = {corner.X + 3000, corner.Y + 3000};
  emit window.Map->Universe->MouseDown(corner);
  emit window.Map->Universe->MouseMove(opposite);
  Save(window, job, "main-zoom-box");
  emit window.Map->Universe->MouseDown(opposite);
  Save(window, job, "main-zoomed");
  window.resize(1000, 700);
  Save(window, job, "main-1000x700");
  TakeDocks(window, job);
  TakeNewTurn(window, job);
}

// Keeps the years that lie in folders beside the game's.
void KeepYearsBeside(Main& window) {
  const std::filesystem::path folder = window.Session().MapDirectory.parent_path();
  for (const EarlierYear& year : FindEarlierYears(window.Session(), folder)) {
    const Result<GameSession> loaded = LoadGame(year.Choice, window.Session().MyRaceName, {});
    if (loaded) static_cast<void>(window.Keeper().StoreNow(*loaded));
  }
  QApplication::processEvents();
}

void TakeYears(const ScreenshotJob& job) {
  const QTemporaryDir data;
  Main window(ToPath(job.GameFolder), nullptr, {}, ToPath(data.filePath("history.sqlite")));
  window.Map->Timer1->stop();
  window.resize(1280, 800);
  window.show();
  QTimer::singleShot(100, &window, [&job] { UseOpenDialog(job); });
  window.mnuMap_Click();
  TakeDialog(window, job, "GameImportYears", "import-years");
  KeepYearsBeside(window);
  window.findChild<QAction*>("ViewSet(1)")->trigger();
  window.findChild<QAction*>("ViewYears")->trigger();
  ClickPlanet(window, HomeWorld(window.Session()));
  Save(window, job, "years-loaded");
  const QList<int> back = {1, 3, 30};
  for (const int years : back) {
    emit window.YearsDock->YearChosen(window.Loaded().GameYear - years);
    Save(window, job, QString("years-back-%1").arg(years));
  }
  auto* curve = window.findChild<QComboBox*>("YearsCurve");
  for (int kind = 0; kind < curve->count(); ++kind) {
    curve->setCurrentIndex(kind);
    Save(*window.YearsDock, job, QString("years-curve-%1").arg(kind));
  }
  window.findChild<QAction*>("ViewYears")->trigger();
  window.findChild<QAction*>("ViewChanges")->trigger();
  Save(window, job, "what-changed");
}

}  // namespace
}  // namespace quorvane

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  CLI::App options("Loads a game and saves pictures of the windows.");
  std::string game, map, out, suffix, warYear;
  options.add_option("GAME-FOLDER", game, "where the game lies")->required();
  options.add_option("MAP-NAME", map, "its map, as the open dialog lists it")->required();
  options.add_option("OUT-FOLDER", out, "where the pictures go")->required();
  options.add_option("SUFFIX", suffix, "what their names end in");
  CLI::Option* year = options.add_option(
      "--war", warYear,
      "the game is of this year, and its earlier ones lie in folders beside its own: only pictures "
      "of what looks back are taken");
  try {
    options.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    constexpr int kWrongOptions = 2;
    return options.exit(error) == 0 ? 0 : kWrongOptions;
  }
  using quorvane::ToQString;
  quorvane::ApplyTheme(application);
  quorvane::ScreenshotJob job = {ToQString(game), ToQString(map), ToQString(out),
                                 ToQString(suffix)};
  if (year->count() == 0) {
    quorvane::TakePictures(job);
    quorvane::TakePlanets(job);
  } else {
    job.Year = ToQString(warYear);
    quorvane::TakeYears(job);
  }
  return 0;
}

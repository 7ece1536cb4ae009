#pragma once

class QAction;
class QMenu;
class QMenuBar;
class QObject;

namespace quorvane {

class PlanetMenu;

/// The main window's menus, every item under its name. The overlay menu is filled by the overlay
/// switches.
struct MainMenu {
  explicit MainMenu(QMenuBar& bar);

  QMenu* mnuFile = nullptr;
  QMenu* mnuOver = nullptr;
  QMenu* mnuData = nullptr;
  QMenu* ViewMenu = nullptr;
  QMenu* GameMenu = nullptr;
  QMenu* mnuHelp = nullptr;

  QAction* mnuMap = nullptr;
  QAction* mnuSave = nullptr;
  QAction* mnuSaveRaceC = nullptr;
  QAction* mnuExit = nullptr;

  QAction* mnuSearchPlanet = nullptr;
  QAction* mnuHideSelect = nullptr;
  QAction* mnuGrid = nullptr;
  QAction* mnuGrid2 = nullptr;

  QAction* ViewZoomIn = nullptr;
  QAction* ViewZoomOut = nullptr;
  QAction* ViewWholeUniverse = nullptr;
  QAction* ViewZoomToSelected = nullptr;
  QAction* ViewBack = nullptr;
  QAction* ViewForward = nullptr;
  QAction* ViewOutlineNames = nullptr;
  QAction* ViewFewerNames = nullptr;
  QAction* ViewGatesOfSelected = nullptr;
  QAction* ViewPlanets = nullptr;
  QAction* ViewKey = nullptr;
  QAction* ViewDistances = nullptr;
  QAction* ViewKeepDestination = nullptr;
  QAction* ViewNumbersInLegend = nullptr;
  QAction* ViewChanges = nullptr;
  QAction* ViewYears = nullptr;
  PlanetMenu* ViewPlanet = nullptr;
  QMenu* ViewOverlaySets = nullptr;

  QAction* GameReload = nullptr;
  QMenu* GameRecent = nullptr;
  QAction* GameReopenAtStart = nullptr;
  QAction* GameReloadByItself = nullptr;
  QAction* GameReports = nullptr;
  QAction* GameKeepHistory = nullptr;
  QAction* GameForgetHistory = nullptr;
  QAction* GameImportYears = nullptr;
  QAction* GameColoursForEveryEye = nullptr;
  QAction* GameDefaultColours = nullptr;

  QAction* mnuAbout = nullptr;
  QAction* mnuThanks = nullptr;
  QAction* mnuManual = nullptr;

 private:
  void AddViewItems();
  void AddGameItems();
};

}  // namespace quorvane

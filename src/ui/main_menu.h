#pragma once

class QAction;
class QMenu;
class QMenuBar;
class QObject;

namespace quorvane {

/// The main window's menus, every item under its name. The overlay menu is filled by the overlay
/// switches.
struct MainMenu {
  explicit MainMenu(QMenuBar& bar);

  QMenu* mnuFile = nullptr;
  QMenu* mnuOver = nullptr;
  QMenu* mnuData = nullptr;
  QMenu* mnuHelp = nullptr;

  QAction* mnuMap = nullptr;
  QAction* mnuSave = nullptr;
  QAction* mnuSaveRaceC = nullptr;
  QAction* mnuExit = nullptr;

  QAction* mnuSearchPlanet = nullptr;
  QAction* mnuHideSelect = nullptr;
  QAction* mnuGrid = nullptr;
  QAction* mnuGrid2 = nullptr;

  QAction* mnuAbout = nullptr;
  QAction* mnuThanks = nullptr;
  QAction* mnuManual = nullptr;
};

}  // namespace quorvane

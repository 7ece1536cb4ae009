#include "ui/main_menu.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

#include "ui/icons.h"
#include "ui/planet_menu.h"

namespace quorvane {
namespace {

QMenu* AddMenu(QMenuBar& bar, const char* name, const char* caption) {
  QMenu* menu = bar.addMenu(caption);
  menu->setObjectName(name);
  // Qt knows enabled menus only through their action; it carries the same name for whoever looks.
  menu->menuAction()->setObjectName(name);
  return menu;
}

QMenu* AddSubmenu(QMenu& menu, const char* name, const char* caption) {
  QMenu* submenu = menu.addMenu(caption);
  submenu->setObjectName(name);
  submenu->menuAction()->setObjectName(name);
  return submenu;
}

QAction* AddItem(QMenu& menu, const char* name, const char* caption, const char* icon,
                 const QKeySequence& shortcut = {}) {
  QAction* item = menu.addAction(caption);
  item->setObjectName(name);
  item->setShortcut(shortcut);
  if (icon != nullptr) item->setIcon(ThemedIcon(icon));
  return item;
}

QAction* AddSwitch(QMenu& menu, const char* name, const char* caption,
                   const QKeySequence& shortcut = {}) {
  QAction* item = AddItem(menu, name, caption, nullptr, shortcut);
  item->setCheckable(true);
  return item;
}

}  // namespace

MainMenu::MainMenu(QMenuBar& bar)
    : mnuFile(AddMenu(bar, "mnuFile", "&File")),
      mnuOver(AddMenu(bar, "mnuOver", "&Overlays")),
      mnuData(AddMenu(bar, "mnuData", "&Data")),
      ViewMenu(AddMenu(bar, "ViewMenu", "&View")),
      GameMenu(AddMenu(bar, "GameMenu", "&Game")),
      mnuHelp(AddMenu(bar, "mnuHelp", "&Help")) {
  mnuMap = AddItem(*mnuFile, "mnuMap", "Load Data", "load");
  mnuSave = AddItem(*mnuFile, "mnuSave", "Save Map", "save", Qt::CTRL | Qt::Key_S);
  mnuSaveRaceC =
      AddItem(*mnuFile, "mnuSaveRaceC", "Save Race Colours", nullptr, Qt::CTRL | Qt::Key_R);
  mnuFile->addSeparator();
  mnuExit = AddItem(*mnuFile, "mnuExit", "E&xit", "exit");
  mnuExit->setMenuRole(QAction::QuitRole);

  mnuSearchPlanet =
      AddItem(*mnuData, "mnuSearchPlanet", "&Search for Planet", "find", Qt::CTRL | Qt::Key_F);
  mnuHideSelect = AddItem(*mnuData, "mnuHideSelect", "Hide Selector", nullptr);
  mnuData->addSeparator();
  mnuGrid = AddItem(*mnuData, "mnuGrid", "Planet &Grid", "grid", Qt::CTRL | Qt::Key_G);
  mnuGrid2 =
      AddItem(*mnuData, "mnuGrid2", "&Empire Statistics", "statistics", Qt::CTRL | Qt::Key_E);

  AddViewItems();
  AddGameItems();

  mnuAbout = AddItem(*mnuHelp, "mnuAbout", "&About", "about");
  mnuThanks = AddItem(*mnuHelp, "mnuThanks", "&Thanks to...", nullptr);

  // In none of the menus, whose items players know; the key works in the planet grid, too.
  mnuManual = new QAction("&Manual", &bar);
  mnuManual->setObjectName("mnuManual");
  mnuManual->setShortcut(Qt::Key_F1);
  mnuManual->setShortcutContext(Qt::ApplicationShortcut);
  bar.parentWidget()->addAction(mnuManual);
}

void MainMenu::AddViewItems() {
  QMenu& menu = *ViewMenu;
  ViewZoomIn = AddItem(menu, "ViewZoomIn", "Zoom &In", "zoom-in");
  // The plus sign is a shifted key on many keyboards.
  ViewZoomIn->setShortcuts({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal});
  ViewZoomOut = AddItem(menu, "ViewZoomOut", "Zoom &Out", "zoom-out", Qt::CTRL | Qt::Key_Minus);
  ViewWholeUniverse =
      AddItem(menu, "ViewWholeUniverse", "&Whole Universe", "whole-universe", Qt::CTRL | Qt::Key_0);
  ViewZoomToSelected = AddItem(menu, "ViewZoomToSelected", "Zoom to &Selected Planet",
                               "zoom-to-selected", Qt::CTRL | Qt::Key_J);
  menu.addSeparator();
  ViewBack = AddItem(menu, "ViewBack", "&Back", "back", Qt::ALT | Qt::Key_Left);
  ViewForward = AddItem(menu, "ViewForward", "&Forward", "forward", Qt::ALT | Qt::Key_Right);
  menu.addSeparator();
  ViewOutlineNames = AddSwitch(menu, "ViewOutlineNames", "Outline &Names");
  ViewFewerNames = AddSwitch(menu, "ViewFewerNames", "&Fewer Names");
  ViewGatesOfSelected =
      AddSwitch(menu, "ViewGatesOfSelected", "Gates of the Selected &Planet Only");
  ViewNumbersInLegend = AddSwitch(menu, "ViewNumbersInLegend", "Numbers in the Legend");
  ViewOverlaySets = AddSubmenu(menu, "ViewOverlaySets", "Overlay Sets");
  menu.addSeparator();
  ViewPlanets = AddSwitch(menu, "ViewPlanets", "&Planets", Qt::Key_F3);
  ViewKey = AddSwitch(menu, "ViewKey", "&Key to the Map", Qt::Key_F2);
  ViewDistances = AddSwitch(menu, "ViewDistances", "&Distances", Qt::Key_F8);
  ViewChanges = AddSwitch(menu, "ViewChanges", "What &Changed", Qt::Key_F4);
  ViewYears = AddSwitch(menu, "ViewYears", "&Years", Qt::Key_F6);
  ViewKeepDestination =
      AddItem(menu, "ViewKeepDestination", "Keep as destination", nullptr, Qt::CTRL | Qt::Key_D);
  ViewPlanet = new PlanetMenu("Planet", &menu);
  ViewPlanet->setObjectName("ViewPlanet");
  ViewPlanet->menuAction()->setObjectName("ViewPlanet");
  menu.addMenu(ViewPlanet);
}

void MainMenu::AddGameItems() {
  QMenu& menu = *GameMenu;
  GameReload = AddItem(menu, "GameReload", "&Reload", "reload", Qt::Key_F5);
  GameReload->setEnabled(false);
  GameRecent = AddSubmenu(menu, "GameRecent", "Open &Recent");
  GameReopenAtStart = AddSwitch(menu, "GameReopenAtStart", "Reopen Last Game at &Start");
  GameReloadByItself = AddSwitch(menu, "GameReloadByItself", "Reload by Itself");
  menu.addSeparator();
  GameReports = AddSwitch(menu, "GameReports", "Reports ...", Qt::Key_F7);
  menu.addSeparator();
  GameKeepHistory = AddSwitch(menu, "GameKeepHistory", "Keep a &History");
  GameImportYears = AddItem(menu, "GameImportYears", "&Import Earlier Years ...", nullptr);
  GameForgetHistory =
      AddItem(menu, "GameForgetHistory", "&Forget This Game's History ...", nullptr);
  menu.addSeparator();
  GameColoursForEveryEye =
      AddItem(menu, "GameColoursForEveryEye", "Race Colours for Every Eye", nullptr);
  GameDefaultColours = AddItem(menu, "GameDefaultColours", "&Default Race Colours", nullptr);
}

}  // namespace quorvane

#pragma once

#include <gtest/gtest.h>

#include <QTest>

#include "support/game_folder.h"
#include "support/scripted_prompts.h"
#include "support/window_driver.h"
#include "ui/details_panel.h"
#include "ui/main_window.h"
#include "ui/map_panel.h"

namespace quorvane {

/// "Load Data", and in the open dialog the map, a year and the load button.
inline void LoadGame(WindowDriver& driver, const char* map) {
  InNextDialog([map](QWidget& opened) {
    WindowDriver dialog(opened);
    dialog.ClickEntry("File1", map).Type("txtGameYear", "2450").Click("Command1");
  });
  driver.Choose("mnuMap");
}

/// The program's main window on a folder with a small game.
class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() : window(folder.Path(), &prompts) {
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void Load() { LoadGame(driver, "Demo.MAP"); }
  void OpenTools() { window.Detail->setCurrentWidget(window.Detail->Tools); }
  // Gives the keyboard back to the window, which a hidden dialog has kept.
  void Activate() {
    window.activateWindow();
    QApplication::processEvents();
  }

  // The pixel of the map where a place in game coordinates is shown.
  QPoint At(GamePoint place) {
    const MapView& view = window.Map->State().View;
    const SurfacePoint at = view.ToSurface({place.X - 1000, view.UniverseExtent - place.Y});
    return window.Map->Universe->WidgetPoint(at).toPoint();
  }

  QImage Map() { return driver.Find<PictureBox>("Universe").Surface().Picture(); }
  bool IsBlank(const QImage& picture) {
    QImage blank(picture.size(), picture.format());
    blank.fill(Qt::black);
    return picture == blank;
  }

  GameFolder folder;
  ScriptedPrompts prompts;
  Main window;
  WindowDriver driver{window};
};

/// The same with the game loaded.
class LoadedGameTest : public MainWindowTest {
 protected:
  LoadedGameTest() { Load(); }
};

}  // namespace quorvane

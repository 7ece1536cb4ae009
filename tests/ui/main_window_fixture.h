#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "support/game_folder.h"
#include "support/scripted_prompts.h"
#include "support/window_driver.h"
#include "ui/main_window.h"
#include "ui/map_panel.h"

namespace quorvane {

/// The program's main window on a folder with a small game.
class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() : window(folder.Path(), &prompts) {
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  WindowDriver Driver() { return WindowDriver(window); }

  // "Load Data", and in the open dialog the map, a year and the load button.
  void Load() {
    QTimer::singleShot(0, &window, [this] {
      WindowDriver dialog(*QApplication::activeModalWidget());
      dialog.ClickEntry("File1", "Demo.MAP").Type("txtGameYear", "2450").Click("Command1");
    });
    Driver().Choose("mnuMap");
  }

  // The pixel of the map where a place in game coordinates is shown.
  QPoint At(GamePoint place) {
    const MapView& view = window.Map->State().View;
    const SurfacePoint at = view.ToSurface({place.X - 1000, view.UniverseExtent - place.Y});
    return window.Map->Universe->WidgetPoint(at).toPoint();
  }
  void MovePointer(QPoint to) { Driver().MoveTo("Universe", to); }

  QImage Map() { return Driver().Find<PictureBox>("Universe").Surface().Picture(); }
  bool IsBlank(const QImage& picture) {
    QImage blank(picture.size(), picture.format());
    blank.fill(Qt::black);
    return picture == blank;
  }

  GameFolder folder;
  ScriptedPrompts prompts;
  Main window;
};

}  // namespace quorvane

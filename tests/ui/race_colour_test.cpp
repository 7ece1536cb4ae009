#include "ui/race_colour.h"

#include <functional>

#include "ui/legend.h"
#include "ui/main_window_fixture.h"

namespace quorvane {
namespace {

class RaceColourTest : public MainWindowTest {
 protected:
  RaceColourTest() { Load(); }

  // Clicks a swatch and works the dialog that opens.
  void ChangeColour(const QString& swatch, const std::function<void(RaceColour&)>& work) {
    QTimer::singleShot(0, &window, [work] {
      work(dynamic_cast<RaceColour&>(*QApplication::activeModalWidget()));
    });
    Driver().ClickAt(swatch, {5, 5});
  }
  QColor Swatch(const QString& name) {
    return Driver().Find<PictureBox>(name).Surface().Picture().pixelColor(1, 1);
  }
};

TEST_F(RaceColourTest, NewColourShowsOnMapAndLegendAndComesBackWithTheNextLoad) {
  Driver().Click("OvButt(4)").Click("OvButt(6)");
  EXPECT_EQ(window.Session().BordersCached, 1);
  ChangeColour("RaceC(1)", [](RaceColour& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Edit Race Colour for: Drask");
    EXPECT_EQ(dialog.PN->text() + " " + dialog.PN2->text(), "1 2");
    EXPECT_EQ(dialog.GreenSlide->value(), 255);
    dialog.RedSlide->setValue(10);
    dialog.BlueSlide->setValue(200);
    const QImage preview = dialog.Picture1->Surface().Picture();
    EXPECT_EQ(preview.pixelColor(66, 63), QColor(10, 255, 200));
    EXPECT_EQ(preview.pixelColor(66, 3), QColor(1, 36, 29)) << "the seventh disc";
    WindowDriver(dialog).Click("butOK");
  });
  EXPECT_EQ(Map().pixelColor(At({1300, 1100})), QColor(10, 255, 200));
  EXPECT_EQ(Swatch("RaceC(1)"), QColor(10, 255, 200));
  EXPECT_EQ(window.Session().BordersCached, 1) << "painted anew";
  Driver().Choose("mnuSaveRaceC");
  Load();
  EXPECT_EQ(window.Session().RaceColours[1], (Colour{10, 255, 200}));
}

TEST_F(RaceColourTest, DarkColoursAreRefusedAndClosingStoresNothing) {
  ChangeColour("RaceC(0)", [](RaceColour& dialog) {
    dialog.RedSlide->setValue(100);
    dialog.GreenSlide->setValue(91);
    EXPECT_FALSE(dialog.butOK->isEnabled()) << 191;
    dialog.GreenSlide->setValue(92);
    EXPECT_TRUE(dialog.butOK->isEnabled()) << 192;
    dialog.reject();
  });
  EXPECT_EQ(window.Session().RaceColours[0], (Colour{255, 0, 0}));
  EXPECT_EQ(Swatch("RaceC(0)"), QColor(255, 0, 0));
}

TEST_F(RaceColourTest, SwatchWorksByKeyboardAndDoesNothingForAnUnknownRace) {
  bool isOpen = false;
  QTimer::singleShot(0, &window, [&isOpen] {
    isOpen = true;
    QApplication::activeModalWidget()->close();
  });
  Driver().Press("RaceC(0)", Qt::Key_Space);
  EXPECT_TRUE(isOpen);
  Driver().Find<QLabel>("Race(0)").setText("Nobody");
  Driver().ClickAt("RaceC(0)", {5, 5});  // would wait for a dialog for ever
}

}  // namespace
}  // namespace quorvane

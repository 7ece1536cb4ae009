#include "ui/race_colour.h"

#include "ui/legend.h"
#include "ui/main_window_fixture.h"

namespace quorvane {
namespace {

class RaceColourTest : public LoadedGameTest {
 protected:
  QColor Swatch(const QString& name) {
    return driver.Find<PictureBox>(name).Surface().Picture().pixelColor(1, 1);
  }
};

TEST_F(RaceColourTest, NewColourShowsOnMapAndLegend) {
  driver.Click("OvButt(4)");
  InNextDialog<RaceColour>([](RaceColour& dialog) {
    dialog.RedSlide->setValue(10);
    dialog.BlueSlide->setValue(200);
    EXPECT_EQ(dialog.Picture1->Surface().Picture().pixelColor(66, 63), QColor(10, 255, 200));
    dialog.butOK->click();
  });
  driver.ClickAt("RaceC(1)", {5, 5});
  EXPECT_EQ(Map().pixelColor(At({1300, 1130})), QColor(10, 255, 200)) << "the kept borders as well";
  EXPECT_EQ(Swatch("RaceC(1)"), QColor(10, 255, 200));
}

TEST_F(RaceColourTest, DarkColoursAreRefusedAndClosingStoresNothing) {
  InNextDialog<RaceColour>([](RaceColour& dialog) {
    dialog.RedSlide->setValue(100);
    dialog.GreenSlide->setValue(91);
    EXPECT_FALSE(dialog.butOK->isEnabled()) << 191;
    dialog.GreenSlide->setValue(92);
    EXPECT_TRUE(dialog.butOK->isEnabled()) << 192;
    dialog.reject();
  });
  driver.ClickAt("RaceC(0)", {5, 5});
  EXPECT_EQ(window.Session().RaceColours[0], (Colour{255, 0, 0}));
  EXPECT_EQ(Swatch("RaceC(0)"), QColor(255, 0, 0));
  const QImage before = driver.Find("RaceC(0)").grab().toImage();
  InNextDialog<RaceColour>([](RaceColour& dialog) { dialog.butOK->click(); });
  driver.ClickAt("RaceC(0)", {5, 5});
  EXPECT_NE(driver.Find("RaceC(0)").grab().toImage(), before) << "discs have outlines now";
  Load();
  EXPECT_EQ(driver.Find("RaceC(0)").grab().toImage(), before);
}

TEST_F(RaceColourTest, FrameOfTheFocusIsSeenWholeAboveTheNextSwatch) {
  const QWidget& swatch = driver.Find("RaceC(0)");
  const QPoint belowRight(swatch.geometry().right(), driver.Find("RaceC(1)").y() - 1);
  Activate();
  driver.Find("RaceC(0)").setFocus();
  const QImage shown = swatch.parentWidget()->grab().toImage();
  EXPECT_EQ(shown.pixel(swatch.pos()), QColor(Qt::white).rgb());
  EXPECT_EQ(shown.pixel(belowRight), QColor(Qt::white).rgb());
}

}  // namespace
}  // namespace quorvane

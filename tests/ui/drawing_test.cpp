#include <QPlainTextEdit>
#include <QPushButton>
#include <tuple>

#include "ui/details_panel.h"
#include "ui/drawing_board.h"
#include "ui/main_window_fixture.h"

namespace quorvane {
namespace {

class DrawingTest : public LoadedGameTest {
 protected:
  DrawingTest() {
    OpenTools();
    Activate();
  }

  QPlainTextEdit& Plot() { return driver.Find<QPlainTextEdit>("PlotBox"); }
  std::string Layer() { return Plot().toPlainText().toStdString(); }
  // Whether a thin shape runs through a place.
  bool Passes(GamePoint place, QColor colour) {
    for (int x = -1; x <= 1; ++x) {
      for (int y = -1; y <= 1; ++y) {
        if (Map().pixelColor(At(place) + QPoint(x, y)) == colour) return true;
      }
    }
    return false;
  }
  bool IsSaveWanted() { return driver.Find("SaveQVL").property("attention").toBool(); }
};

TEST_F(DrawingTest, TwoClicksMakeALineInTheColourChosenLast) {
  driver.Click("Draw(2)").ClickAt("Universe", At({1100, 1300}));
  EXPECT_TRUE(driver.IsVisible("DrawLine"));
  driver.Click("DColour(2)");
  driver.MoveTo("Universe", At({1200, 1250})).ClickAt("Universe", At({1300, 1300}));
  EXPECT_FALSE(driver.IsVisible("DrawLine"));
  EXPECT_TRUE(Passes({1200, 1300}, Qt::green));
  EXPECT_TRUE(Layer().starts_with("L,") && Layer().ends_with(",3\n")) << Layer();
  EXPECT_EQ(driver.Text("PlanetName"), "") << "no details while drawing";
  EXPECT_TRUE(IsSaveWanted());
}

TEST_F(DrawingTest, ShapeDrawnWhileAZoomBoxIsOpenIsRecordedWhereItIsDrawn) {
  driver.Click("OvButt(1)").ClickAt("Universe", At({1200, 1300})).Click("Draw(2)");
  driver.ClickAt("Universe", At({1100, 1250})).ClickAt("Universe", At({1300, 1250}));
  EXPECT_TRUE(Passes({1200, 1250}, Qt::white));
  EXPECT_EQ(Layer(), "L,1099,1251,1300,1251,1\n") << "to the pixel that was clicked";
}

TEST_F(DrawingTest, ShapeInProgressIsFinishedByTheToolThatIsSelectedThen) {
  driver.Click("Draw(2)").ClickAt("Universe", At({1200, 1200})).Click("Draw(0)");
  driver.ClickAt("Universe", At({1050, 1300}));
  EXPECT_EQ(driver.Text("PlanetName"), "Alpha");
  EXPECT_TRUE(driver.IsVisible("DrawLine"));
  driver.Click("Draw(1)").ClickAt("Universe", At({1200, 1240}));
  EXPECT_EQ(Layer().substr(0, 2), "C,");
  EXPECT_TRUE(Passes({1200, 1160}, Qt::white));
  EXPECT_FALSE(Passes({1200, 1200}, Qt::white)) << "not filled";
}

TEST_F(DrawingTest, TextIsAskedForAndRefusedWhereItsFileCouldNotHoldIt) {
  const std::tuple<const char*, const char*, const char*, std::size_t> cases[] = {
      {"Home, sweet home", "8", ",\"Home, sweet home\",8,1\n", 2},
      {"Fleet", "7.9", "", 2},
      {"", "8", "", 2},
      {"say \"hello\"", "8", "", 3}};
  driver.Click("Draw(3)");
  for (const auto& [text, size, ending, messages] : cases) {
    window.Detail->Tools->Layer->Clear();
    prompts = {};
    prompts.AnswerText(text);
    prompts.AnswerText(size);
    driver.ClickAt("Universe", At({1100, 1300}));
    EXPECT_EQ(Layer().empty(), std::string(ending).empty()) << text;
    EXPECT_TRUE(Layer().ends_with(ending)) << Layer();
    EXPECT_EQ(prompts.Shown().size(), messages) << text;
  }
  EXPECT_FALSE(IsBlank(Map()));
}

TEST_F(DrawingTest, LayerIsSavedShownClearedAndReadAnew) {
  driver.Click("OvButt(10)");
  EXPECT_EQ(prompts.Shown(), Texts{"No file found for this map"});
  EXPECT_FALSE(driver.IsDown("OvButt(10)"));

  Plot().setPlainText("C,1200,1200,40,2\nX,1\nL , 1100 , 1100,1300,1100, 4");
  EXPECT_TRUE(IsSaveWanted());
  driver.Click("SaveQVL");
  EXPECT_EQ(prompts.Shown(), Texts{"Saved to " + (folder / "Demo.QVL").string()});
  EXPECT_EQ(folder.Read("Demo.QVL"), "C,1200,1200,40,2\r\nX,1\r\nL , 1100 , 1100,1300,1100, 4\r\n");
  EXPECT_FALSE(IsSaveWanted());

  driver.Click("DColour(5)").Click("Draw(2)").Click("OvButt(10)");
  EXPECT_EQ(Layer(), "C,1200,1200,40,2\nL,1100,1100,1300,1100,4\n");
  EXPECT_TRUE(Passes({1200, 1160}, Qt::red) && Passes({1200, 1100}, Qt::blue));
  EXPECT_TRUE(driver.IsDown("DColour(0)") && driver.IsDown("Draw(0)"));

  driver.Click("ClearQVL");
  EXPECT_EQ(Layer(), "");
  EXPECT_FALSE(driver.IsDown("OvButt(10)"));
  EXPECT_TRUE(IsBlank(Map()) && IsSaveWanted());
  driver.Click("SaveQVL").Click("OvButt(10)");
  EXPECT_TRUE(driver.IsDown("OvButt(10)")) << "a file, though empty";
}

TEST_F(DrawingTest, ResizedMapKeepsWhatWasDrawnSinceItsRedrawAndALoadGoesOnInItsColour) {
  driver.Click("DColour(1)").Click("Draw(2)").ClickAt("Universe", At({1100, 1300}));
  driver.ClickAt("Universe", At({1300, 1300}));
  window.resize(1100, 700);
  EXPECT_TRUE(Passes({1200, 1300}, Qt::red));
  driver.Click("OvButt(2)").Click("OvButt(2)");
  EXPECT_FALSE(Passes({1200, 1300}, Qt::red));
  const std::string layer = "T,1200,1200,no\u00A0break\u2028,8,2\r\nC,1200,1200,40,6\r\n";
  folder.Write("Demo.QVL", layer);
  Load();
  EXPECT_TRUE(Layer().ends_with("C,1200,1200,40,6\n"));
  EXPECT_TRUE(driver.IsDown("DColour(5)") && driver.IsDown("Draw(0)"));
  EXPECT_FALSE(IsSaveWanted());
  driver.Press("PlotBox", Qt::Key_X);
  EXPECT_TRUE(IsSaveWanted());
  driver.Press("PlotBox", Qt::Key_Backspace);
  EXPECT_FALSE(IsSaveWanted());
  driver.Click("SaveQVL");
  EXPECT_EQ(folder.Read("Demo.QVL"), layer);
}

}  // namespace
}  // namespace quorvane

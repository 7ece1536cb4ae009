#include "ui/years_dock.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QTest>
#include <QWheelEvent>
#include <tuple>

#include "support/window_driver.h"

namespace quorvane {
namespace {

constexpr const char* kName = "<b>&x</b>";

class YearsDockTest : public testing::Test {
 protected:
  YearsDockTest() {
    window.addDockWidget(Qt::RightDockWidgetArea, dock);
    window.resize(360, 600);
    window.show();
    QObject::connect(dock, &YearsDock::YearChosen, [this](int year) {
      chosen << year;
      if (chosen.size() == refused) dock->ShowYear(2405);
    });
    QObject::connect(dock, &YearsDock::BackAsked, [this] { chosen << 0; });
    dock->ShowYears({2400, 2402, 2403, 2405}, 2405, 2405);
  }
  void ShowCurves() {
    dock->ShowCurves({{2400, "A", {}, 1, 5000000},
                      {2402, "A", {}, 2, 30},
                      {2402, kName, {}, 7, 1234567},
                      {2403, "A", {}, 3, 20},
                      {2405, kName, {}, 9, 80}});
  }

  QMainWindow window;
  YearsDock* dock = new YearsDock(&window);
  WindowDriver driver{*dock};
  QList<int> chosen;
  int refused = 0;  // which choice cannot be shown
};

TEST_F(YearsDockTest, SliderChoosesYearsAndFollowsQuietly) {
  driver.Press("YearsSlider", Qt::Key_Home).Press("YearsSlider", Qt::Key_Right);
  auto& slider = driver.Find<QSlider>("YearsSlider");
  QWheelEvent notch(slider.rect().center(), slider.mapToGlobal(slider.rect().center()), {},
                    QPoint(0, 120), Qt::NoButton, {}, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&slider, &notch);
  EXPECT_EQ(chosen, (QList<int>{2400, 2402, 2403}));
  EXPECT_EQ(driver.Text("YearsShown"), "Year 2403");
  driver.Click("YearsBack");
  EXPECT_EQ(chosen.takeLast(), 0);
  dock->ShowYear(2405);
  EXPECT_FALSE(driver.IsEnabled("YearsBack"));
  EXPECT_EQ(slider.value(), 3);
  EXPECT_EQ(chosen.size(), 3);
}

TEST_F(YearsDockTest, PlayingShowsEachYearAndStopsAtTheLast) {
  driver.Find<QSpinBox>("YearsSpeed").setValue(10);
  driver.Click("YearsPlay");
  EXPECT_EQ(chosen, QList<int>{2400}) << "from the last year on, it begins with the first";
  EXPECT_TRUE(QTest::qWaitFor([this] { return !dock->IsPlaying(); }));
  EXPECT_EQ(chosen, (QList<int>{2400, 2402, 2403, 2405}));

  refused = 6;
  driver.Click("YearsPlay");
  EXPECT_TRUE(QTest::qWaitFor([this] { return !dock->IsPlaying(); }));
  EXPECT_EQ(chosen.size(), 6) << "a year that cannot be shown is not asked for again";

  driver.Click("YearsPlay");
  dock->hide();
  EXPECT_FALSE(dock->IsPlaying());
}

TEST_F(YearsDockTest, CurvesHaveGapsAndHiddenRacesStayHidden) {
  ShowCurves();
  driver.Find<QComboBox>("YearsCurve").setCurrentText("Population");
  auto& chart = driver.Find<CurveChart>("YearsChart");
  EXPECT_EQ(chart.chart()->series().size(), 3) << "one line, and the dots of each race";
  EXPECT_EQ(chart.ValuesText(2402), QString("2402\n") + kName + ": 1,234,567\nA: 30");
  const QRectF area = chart.chart()->plotArea();
  for (const auto& [share, year] :
       {std::pair(-1.0, 2400), {0.3, 2402}, {0.75, 2403}, {9.0, 2405}}) {
    EXPECT_EQ(chart.YearAt({qRound(area.left() + share * area.width()), 50}), year);
  }

  auto& races = driver.Find<QListWidget>("YearsRaces");
  driver.Press("YearsRaces", Qt::Key_Space);
  ShowCurves();
  EXPECT_EQ(chart.ValuesText(2402), QString("2402\n") + kName + ": 1,234,567");
  EXPECT_EQ(chart.YearAt({0, 50}), 2402) << "nothing is shown of the years before";
  driver.Press("YearsRaces", Qt::Key_Space);
  for (const int column : {3, 60}) {  // on the check mark, and on the name
    const QRect entry = races.visualItemRect(races.item(1));
    QTest::mouseClick(races.viewport(), Qt::LeftButton, {},
                      {entry.left() + column, entry.center().y()});
    EXPECT_EQ(chart.Shown().size(), column == 3 ? 1U : 2U);
  }
}

TEST_F(YearsDockTest, OffersWhatTheYearsAllow) {
  using Years = std::vector<int>;
  const std::tuple<Years, bool, bool, bool> cases[] = {{{}, false, false, false},
                                                       {{2405}, false, false, false},
                                                       {{2405}, true, true, false},
                                                       {{2400, 2405}, false, true, true}};
  for (const auto& [years, hasCurves, isHistory, canPlay] : cases) {
    dock->ShowYears(years, 2405, 2405);
    dock->ShowCurves({});
    if (hasCurves) ShowCurves();
    EXPECT_EQ(driver.IsVisible("YearsNone"), !isHistory) << years.size();
    EXPECT_EQ(driver.IsVisible("YearsPlay"), isHistory) << years.size();
    EXPECT_EQ(driver.IsEnabled("YearsPlay"), canPlay) << years.size();
    EXPECT_EQ(driver.IsEnabled("YearsSaveTable"), hasCurves) << years.size();
  }
}

}  // namespace
}  // namespace quorvane

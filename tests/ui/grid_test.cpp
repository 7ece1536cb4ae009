#include "ui/grid.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <tuple>

#include "paint/twips.h"
#include "support/game_builder.h"
#include "support/window_driver.h"
#include "ui/show_hide.h"

namespace quorvane {
namespace {

constexpr int kX = 1;
constexpr int kName = 3;
constexpr int kOwner = 4;
constexpr int kAge = 6;
constexpr int kPopulation = 7;

class GridTest : public testing::Test {
 protected:
  GridTest() {
    GameBuilder game;
    game.Planet("delta", {1100, 1200}).OwnedBy("Veldt").With(PlanetField::Population, "900");
    game.Planet("Beta", {1200, 1200}).With(PlanetField::Population, "1000");
    game.Planet("alpha", {1300, 1200}).With(PlanetField::Population, "Uninhabited");
    game.Planet("Gamma", {1400, 1200}).OwnedBy("Halvorane").With(PlanetField::Population, "1000");
    session = game.Build();
    grid.Fill(session);
    grid.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
  }

  void ClickHeading(int column, Qt::MouseButton button) {
    const QHeaderView& heading = *grid.DG->horizontalHeader();
    const int x = heading.sectionViewportPosition(column) + heading.sectionSize(column) / 2;
    QTest::mouseClick(heading.viewport(), button, {}, QPoint(x, heading.height() / 2));
  }

  QModelIndex Cell(int row, int column) const { return grid.DG->model()->index(row, column); }
  // One column's cells from top to bottom.
  QString Column(int column) const {
    QStringList cells;
    for (int row = 0; row < 4; ++row) cells << Cell(row, column).data().toString();
    return cells.join(",");
  }

  // Opens the chooser, works it and closes it with a key.
  template <typename Work>
  void UseChooser(Qt::Key closingKey, const Work& work) {
    InNextDialog<ShowHide>([=](ShowHide& chooser) {
      work(*chooser.ShowHideList);
      QTest::keyClick(chooser.ShowHideList, closingKey);
    });
    grid.mnuSH->trigger();
  }

  GameSession session;
  Grid grid;
};

TEST_F(GridTest, ClickOnAHeadingSortsWholeRowsByButton) {
  const std::tuple<int, Qt::MouseButton, const char*> clicks[] = {
      {kPopulation, Qt::LeftButton, "delta,Beta,Gamma,alpha"},
      {kPopulation, Qt::RightButton, "alpha,Beta,Gamma,delta"},
      {kOwner, Qt::MiddleButton, "delta,Gamma,alpha,Beta"}};
  for (const auto& [column, button, names] : clicks) {
    ClickHeading(column, button);
    EXPECT_EQ(Column(kName), names);
    EXPECT_EQ(grid.DG->currentIndex().column(), column);
  }
  EXPECT_EQ(Column(kX), "1100,1400,1300,1200");
  EXPECT_EQ(Cell(0, kX).data(Qt::BackgroundRole).value<QBrush>().color(), QColor(85, 0, 0));
  EXPECT_EQ(Cell(0, kX).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(Qt::white));
}

TEST_F(GridTest, KeysSortByTheCurrentColumnAndTheCursorStaysOnItsPlanet) {
  grid.DG->setCurrentIndex(Cell(0, kName));
  QTest::keyClick(grid.DG, Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Column(kName), "Gamma,delta,Beta,alpha");
  EXPECT_EQ(grid.DG->currentIndex().data(), "delta");
  QTest::keyClick(grid.DG, Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Column(kName), "alpha,Beta,delta,Gamma");
  QTest::keyClick(grid.DG, Qt::Key_Escape);
  EXPECT_FALSE(grid.isVisible());
}

TEST_F(GridTest, ClickBelowTheHeadingOrADragOfItsEdgeSortsNothing) {
  QTest::mouseClick(grid.DG->viewport(), Qt::RightButton, {},
                    grid.DG->visualRect(Cell(2, kName)).center());
  const QHeaderView& heading = *grid.DG->horizontalHeader();
  const QPoint edge(heading.sectionViewportPosition(kOwner) - 1, 10);
  QTest::mousePress(heading.viewport(), Qt::LeftButton, {}, edge);
  QTest::mouseRelease(heading.viewport(), Qt::LeftButton, {}, edge + QPoint(30, 0));
  EXPECT_EQ(Column(kName), "delta,Beta,alpha,Gamma");
}

TEST_F(GridTest, AgeOfMoreThanTenYearsIsShownWholeAndWhatIsCutIsToldInATooltip) {
  // The dot stands for what other ways of smoothing letters add to their width.
  session.Planet(2)[PlanetField::AgeText] = "28 years old.";
  session.Planet(2)[PlanetField::Name] = std::string(60, 'x');
  grid.Fill(session);
  const QRect age = grid.DG->visualRect(Cell(1, kAge));
  const QImage narrow = grid.DG->viewport()->grab(age).toImage();
  grid.DG->setColumnWidth(kAge, 2 * age.width());
  EXPECT_EQ(grid.DG->viewport()->grab(age).toImage(), narrow);
  const std::pair<int, QString> cases[] = {{kAge, ""}, {kName, QString(60, 'x')}};
  for (const auto& [column, told] : cases) {
    const QPoint at = grid.DG->visualRect(Cell(1, column)).center();
    QHelpEvent rest(QEvent::ToolTip, at, grid.DG->viewport()->mapToGlobal(at));
    QApplication::sendEvent(grid.DG->viewport(), &rest);
    EXPECT_EQ(QToolTip::text(), told) << column;
  }
}

TEST_F(GridTest, ChooserHidesAndShowsColumnsAtOnceUntilTheNextFilling) {
  UseChooser(Qt::Key_Return, [&](QListWidget& list) {
    EXPECT_EQ(list.item(25)->text(), "Halvorane\r\nEst Hab %");
    QTest::keyClick(&list, Qt::Key_Space);
    EXPECT_EQ(grid.ColumnWidth(kX), 0);
    const QRect name = list.visualItemRect(list.item(kName - 1));
    for (const int width : {0, 960}) {
      QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, name.topLeft() + QPoint(10, 8));
      EXPECT_EQ(grid.ColumnWidth(kName), width);
    }
  });
  UseChooser(Qt::Key_Escape, [&](QListWidget& list) {
    EXPECT_EQ(list.item(kX - 1)->checkState(), Qt::Unchecked);
    EXPECT_EQ(list.item(kName - 1)->checkState(), Qt::Checked);
  });
  EXPECT_EQ(grid.ColumnWidth(kX), 0);
  grid.Fill(session);
  EXPECT_EQ(grid.ColumnWidth(kX), 795);  // 800 twips in whole pixels
  EXPECT_EQ(grid.ColumnWidth(kName), 1245);
}

TEST_F(GridTest, TableFollowsTheOuterSizeAndTheWindowNeverGetsTooSmall) {
  for (const QSize size : {QSize(900, 500), QSize(67, 67)}) {
    grid.resize(size);
    EXPECT_EQ(grid.size(), size.expandedTo({133, 133}));
    const QSize outer = grid.frameGeometry().size();
    EXPECT_NEAR(TwipsFromPixels(grid.DG->width()), TwipsFromPixels(outer.width()) - 135, 8);
    EXPECT_NEAR(TwipsFromPixels(grid.DG->height()), TwipsFromPixels(outer.height()) - 700, 8);
  }
}

}  // namespace
}  // namespace quorvane

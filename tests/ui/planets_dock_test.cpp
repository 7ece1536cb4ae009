#include <QClipboard>
#include <QFile>
#include <QMenu>
#include <algorithm>

#include "screens/planet_details.h"
#include "ui/manual.h"
#include "ui/planets_fixture.h"

namespace quorvane {
namespace {

INSTANTIATE_TEST_SUITE_P(BothStyles, PlanetsTest,
                         testing::Values(kNewReportStyle, kOldReportStyle));

// The same in a game of the new style alone.
class NewStylePlanetsTest : public PlanetsTest {
 protected:
  int Style() const override { return kNewReportStyle; }
};

TEST(SearchExamples, StandInTheManual) {
  const Manual manual;  // whose resource is there from now on
  QFile file(":/manual.md");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const std::string text = file.readAll().toStdString();
  for (const auto& [query, meaning] : SearchExamples()) {
    const std::string row = "| `" + std::string(query) + "` | " + std::string(meaning) + " |";
    EXPECT_NE(text.find(row), std::string::npos) << row;
  }
}

TEST_P(PlanetsTest, SelectionIsOneInTheListAndOnTheMap) {
  ClickRow(12);
  EXPECT_EQ(Selected(), 13);
  EXPECT_EQ(driver->Text("PlanetName"), ToQString(Session().Planet(13).Name()));
  EXPECT_TRUE(driver->IsVisible("CurrentSelected"));
  ClickPlanet(40);
  EXPECT_EQ(List().CurrentPlanet(), 40);
  EXPECT_EQ(List().selectionModel()->selectedRows().size(), 1);
  const std::vector<int> unowned = Found("owner:none");
  Search("not owner:none");
  ClickPlanet(unowned[3]);
  EXPECT_EQ(List().CurrentPlanet(), 0) << "it is not listed";
  Search(" ");
  EXPECT_EQ(List().CurrentPlanet(), unowned[3]);
  driver->Choose("mnuHideSelect");
  EXPECT_FALSE(List().selectionModel()->hasSelection());
}

TEST_P(PlanetsTest, FindsSortsAndMarks) {
  driver->Click("PlanetsMark");
  EXPECT_FALSE(driver->IsVisible("FoundRings")) << "nothing is searched for";
  for (const char* search : {"hab>=20", "owned pop>200k", "not unexplored (iron>60 or germ>60)"}) {
    Search(search);
    const std::vector<int> found = Found(search);
    EXPECT_EQ(Listed(), found) << search;
    EXPECT_EQ(driver->Text("PlanetsSummary"), QString("%1 of 90 planets").arg(found.size()));
    std::vector<SurfacePoint> places;
    for (const int planet : found) {
      places.push_back(PositionOf(Session().Planet(planet), window->Map->State().View));
    }
    EXPECT_EQ(window->Map->FoundRings->Centres(), places);
  }
  ClickHeading("Owner");
  ClickHeading("Population", Qt::ControlModifier);
  ClickHeading("Population", Qt::ControlModifier);
  std::vector<int> sorted = Found("not unexplored (iron>60 or germ>60)");
  std::ranges::stable_sort(sorted, [this](int left, int right) {
    const PlanetRecord& first = Session().Planet(left);
    const PlanetRecord& second = Session().Planet(right);
    const int owners = first.Owner().compare(second.Owner());
    return owners != 0 ? owners < 0 : first.Population() > second.Population();
  });
  EXPECT_EQ(Listed(), sorted);
  window->PlanetsDock->close();
  EXPECT_FALSE(driver->IsVisible("FoundRings"));
}

TEST_P(PlanetsTest, AKeyboardIsEnough) {
  driver->Choose("ViewPlanets").Choose("ViewPlanets");
  auto& line = driver->Find<SearchLine>("SearchLine");
  EXPECT_TRUE(line.hasFocus());
  QTest::keyClicks(&line, "owned");
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_TRUE(List().hasFocus());
  QTest::keyClick(&List(), Qt::Key_Down);
  const int planet = Found("owned")[1];
  EXPECT_EQ(Selected(), planet);
  QTest::keyClick(&List(), Qt::Key_Return);
  EXPECT_TRUE(window->Map->State().View.Contains(Session().Planet(planet).X(),
                                                 Session().Planet(planet).Y()));
  EXPECT_EQ(window->Map->State().View.WidthShown(), 200);
  QTest::keyClick(&List(), Qt::Key_C, Qt::ControlModifier);
  const QStringList copied = QApplication::clipboard()->text().split('\t');
  EXPECT_EQ(copied[0], ToQString(Session().Planet(planet).Name()));
  EXPECT_EQ(copied.size(), static_cast<int>(List().Table().Columns.size()));
  EXPECT_TRUE(copied.last().endsWith("\r\n"));
  QTest::keyClick(&List(), Qt::Key_Escape);
  EXPECT_TRUE(window->Map->Universe->hasFocus());
}

TEST_F(NewStylePlanetsTest, AWrongSearchIsMarkedAndTheLastGoodOneStays) {
  Search("pop>100k");
  const std::vector<int> found = Listed();
  EXPECT_EQ(found, Found("pop>100k"));
  auto& line = driver->Find<SearchLine>("SearchLine");
  line.setText("pop>100k hab(Drusk)>5");
  EXPECT_EQ(line.Marked(), std::pair(13, 5));
  EXPECT_EQ(driver->Text("SearchFault"), "No race is called \"Drusk\".");
  EXPECT_EQ(Listed(), found);
  line.setText("üü (mine");
  EXPECT_EQ(line.Marked(), std::pair(3, 1)) << "in characters";
  Search("mine");
  EXPECT_EQ(line.Marked().second, 0);
  EXPECT_FALSE(driver->IsVisible("SearchFault"));
}

TEST_F(NewStylePlanetsTest, CompletesTheWordThatIsTyped) {
  Search("owner:");
  auto* popup = window->findChild<QAbstractItemView*>("SearchCompletions");
  if (popup == nullptr) {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      if (top->objectName() == "SearchCompletions") popup = static_cast<QAbstractItemView*>(top);
    }
  }
  ASSERT_TRUE(popup != nullptr && popup->isVisible());
  EXPECT_EQ(popup->model()->rowCount(), Session().PlayerCount + 1);
  QTest::keyClick(popup, Qt::Key_Down);
  QTest::keyClick(popup, Qt::Key_Return);
  EXPECT_EQ(driver->Text("SearchLine"), "owner:none");
  EXPECT_EQ(Listed(), Found("owner:none"));
}

TEST_F(NewStylePlanetsTest, SearchesAndColumnsAreKept) {
  const auto choose = [this](const QString& search) {
    driver->Find<QAction>(search).trigger();
    QApplication::processEvents();
  };
  choose("ReadySearch(1)");
  EXPECT_EQ(driver->Text("SearchLine"), "owner:none");
  EXPECT_EQ(List().Sorting().at(0), (ColumnSort{"Terra %", true}));
  double value = 1000;
  for (const int planet : Listed()) {
    const auto terra = MeasurePlanet(Session(), planet, PlanetMeasure::Terra);
    EXPECT_LE(terra.value_or(-1000), value);
    value = terra.value_or(-1000);
  }
  Search("iron>60 near<200");
  prompts.AnswerText("R&D");
  choose("SaveSearch");
  prompts.AnswerText("Old reports");
  choose("SaveSearch");
  EXPECT_EQ(prompts.Shown().back(), "There is a ready-made search called Old reports");
  QMenu columns;
  List().FillColumnMenu(columns);
  for (QAction* item : columns.actions()) {
    if (item->text() == "Hab") item->trigger();
  }
  QHeaderView& heading = *List().horizontalHeader();
  heading.moveSection(heading.visualIndex(ColumnOf("Age")), 0);
  List().setColumnWidth(ColumnOf("Owner"), 140);
  const std::string arrangement = Columns();
  window->close();
  Start();
  EXPECT_EQ(Columns(), arrangement);
  EXPECT_TRUE(List().isColumnHidden(ColumnOf("Hab")));
  EXPECT_EQ(List().Headings()[0], "Age");
  EXPECT_EQ(driver->Find<QAction>("OwnSearch(1)").text(), "R&&D");
  choose("OwnSearch(1)");
  EXPECT_EQ(Listed().size(), Found("iron>60 near<200").size());
  EXPECT_EQ(List().Sorting().size(), 2U);
  driver->Find<QMenu>("RemoveSearch").actions().at(0)->trigger();
  QApplication::processEvents();
  EXPECT_EQ(window->findChild<QAction*>("OwnSearch(1)"), nullptr);
}

// Rows that are sorted by their way from the selected planet stay while one is chosen among them.
TEST_F(NewStylePlanetsTest, RowsMoveOnlyWhenTheSelectionIsMadeElsewhere) {
  ClickPlanet(20);
  ClickHeading("Distance l.y.");
  EXPECT_EQ(PlanetAt(0), 20);
  const std::vector<int> order = Listed();
  ClickRow(5);
  EXPECT_EQ(Listed(), order);
  EXPECT_EQ(List().model()->index(5, ColumnOf("Distance l.y.")).data(), "0.0");
  ClickPlanet(60);
  EXPECT_EQ(PlanetAt(0), 60);
  Search("dist<=100");
  ClickPlanet(20);
  EXPECT_EQ(PlanetAt(0), 20);
}

TEST_F(NewStylePlanetsTest, APlanetHasItsCommands) {
  ClickPlanet(20);
  ClickRow(30, Qt::RightButton);
  const QModelIndex row = List().model()->index(30, ColumnOf("Name"));
  QContextMenuEvent asked(QContextMenuEvent::Mouse, List().visualRect(row).center(),
                          List().viewport()->mapToGlobal(List().visualRect(row).center()));
  QApplication::sendEvent(List().viewport(), &asked);
  EXPECT_EQ(Selected(), 20) << "the way counts from it";
  WindowDriver menu(driver->Find("PlanetMenu"));
  EXPECT_TRUE(menu.Action("PlanetDistance")
                  .text()
                  .startsWith("Distance from " + ToQString(Session().Planet(20).Name()) + ": "));
  menu.Choose("PlanetCopy");
  EXPECT_EQ(QApplication::clipboard()->text(), ToQString(PlanetText(Session(), 31)));
  menu.Choose("PlanetDistance");
  EXPECT_EQ(window->Map->State().Destination, 31);
  menu.Choose("PlanetZoom");
  EXPECT_EQ(Selected(), 31);
  driver->Find("PlanetMenu").close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  WindowDriver view(*window->Menu.ViewPlanet);
  view.Choose("PlanetCentre").Choose("PlanetCopy");
  EXPECT_EQ(QApplication::clipboard()->text(), ToQString(PlanetText(Session(), 31)));
  EXPECT_FALSE(view.Action("PlanetDistance").isEnabled());
}

}  // namespace
}  // namespace quorvane

#include <QClipboard>
#include <QSlider>
#include <filesystem>
#include <map>
#include <memory>
#include <set>

#include "history/game_hash.h"
#include "screens/race_curves.h"
#include "support/growing_game_folder.h"
#include "support/loaded_game.h"
#include "ui/changes_dock.h"
#include "ui/drawing_tools.h"
#include "ui/main_window_fixture.h"
#include "ui/year_band.h"
#include "ui/years_dock.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

// Three years of a game, each loaded in its turn.
class HistoryWindowTest : public testing::Test {
 protected:
  HistoryWindowTest() { Start(); }
  ~HistoryWindowTest() override { window->close(); }

  void Start() {
    window = std::make_unique<Main>(folder.Path(), &prompts, fs::path(), HistoryFile());
    driver = std::make_unique<WindowDriver>(*window);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    LoadGame(*driver, "Demo.map");
    driver->Choose("ViewYears").Click("OvButt(4)").Click("OvButt(6)");
    Take();
  }
  // Keeps what is on the screen, and lets it be stored.
  void Take() {
    QApplication::processEvents();
    window->Keeper().Finish();
    QApplication::processEvents();
    const int year = window->Session().GameYear;
    loaded[year] = window->Session();
    pictures[year] = Picture();
  }
  void PlayYears(int count) {
    for (int year = 0; year < count; ++year) {
      folder.WriteNextYear();
      driver->Choose("GameReload");
      Take();
    }
  }
  void ShowYear(int year) {
    driver->Find<QSlider>("YearsSlider").setValue(year - 2450);
    QApplication::processEvents();
  }
  QImage Picture() { return window->Map->Universe->Surface().Picture(); }
  fs::path HistoryFile() const { return data / "quorvane/history.sqlite"; }
  std::vector<StoredYear> Stored() const {
    Result<History> history = History::OpenToRead(HistoryFile());
    return history ? *history->Years(GameHash(window->Session())) : std::vector<StoredYear>();
  }

  GrowingGameFolder folder;
  TempFolder data;
  ScriptedPrompts prompts;
  std::unique_ptr<Main> window;
  std::unique_ptr<WindowDriver> driver;
  std::map<int, GameSession> loaded;
  std::map<int, QImage> pictures;
};

TEST_F(HistoryWindowTest, LooksBackAndReturnsToExactlyWhatWasThere) {
  PlayYears(2);
  ASSERT_EQ(Stored().size(), 3U);
  driver->ClickAt("Universe", {300, 300});
  window->Detail->Tools->Layer->Append({.Kind = DrawingKind::Circle, .X = 1100, .Y = 1200});
  const QImage before = Picture();
  const QString title = window->windowTitle();

  ShowYear(2450);
  ExpectSameGame(window->Session(), loaded[2450]);
  EXPECT_EQ(Picture(), pictures[2450]);
  EXPECT_EQ(driver->Text("BandYear"), "Year 2450 (shown: 2452)");
  EXPECT_TRUE(window->windowTitle().contains("Year: 2450"));
  for (const char* command : {"mnuSave", "mnuSaveRaceC", "GameDefaultColours"}) {
    EXPECT_FALSE(driver->Action(command).isEnabled());
    EXPECT_EQ(driver->Action(command).toolTip(),
              "Year 2450 is shown: only 2452 can be edited and saved");
  }
  EXPECT_FALSE(driver->IsEnabled("SaveQVL"));
  InNextDialog([](QWidget& statistics) {
    EXPECT_FALSE(WindowDriver(statistics).IsEnabled("SaveInfo"));
    EXPECT_FALSE(WindowDriver(statistics).IsEnabled("RaceNotes"));
    statistics.close();
  });
  driver->Choose("mnuGrid2");
  EXPECT_FALSE(driver->IsEnabled("RaceC(0)"));

  for (int drag = 0; drag < 100; ++drag) ShowYear(2450 + drag % 3);
  ShowYear(2451);
  EXPECT_EQ(Picture(), pictures[2451]);
  driver->Click("OvButt(3)").Choose("ViewZoomIn").Press("YearsSlider", Qt::Key_Left);
  ExpectSameGame(window->Session(), loaded[2450]);
  driver->Press("YearsSlider", Qt::Key_Escape);
  ExpectSameGame(window->Session(), loaded[2452]);
  EXPECT_EQ(Picture(), before);
  EXPECT_EQ(window->windowTitle(), title);
  EXPECT_FALSE(driver->IsVisible("YearBand"));
  EXPECT_TRUE(driver->IsEnabled("SaveQVL"));
  EXPECT_EQ(driver->Find<QSlider>("YearsSlider").value(), 2);
  EXPECT_EQ(window->Detail->Tools->Layer->Records().size(), 0U) << "not saved, so not read";
  EXPECT_FALSE(window->Detail->Tools->Layer->IsSaved());
}

TEST_F(HistoryWindowTest, SavesTheCurvesAsPictureAndTable) {
  PlayYears(2);
  prompts.AnswerSaveFile(data / "curves.png");
  driver->Click("YearsSavePicture");
  EXPECT_GT(QImage(QString::fromStdString((data / "curves.png").string())).width(), 200);
  prompts.AnswerSaveFile(data / "curves.csv");
  driver->Click("YearsSaveTable");
  const std::vector<RaceYear>& curves = window->YearsDock->Curves();
  EXPECT_EQ(data.Read("curves.csv"), CurvesCsv(curves));
  ASSERT_EQ(curves.size(), 3U * 4);
  EXPECT_EQ(curves.back().Population,
            loaded[2452].Player(4)[PlayerField::TotalPopulation].Number());
}

TEST_F(HistoryWindowTest, WhatWouldLeaveTheYearComesBackFirst) {
  PlayYears(1);
  ShowYear(2450);
  folder.WriteNextYear();
  driver->Choose("GameReload");
  EXPECT_EQ(window->Session().GameYear, 2452);
  EXPECT_FALSE(driver->IsVisible("YearBand"));
  Take();
  ShowYear(2451);
  driver->Click("BandBack");
  EXPECT_EQ(window->Session().GameYear, 2452);
  EXPECT_EQ(Picture(), pictures[2452]);
}

TEST_F(HistoryWindowTest, KeepsNothingUnlessWantedAndForgetsWhatIsAsked) {
  EXPECT_EQ(Stored().size(), 1U);
  driver->Choose("GameKeepHistory");
  PlayYears(1);
  EXPECT_EQ(Stored().size(), 1U);
  driver->Choose("GameForgetHistory");
  EXPECT_EQ(Stored().size(), 1U);
  prompts.Answer(true);
  driver->Choose("GameForgetHistory");
  EXPECT_EQ(Stored().size(), 0U);
  EXPECT_FALSE(driver->Action("GameForgetHistory").isEnabled());
}

TEST_F(HistoryWindowTest, TellsWhatChangedAndRingsIt) {
  PlayYears(2);
  driver->Choose("ViewChanges");
  const auto expected = [this](int before, std::string_view race = {}) {
    return DescribePlanetChanges(FindPlanetChanges(loaded[before], loaded[2452], race),
                                 loaded[2452]);
  };
  auto& list = driver->Find<QListView>("ChangesList");
  const auto shown = [&list] {
    QStringList rows;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      rows << list.model()->index(row, 0).data().toString();
    }
    return rows;
  };
  const auto texts = [](const std::vector<ChangeRow>& rows) {
    QStringList wanted;
    for (const ChangeRow& row : rows) wanted << QString::fromStdString(row.Text);
    return wanted;
  };
  EXPECT_EQ(shown(), texts(expected(2451)));
  EXPECT_TRUE(shown().filter("Eionis: taken from the Veldt Kin by the Orrukai").size() == 1)
      << shown().join("\n").toStdString();
  EXPECT_TRUE(window->Map->Rings->isVisible());

  driver->Find<QComboBox>("ChangesAgainst").setCurrentIndex(1);
  EXPECT_EQ(shown(), texts(expected(2450)));
  driver->Find<QComboBox>("ChangesRace").setCurrentText("Orrukai");
  EXPECT_EQ(shown(), texts(expected(2450, "Orrukai")));
  list.setFocus();
  driver->Press("ChangesList", Qt::Key_Down);
  EXPECT_EQ(window->Detail->Planet(), expected(2450, "Orrukai").front().Planet);

  driver->Click("ChangesCopy");
  const QString copied = QApplication::clipboard()->text();
  EXPECT_TRUE(copied.startsWith("Demo: year 2452 against 2450, Orrukai\n\n" + shown().front()));
  prompts.AnswerSaveFile(data / "changes.txt");
  driver->Click("ChangesSave");
  EXPECT_EQ(data.Read("changes.txt"), copied.toStdString());
  const QImage picture = Picture();
  driver->Choose("ViewChanges");
  EXPECT_FALSE(window->Map->Rings->isVisible());
  EXPECT_EQ(Picture(), picture) << "rings are no part of it";
}

TEST_F(HistoryWindowTest, SearchesForWhatChangedSinceTheComparedYear) {
  driver->Choose("ViewPlanets").Click("PlanetsMark").Type("SearchLine", "changed");
  EXPECT_EQ(driver->Text("PlanetsSummary"), "0 of 60 planets") << "no earlier year is kept";
  PlayYears(2);
  const auto expectChanges = [this](int since, int year) {
    std::set<int> changed;
    for (const PlanetChange& change : FindPlanetChanges(loaded[since], loaded[year])) {
      changed.insert(change.Planet);
    }
    EXPECT_FALSE(changed.empty());
    EXPECT_EQ(window->Map->FoundRings->Centres().size(), changed.size()) << since << ", " << year;
  };
  expectChanges(2451, 2452);
  driver->Choose("ViewChanges");
  auto& against = driver->Find<QComboBox>("ChangesAgainst");
  against.setCurrentIndex(against.findData(2450));
  expectChanges(2450, 2452);
  ShowYear(2451);
  expectChanges(2450, 2451);
  EXPECT_EQ(driver->Text("SearchLine"), "changed");
}

TEST_F(HistoryWindowTest, ADiskThatRefusesStopsNoLoad) {
  window->close();
  fs::remove_all(data / "quorvane");
  data.Write("quorvane", "a file where the folder should be");
  Start();
  EXPECT_EQ(window->Session().GameYear, 2450);
  EXPECT_EQ(prompts.Shown(), Texts());
  EXPECT_EQ(driver->Text("theplanet"), " No history can be kept");
}

}  // namespace
}  // namespace quorvane

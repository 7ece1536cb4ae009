#include <QHeaderView>
#include <QLineEdit>
#include <fstream>
#include <memory>

#include "loading/load_game.h"
#include "map/planets_in_view.h"
#include "support/growing_game_folder.h"
#include "ui/grid.h"
#include "ui/key_dock.h"
#include "ui/main_window_fixture.h"
#include "ui/reload_bar.h"
#include "ui/reports_dock.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

// A player's turns: the program is started with "Reopen Last Game at Start", and every turn's files
// come in another way.
class TurnsTest : public testing::Test {
 protected:
  ~TurnsTest() override {
    if (main) main->close();
  }

  void Start() {
    if (main) main->close();
    main.reset();
    main = std::make_unique<Main>(folder.Path(), &prompts, settings / "quorvane.ini");
    driver = std::make_unique<WindowDriver>(*main);
    main->Watcher().SetLook(StampGameFiles, 30ms);
    main->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(main.get()));
    clicks = 0;
    // With a game to reopen no dialog may come.
    if (!fs::exists(settings / "quorvane.ini")) {
      LoadGame(*driver, "Demo.map");
    } else {
      main->Begin();
    }
  }

  void Click(const char* control) {
    driver->Click(control);
    ++clicks;
  }

  bool IsNews(const std::string& file) {
    return QTest::qWaitFor(
        [&] {
          return main->Bar->isVisible() &&
                 driver->Text("ReloadNews").contains(QString::fromStdString(file));
        },
        5000);
  }

  Grid& PlanetGrid() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* grid = dynamic_cast<Grid*>(window); grid != nullptr && grid->isVisible()) {
        return *grid;
      }
    }
    throw std::runtime_error("no planet grid");
  }

  QStringList GridColumn(int column) {
    QStringList cells;
    const QAbstractItemModel& model = *PlanetGrid().DG->model();
    for (int row = 0; row < model.rowCount(); ++row) {
      cells << model.index(row, column).data().toString();
    }
    return cells;
  }
  QImage Picture() { return main->Map->Universe->Surface().Picture(); }

  // All that a reload must not change.
  QStringList Screen() {
    QStringList shown;
    for (const QAction* action : main->findChildren<QAction*>()) {
      if (action->isChecked()) shown << action->objectName();
    }
    const MapView& view = main->Map->State().View;
    shown << QString("view %1 %2 %3 %4")
                 .arg(view.ViewXMin)
                 .arg(view.ViewXMax)
                 .arg(view.ViewYMin)
                 .arg(view.ViewYMax);
    shown << driver->Text("Combo1") << driver->Text("PlanetName");
    shown << QString::number(main->Map->State().SelectedX)
          << QString::number(main->Detail->currentIndex());
    shown << QString::number(main->Map->CurrentSelected->isVisible());
    for (const char* dock : {"KeyDock", "ReportsDock", "DistancesDock"}) {
      shown << QString::number(driver->Find(dock).isVisible());
    }
    return shown;
  }

  // The data are those that a load with the same choice gives.
  void ExpectDataOf(int year) {
    const GameSession& session = main->Session();
    ASSERT_EQ(session.GameYear, year);
    const Result<GameSession> loaded = quorvane::LoadGame(session, "", Progress());
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->PlanetTable, session.PlanetTable);
    EXPECT_EQ(loaded->PlayerTable, session.PlayerTable);
    for (std::size_t row = 1; row <= 4; ++row) {
      EXPECT_EQ(session.ReportFiles[row].Year, std::to_string(year)) << row;
    }
    EXPECT_TRUE(main->windowTitle().contains(QString("Year: %1").arg(year)));
  }

  GrowingGameFolder folder;
  TempFolder settings;
  ScriptedPrompts prompts;
  std::unique_ptr<Main> main;
  std::unique_ptr<WindowDriver> driver;
  int clicks = 0;
};

// How the game's program and the player's tools put files there.
void WriteInPlace(const fs::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
}
void ReplaceByRename(const fs::path& file, const std::string& bytes) {
  const fs::path other = file.parent_path() / "arriving.tmp";
  WriteInPlace(other, bytes);
  fs::rename(other, file);
}
void DeleteAndWrite(const fs::path& file, const std::string& bytes) {
  fs::remove(file);
  QTest::qWait(20);
  WriteInPlace(file, bytes);
}
void WriteInPieces(const fs::path& file, const std::string& bytes) {
  for (std::size_t part = 1; part <= 4; ++part) {
    std::ofstream out(file, std::ios::binary | (part == 1 ? std::ios::trunc : std::ios::app));
    out << bytes.substr(bytes.size() * (part - 1) / 4,
                        bytes.size() * part / 4 - bytes.size() * (part - 1) / 4);
    out.close();
    QTest::qWait(10);
  }
}
void WriteWithAnOldClock(const fs::path& file, const std::string& bytes) {
  WriteInPlace(file, bytes);
  fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(48));
}

TEST_F(TurnsTest, TenTurnsAreOneClickEach) {
  using Way = void (*)(const fs::path&, const std::string&);
  constexpr Way kWays[] = {WriteInPlace, ReplaceByRename, DeleteAndWrite, WriteInPieces,
                           WriteWithAnOldClock};
  Start();
  driver->Choose("GameReopenAtStart");
  for (const char* overlay : {"OvButt(4)", "OvButt(6)", "OvButt(11)"}) driver->Click(overlay);
  driver->Choose("mnuNames(0)").Choose("ViewKey").Choose("GameReports");
  driver->Find<QComboBox>("Combo1").setCurrentIndex(2);
  const PlanetRecord& planet = main->Session().Planet(20);
  const SurfacePoint at = main->Map->State().View.ToSurface(PlaceOf(planet));
  driver->ClickAt("Universe", main->Map->Universe->WidgetPoint(at).toPoint());
  driver->Choose("ViewZoomToSelected").Choose("ViewZoomIn");
  main->Detail->setCurrentIndex(2);
  const QStringList screen = Screen();
  QImage picture = Picture();
  QStringList planets;
  for (int turn = 1; turn <= 10; ++turn) {
    const bool isRestarted = turn % 2 == 0;
    if (isRestarted) {
      Start();
      EXPECT_EQ(Screen(), screen);
      EXPECT_EQ(clicks, 0);
      EXPECT_TRUE(Picture() == picture);
    } else {
      driver->Choose("mnuGrid");
      PlanetGrid().SetColumnWidth(3, 0);
      QHeaderView& heading = *PlanetGrid().DG->horizontalHeader();
      QTest::mouseClick(heading.viewport(), Qt::RightButton, {}, {10, 10});  // sorts from the end
      planets = GridColumn(0);
      EXPECT_GT(planets.front().toInt(), planets.back().toInt());
    }
    folder.BeginNextYear();
    const Way write = kWays[static_cast<std::size_t>(turn) % std::size(kWays)];
    for (const char* file : {".m1", ".p1", ".p2", ".p3", ".p4"}) {
      write(folder / (std::string("Demo") + file), *folder.Game().Content(file));
    }
    ASSERT_TRUE(IsNews("Demo.p4") && IsNews("Demo.m1 is of year " + std::to_string(folder.Year())))
        << turn << driver->Text("ReloadNews").toStdString();
    clicks = 0;
    Click("ReloadNow");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(Screen(), screen) << turn;
    ExpectDataOf(folder.Year());
    EXPECT_EQ(prompts.Shown(), Texts());
    EXPECT_FALSE(main->Bar->isVisible());
    if (!isRestarted) {
      EXPECT_EQ(PlanetGrid().ColumnWidth(3), 0);
      EXPECT_EQ(GridColumn(0), planets);
      PlanetGrid().close();
    }
    picture = Picture();
  }
}

}  // namespace
}  // namespace quorvane

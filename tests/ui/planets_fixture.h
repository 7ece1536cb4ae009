#pragma once

#include <QHeaderView>
#include <memory>

#include "map/planets_in_view.h"
#include "screens/planet_search.h"
#include "support/loaded_game.h"
#include "ui/main_window_fixture.h"
#include "ui/map_navigator.h"
#include "ui/planet_list.h"
#include "ui/planet_menu.h"
#include "ui/planets_dock.h"
#include "ui/search_line.h"
#include "ui/texts.h"

namespace quorvane {

/// The main window with a generated game and the list of its planets open.
class PlanetsTest : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    const generator::GameShape shape = {.Seed = 21, .PlanetCount = 90, .Style = Style()};
    for (const generator::GeneratedFile& file : generator::GenerateGame(shape).Files) {
      folder.Write("Demo" + file.Extension, file.Content);
    }
    Start();
  }

  void Start() {
    driver.reset();
    window.reset();  // keeps its preferences before others are read
    window = std::make_unique<Main>(folder.Path(), &prompts, folder / "quorvane.ini");
    driver = std::make_unique<WindowDriver>(*window);
    window->resize(1600, 900);
    window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    LoadGame(*driver, "Demo.map");
    if (!driver->Action("ViewPlanets").isChecked()) driver->Choose("ViewPlanets");
    window->activateWindow();  // the keyboard is with a hidden dialog
    QApplication::processEvents();
  }

  virtual int Style() const { return GetParam(); }
  PlanetList& List() { return *window->PlanetsDock->List; }
  const GameSession& Session() { return window->Session(); }
  int Selected() { return SelectedPlanet(window->Map->State(), Session()); }

  void Search(const QString& text) { driver->Type("SearchLine", text); }
  // The planets of the list, as their names tell.
  std::vector<int> Listed() {
    std::vector<int> planets;
    for (int row = 0; row < List().model()->rowCount(); ++row) planets.push_back(PlanetAt(row));
    return planets;
  }
  int PlanetAt(int row) {
    const int name = ColumnOf("Name");
    return FindPlanetNamed(Session(), ToText(List().model()->index(row, name).data().toString()));
  }
  // How the columns are arranged, from left to right.
  std::string Columns() {
    std::string text;
    for (const ColumnPlace& place : List().Arrangement()) {
      text +=
          place.Column + (place.IsShown ? " " : " hidden ") + std::to_string(place.Width) + "\n";
    }
    return text;
  }
  int ColumnOf(const std::string& name) {
    return static_cast<int>(ColumnNamed(List().Table(), name).value());
  }
  std::vector<int> Found(const std::string& search) {
    const auto filter = PlanetFilter::Make(search, Session());
    return FindPlanets(std::get<PlanetFilter>(filter), Session(), FactsOf(Session()));
  }
  void ClickRow(int row, Qt::MouseButton button = Qt::LeftButton) {
    const QModelIndex index = List().model()->index(row, ColumnOf("Name"));
    List().scrollTo(index);
    QTest::mouseClick(List().viewport(), button, {}, List().visualRect(index).center());
  }
  void ClickPlanet(int planet) {
    const SurfacePoint at = PositionOf(Session().Planet(planet), window->Map->State().View);
    driver->ClickAt("Universe", window->Map->Universe->WidgetPoint(at).toPoint());
  }
  void ClickHeading(const std::string& column, Qt::KeyboardModifiers modifiers = {}) {
    QHeaderView& heading = *List().horizontalHeader();
    const int section = ColumnOf(column);
    List().scrollTo(List().model()->index(0, section));
    const QPoint at(heading.sectionViewportPosition(section) + heading.sectionSize(section) / 2,
                    heading.height() / 2);
    QTest::mouseClick(heading.viewport(), Qt::LeftButton, modifiers, at);
  }

  TempFolder folder;
  ScriptedPrompts prompts;
  std::unique_ptr<Main> window;
  std::unique_ptr<WindowDriver> driver;
};

}  // namespace quorvane

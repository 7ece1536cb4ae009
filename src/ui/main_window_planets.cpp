// The list of planets beside the main window's map, and what can be done about one planet.
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>

#include "files/files.h"
#include "formats/game_files.h"
#include "history/planet_changes.h"
#include "map/planets_in_view.h"
#include "screens/planet_details.h"
#include "screens/table_text.h"
#include "screens/year_choice.h"
#include "ui/main_window.h"
#include "ui/map_navigator.h"
#include "ui/map_panel.h"
#include "ui/planet_list.h"
#include "ui/planet_menu.h"
#include "ui/planets_dock.h"
#include "ui/texts.h"

namespace quorvane {

void Main::BuildPlanets() {
  using Dock = quorvane::PlanetsDock;
  PlanetsDock = new Dock(
      session_, [this] { return ChangedPlanets(); }, this);
  AddDock(*PlanetsDock, *Menu.ViewPlanets);
  PlanetsDock->List->Arrange(preferences_.Values().PlanetColumns);
  PlanetsDock->ShowOwnSearches(preferences_.Values().Searches);
  connect(PlanetsDock->toggleViewAction(), &QAction::toggled, this, &Main::ShowPlanets);
  connect(PlanetsDock, &Dock::PlanetChosen, this, &Main::Dock_PlanetChosen);
  connect(PlanetsDock, &Dock::ZoomAsked, this,
          [this](int planet) { Planet_Asked(PlanetCommand::Zoom, planet); });
  connect(PlanetsDock, &Dock::MenuAsked, this, &Main::PlanetsDock_MenuAsked);
  connect(PlanetsDock, &Dock::MarksChanged, this, &Main::ShowFoundRings);
  connect(PlanetsDock, &Dock::SaveSearchAsked, this, &Main::PlanetsDock_SaveSearchAsked);
  connect(PlanetsDock, &Dock::RemoveSearchAsked, this, &Main::PlanetsDock_RemoveSearchAsked);
  connect(PlanetsDock, &Dock::ExportAsked, this, &Main::PlanetsDock_ExportAsked);
  connect(PlanetsDock, &Dock::BackAsked, this, [this] {
    activateWindow();
    Map->Universe->setFocus(Qt::ShortcutFocusReason);
  });
  connect(PlanetsDock->List, &PlanetList::Arranged, this, &Main::KeepArrangement);
  connect(Menu.ViewPlanet, &PlanetMenu::Asked, this, &Main::Planet_Asked);
}

// Shows the planets as they are now, where anybody sees them.
void Main::ShowPlanets() {
  if (PlanetsDock->isHidden()) return ShowFoundRings();
  PlanetsDock->ShowGame(SelectedPlanet(state_, session_));
}

void Main::ShowFoundRings() {
  const std::vector<int> planets = PlanetsDock->Marked();
  std::vector<StoredPoint> places;
  places.reserve(planets.size());
  for (const int planet : planets) places.push_back(PlaceOf(session_.Planet(planet)));
  Map->ShowFound(places);
}

// Which planets changed since the year that is compared with, by number.
std::vector<bool> Main::ChangedPlanets() {
  const int year = ComparedYear(YearsBefore(years_, session_.GameYear), comparedYear_);
  ReadComparedYear(year);
  if (!compared_) return {};
  std::vector<bool> changed(session_.PlanetTable.size());
  for (const PlanetChange& change : FindPlanetChanges(*compared_, session_)) {
    changed.at(static_cast<std::size_t>(change.Planet)) = true;
  }
  return changed;
}

void Main::ShowPlanetMenu() {
  const int planet = SelectedPlanet(state_, session_);
  Menu.ViewPlanet->ShowPlanet(session_, planet, planet, state_.ZoomArmed == 1);
}

void Main::PlanetsDock_MenuAsked(int planet, QPoint at) {
  auto* menu = new PlanetMenu("", this);
  menu->setObjectName("PlanetMenu");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->ShowPlanet(session_, planet, SelectedPlanet(state_, session_), state_.ZoomArmed == 1);
  connect(menu, &PlanetMenu::Asked, this, &Main::Planet_Asked);
  menu->popup(at);
}

void Main::Planet_Asked(PlanetCommand command, int planet) {
  if (planet < 1 || planet > session_.PlanetCount || redraw_ != nullptr) return;
  const PlanetRecord& record = session_.Planet(planet);
  switch (command) {
    case PlanetCommand::Show:
      Dock_PlanetChosen(planet);
      if (!state_.View.Contains(record.X(), record.Y())) Navigator->CentreOn(PlaceOf(record));
      return;
    case PlanetCommand::Zoom:
      Dock_PlanetChosen(planet);
      return Navigator->ZoomTo(PlaceOf(record));
    case PlanetCommand::Centre:
      return Navigator->CentreOn(PlaceOf(record));
    case PlanetCommand::Copy:
      return QApplication::clipboard()->setText(ToQString(PlanetText(session_, planet)));
    case PlanetCommand::Distance:
      return KeepDestination(planet);
  }
}

void Main::PlanetsDock_SaveSearchAsked() {
  const auto name = prompts_.AskText("Save Search", "Name of the search:", "");
  if (!name) return;
  Preferences preferences = preferences_.Values();
  PlanetSearch search = PlanetsDock->Search();
  search.Name = *name;
  const Result<void> kept = KeepSearch(preferences.Searches, std::move(search));
  if (!kept) return prompts_.Inform(kept.Message());
  KeepPreferences(preferences);
  PlanetsDock->ShowOwnSearches(preferences.Searches);
}

void Main::PlanetsDock_RemoveSearchAsked(int index) {
  Preferences preferences = preferences_.Values();
  preferences.Searches.erase(preferences.Searches.begin() + index);
  KeepPreferences(preferences);
  PlanetsDock->ShowOwnSearches(preferences.Searches);
}

void Main::KeepArrangement() {
  Preferences preferences = preferences_.Values();
  preferences.PlanetColumns = PlanetsDock->List->Arrangement();
  KeepPreferences(preferences);
}

void Main::PlanetsDock_ExportAsked() {
  const std::string year = session_.GameYear > 0 ? " " + std::to_string(session_.GameYear) : "";
  const auto file = prompts_.AskSaveFile(
      "Export Planets", GameFile(Loaded().MapFilePath, " Planets" + year + ".csv"), ".tsv");
  if (!file) return;
  const PlanetList& list = *PlanetsDock->List;
  const Result<void> saved = SaveText(
      *file, TableFileText(TextFromPath(file->extension()), list.Headings(), list.Cells(false)));
  if (!saved) prompts_.Inform(saved.Message());
}

}  // namespace quorvane

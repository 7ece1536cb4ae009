// The years of the game that the main window shows: keeping them, looking back at one, and what
// changed between two.
#include <QAction>
#include <QMenu>
#include <QScopedValueRollback>
#include <set>
#include <utility>

#include "files/files.h"
#include "formats/game_files.h"
#include "history/game_hash.h"
#include "history/planet_changes.h"
#include "map/planets_in_view.h"
#include "paint/picture_file.h"
#include "screens/change_texts.h"
#include "screens/main_texts.h"
#include "screens/race_curves.h"
#include "screens/stored_session.h"
#include "screens/year_choice.h"
#include "ui/changes_dock.h"
#include "ui/controls.h"
#include "ui/details_panel.h"
#include "ui/drawing_tools.h"
#include "ui/grid.h"
#include "ui/import_years.h"
#include "ui/legend.h"
#include "ui/main_window.h"
#include "ui/map_navigator.h"
#include "ui/map_panel.h"
#include "ui/overlay_bar.h"
#include "ui/planets_dock.h"
#include "ui/reload_bar.h"
#include "ui/texts.h"
#include "ui/year_band.h"
#include "ui/years_dock.h"

namespace quorvane {

void Main::BuildHistory() {
  ChangesDock = new quorvane::ChangesDock(this);
  AddDock(*ChangesDock, *Menu.ViewChanges);
  connect(ChangesDock->toggleViewAction(), &QAction::toggled, this, &Main::ShowHistory);
  connect(ChangesDock, &quorvane::ChangesDock::Asked, this, &Main::ChangesDock_Asked);
  connect(ChangesDock, &quorvane::ChangesDock::PlanetChosen, this, &Main::Dock_PlanetChosen);
  connect(ChangesDock, &quorvane::ChangesDock::SaveAsked, this, &Main::ChangesDock_SaveAsked);
  YearsDock = new quorvane::YearsDock(this);
  AddDock(*YearsDock, *Menu.ViewYears);
  connect(YearsDock->toggleViewAction(), &QAction::toggled, this, &Main::ShowHistory);
  connect(YearsDock, &quorvane::YearsDock::YearChosen, this, &Main::ShowYear);
  connect(YearsDock, &quorvane::YearsDock::BackAsked, this, &Main::YearsDock_BackAsked);
  connect(YearsDock, &quorvane::YearsDock::SavePictureAsked, this,
          &Main::YearsDock_SavePictureAsked);
  connect(YearsDock, &quorvane::YearsDock::SaveTableAsked, this, &Main::YearsDock_SaveTableAsked);
  connect(Band, &YearBand::BackAsked, this, &Main::YearsDock_BackAsked);
  connect(Menu.GameKeepHistory, &QAction::triggered, this, [this] {
    GameOption_Click();
    if (session_.IsLoaded()) KeepYear();
  });
  connect(Menu.GameForgetHistory, &QAction::triggered, this, &Main::GameForgetHistory_Click);
  connect(Menu.GameImportYears, &QAction::triggered, this, &Main::GameImportYears_Click);
  connect(&keeper_, &HistoryKeeper::FaultFound, this, &Main::TellQuietly);
  connect(&keeper_, &HistoryKeeper::Changed, this, [this] {
    compared_.reset();
    ShowHistory();
  });
  // Once the loaded game is on the screen.
  keep_.setSingleShot(true);
  keep_.setInterval(0);
  connect(&keep_, &QTimer::timeout, this, &Main::KeepYear);
}

// Takes note of which game was loaded.
void Main::TakeGame() {
  const std::string game = GameHash(session_);
  if (std::exchange(game_, game) != game) comparedYear_ = 0;
  compared_.reset();
  years_.clear();
}

void Main::KeepYear() {
  keep_.stop();
  if (preferences_.Values().KeepHistory) {
    keeper_.Store(Loaded());
  } else {
    keeper_.Look();
  }
}

// Shows which years there are, where anybody sees it.
void Main::ShowHistory() {
  years_.clear();
  const History* history = session_.IsLoaded() ? keeper_.Years() : nullptr;
  if (history != nullptr) {
    const auto stored = history->Years(game_);
    for (const StoredYear& year : stored ? *stored : std::vector<StoredYear>()) {
      years_.push_back(year.Year);
    }
  }
  Menu.GameForgetHistory->setEnabled(!years_.empty());
  if (!YearsDock->isHidden()) {
    const int loaded = Loaded().GameYear;
    YearsDock->ShowYears(YearsToShow(years_, loaded), loaded, session_.GameYear);
    const auto curves = history != nullptr ? history->RaceYears(game_) : std::vector<RaceYear>();
    YearsDock->ShowCurves(curves ? *curves : std::vector<RaceYear>());
  }
  ShowChanges();
}

// Shows a stored year in place of the one that was loaded, which waits untouched.
void Main::ShowYear(int year) {
  const History* history = keeper_.Years();
  if (redraw_ != nullptr || history == nullptr) return YearsDock->ShowYear(session_.GameYear);
  if (year == Loaded().GameYear) return ShowLoadedYear();
  GiveUpZoomBox();
  const QString race = Combo1->currentText();
  GameSession room = lookBack_ ? std::move(session_) : GameSession();
  auto stored = SessionOfYear(*history, game_, year, Loaded(), std::move(room));
  if (!stored) {
    ShowLoadedYear();
    YearsDock->ShowYear(session_.GameYear);
    return TellQuietly(tr("Year %1 cannot be read").arg(year), ToQString(stored.Message()));
  }
  if (!lookBack_) {
    Detail->Tools->StopDrawing();
    const ShownState shown = Shown();
    lookBack_ = std::make_unique<LookBack>(LookBack{std::move(session_), state_, shown});
  }
  session_ = std::move(*stored);
  ShowOtherYear(race);
}

void Main::ShowLoadedYear() {
  if (!lookBack_) return;
  const std::unique_ptr<LookBack> back = std::move(lookBack_);
  session_ = std::move(back->Loaded);
  state_ = back->State;
  {
    const QScopedValueRollback noRedraw(isDrawing_, true);
    OverlaySwitches switches = back->Shown.Switches;
    switches.Set(OverlayKind::ZoomIn, state_.ZoomArmed == 1);
    Overlays->Show(switches);
  }
  ShowOtherYear(ToQString(back->Shown.Switches.RaceName));
  Navigator->Visit();
  Detail->setCurrentIndex(back->Shown.Tab);
}

// News that came meanwhile have waited.
void Main::YearsDock_BackAsked() {
  YearsDock->StopPlaying();
  ShowLoadedYear();
  if (preferences_.Values().ReloadByItself) ReloadByItself();
}

// @param focus  what has the keyboard; Escape there may mean something else
bool Main::LeaveYear(const QWidget& focus) {
  if (!lookBack_ || Bar->isAncestorOf(&focus)) return false;
  YearsDock_BackAsked();
  return true;
}

// All that was on screen stays, but for what is known of the planets.
void Main::ShowOtherYear(const QString& race) {
  {
    const QScopedValueRollback noRedraw(isDrawing_, true);
    Combo1->clear();
    for (const PlayerRecord& player : session_.Players()) {
      Combo1->addItem(ToQString(player.Name()));
    }
    Combo1->setCurrentIndex(Combo1->findText(race, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    Combo1->setEditText(race);
  }
  setWindowTitle(PlainTitle(ToQString(MainCaption(QUORVANE_VERSION, &session_))));
  RaceLegend->ShowPlayers(session_);
  const int planet = Detail->Planet();
  Detail->ShowLoadedGame(session_);
  if (planet > 0) Detail->ShowPlanet(session_, planet);
  Overlays->EnableNewReportItems(session_.ReportStyle == kNewReportStyle);
  ShowBand();
  EnableEditing(!lookBack_);
  state_.BordersCached = 0;
  Repaint();
  Map->ShowZoomBox();
  if (grid_ != nullptr && grid_->isVisible()) grid_->Refresh(session_);
  ShowPlanets();
  ShowSelection();
  YearsDock->ShowYear(session_.GameYear);
  ShowChanges();
}

void Main::ShowBand() {
  if (!lookBack_) return Band->hide();
  Band->ShowYear(session_.GameYear, Loaded().GameYear, Bar->isHidden() ? 0 : Bar->height());
}

// What is saved is what was loaded, and nothing else can be edited.
void Main::EnableEditing(bool isEnabled) {
  const QString reason = isEnabled ? QString() : Band->Reason();
  for (QAction* command : {Menu.mnuSave, Menu.mnuSaveRaceC, Menu.GameColoursForEveryEye,
                           Menu.GameDefaultColours, Menu.GameImportYears}) {
    command->setEnabled(isEnabled);
    command->setToolTip(reason);
  }
  for (QMenu* menu : {Menu.mnuFile, Menu.GameMenu}) menu->setToolTipsVisible(!isEnabled);
  Detail->Tools->EnableEditing(isEnabled, reason);
  RaceLegend->EnableChoosing(isEnabled, reason);
}

// Reads the year to compare with, unless it is at hand.
void Main::ReadComparedYear(int year) {
  if (year == 0) compared_.reset();
  if (year == 0 || (compared_ && compared_->GameYear == year)) return;
  auto stored = keeper_.Years()->ReadYear(game_, year);
  if (!stored) TellQuietly(tr("Year %1 cannot be read").arg(year), ToQString(stored.Message()));
  compared_ = stored ? std::optional(std::move(*stored)) : std::nullopt;
}

// Compares the year that is shown with an earlier one.
void Main::ShowChanges() {
  if (!PlanetsDock->isHidden()) PlanetsDock->ShowChanges();
  ringed_.clear();
  if (ChangesDock->isHidden() || !session_.IsLoaded()) return ShowRings();
  const std::vector<int> earlier = YearsBefore(years_, session_.GameYear);
  const int year = ComparedYear(earlier, comparedYear_);
  ReadComparedYear(year);
  ChangesDock->ShowYears(earlier, year);
  if (!compared_) {
    const QString reason = year > 0 ? tr("Year %1 cannot be read").arg(year)
                                    : tr("No earlier year of this game is kept yet. Each year that "
                                         "you load is kept.");
    ChangesDock->ShowRaces(RacesOf(session_, session_));
    ChangesDock->ShowChanges({}, reason, "");
    return ShowRings();
  }
  ChangesDock->ShowRaces(RacesOf(*compared_, session_));
  const std::string race = ChangesDock->Race();
  const auto changes = FindPlanetChanges(*compared_, session_, race);
  for (const PlanetChange& change : changes) ringed_.push_back(change.Planet);
  const std::vector<ChangeRow> rows = DescribePlanetChanges(changes, session_);
  ChangesDock->ShowChanges(rows, ToQString(ChangesSummary(rows.size(), year)),
                           ToQString(ChangesText(rows, *compared_, session_, race)));
  ShowRings();
}

// Rings the planets that changed, once each.
void Main::ShowRings() {
  const std::set<int> planets(ringed_.begin(), ringed_.end());
  std::vector<StoredPoint> places;
  places.reserve(planets.size());
  for (const int planet : planets) places.push_back(PlaceOf(session_.Planet(planet)));
  Map->ShowRings(places);
}

void Main::ChangesDock_Asked() {
  comparedYear_ = RememberedChoice(YearsBefore(years_, session_.GameYear), ChangesDock->Against());
  ShowChanges();
}

void Main::ChangesDock_SaveAsked() {
  const std::string name = " Changes " + std::to_string(session_.GameYear) + ".txt";
  const auto file = prompts_.AskSaveFile("Save Changes", GameFile(Loaded().MapFilePath, name));
  if (!file) return;
  const Result<void> saved = SaveText(*file, ToText(ChangesDock->Text()));
  if (!saved) prompts_.Inform(saved.Message());
}

void Main::YearsDock_SavePictureAsked() {
  const auto file =
      prompts_.AskSaveFile("Save Curves", GameFile(Loaded().MapFilePath, " Curves.png"));
  if (!file) return;
  const Result<void> saved = SavePicture(*file, YearsDock->ChartPicture().toImage(), "png");
  if (!saved) prompts_.Inform(saved.Message());
}

void Main::YearsDock_SaveTableAsked() {
  const auto file =
      prompts_.AskSaveFile("Save Curves", GameFile(Loaded().MapFilePath, " Curves.csv"));
  if (!file) return;
  const Result<void> saved = SaveText(*file, CurvesCsv(YearsDock->Curves()));
  if (!saved) prompts_.Inform(saved.Message());
}

void Main::GameForgetHistory_Click() {
  const std::string name = TextFromPath(Loaded().MapFilePath.stem());
  const std::string question = "All " + std::to_string(years_.size()) + " kept years of " + name +
                               " will be deleted. The game's own files stay.\n\nForget them?";
  if (!prompts_.AskYesNo("Forget This Game's History", question)) return;
  ShowLoadedYear();
  const Result<void> forgotten = keeper_.Forget(game_);
  if (!forgotten) prompts_.Inform(forgotten.Message());
}

void Main::GameImportYears_Click() {
  if (!session_.IsLoaded() || lookBack_ || redraw_ != nullptr) return;
  ImportYears dialog(
      session_, session_.MyRaceName, years_,
      [this](const GameSession& year) { return keeper_.StoreNow(year); }, prompts_, this);
  RememberPlace(dialog, preferences_);
  dialog.exec();
}

}  // namespace quorvane

// Which game the main window shows: opening, remembering and leaving one, and its race colours.
#include <QAction>
#include <QDateTime>
#include <QMenu>
#include <QScopedValueRollback>
#include <algorithm>
#include <chrono>
#include <utility>

#include "formats/empire_data_file.h"
#include "formats/race_colour_file.h"
#include "loading/load_game.h"
#include "map/map_motion.h"
#include "rules/every_eye_colours.h"
#include "screens/main_texts.h"
#include "ui/details_panel.h"
#include "ui/drawing_board.h"
#include "ui/drawing_layer.h"
#include "ui/grid.h"
#include "ui/legend.h"
#include "ui/long_step.h"
#include "ui/main_window.h"
#include "ui/map_navigator.h"
#include "ui/map_panel.h"
#include "ui/overlay_bar.h"
#include "ui/recent_games.h"
#include "ui/reload_bar.h"
#include "ui/texts.h"

namespace quorvane {

void Main::OfferLastGame() {
  if (!memories_.Games().empty()) offered_ = memories_.Games().front().Choice;
}

void Main::Begin() {
  const std::vector<GameMemory>& games = memories_.Games();
  const bool isReopened = preferences_.Values().ReopenAtStart && !games.empty();
  if (!isReopened || !Open(games.front().Choice.MapFilePath)) mnuMap_Click();
}

// The game on screen stays until the new one is complete.
void Main::LoadChosenGame() {
  if (!MayLeaveGame()) return;
  RememberShown();
  if (Load(open_.Choice)) RememberGame();
}

// @param since  the files that the user knows the game with; nothing: those that are there now
bool Main::Load(const GameChoice& choice, const std::optional<GameWatcher::Stamps>& since) {
  ShowLoadedYear();
  const auto files = watcher_.LookBeforeLoad(choice.MapFilePath);
  const bool wasEnabled = Menu.mnuOver->isEnabled();
  Menu.mnuOver->setEnabled(false);
  repaint();
  Result<GameSession> loaded = RunLoad(choice);
  const bool isStopped = loaded.Message() == kLoadingStopped;
  ShowWhetherStopped(isStopped, kLoadingStopped);
  if (!loaded) {
    Menu.mnuOver->setEnabled(wasEnabled);
    ProgressBar1->setValue(0);
    if (!isStopped) prompts_.Inform(loaded.Message());
    return false;
  }
  session_ = std::move(*loaded);
  next_ = session_;
  TakeGame();
  saved_.Take(session_);
  loadedFiles_ = since ? *since : files.value_or(GameWatcher::Stamps());
  files_ = loadedFiles_;
  watcher_.Watch(since);
  ShowLoadedGame();
  ShowHistory();
  keep_.start();
  if (!session_.OwnersWithoutRecord.empty()) {
    prompts_.Inform(LeftOutMessage(session_.OwnersWithoutRecord));
  }
  return true;
}

Result<GameSession> Main::RunLoad(const GameChoice& choice) {
  LongStep step(*ProgressBar1);
  return LoadGame(choice, session_.MyRaceName, step.Display());
}

// Opens a remembered game as it was left. What became of its files since is news.
bool Main::Open(const std::filesystem::path& map) {
  if (redraw_ != nullptr || !MayLeaveGame()) return false;
  RememberShown();
  const GameMemory* known = memories_.Find(map);
  if (known == nullptr) return false;
  const GameMemory game = *known;
  ReloadPlan plan = PlanReload(game.Choice, game.Files, game.Files);
  if (const std::string problem = AcceptReload(plan); !problem.empty()) {
    prompts_.Inform(problem);
    return false;
  }
  const bool areFilesKnown = !game.Files.empty();
  if (!Load(plan.Choice, areFilesKnown ? std::optional(game.Files) : std::nullopt)) return false;
  offered_ = session_;
  ShowAgain(game.Shown);
  if (const int planet = SelectedPlanet(state_, session_)) Detail->ShowPlanet(session_, planet);
  RememberGame();
  return true;
}

ShownState Main::Shown() const {
  ShownState shown = {.Switches = Overlays->Switches(),
                      .SelectedX = state_.SelectedX,
                      .SelectedY = state_.SelectedY,
                      .Tab = Detail->currentIndex()};
  shown.Switches.Set(OverlayKind::ZoomIn, false);
  shown.Switches.RaceName = ToText(Combo1->currentText());
  const MapView& view = state_.View;
  if (state_.ZoomArmed == 1 && view != FirstMapState(session_).View) {
    shown.Zoom = {
        .XMin = view.ViewXMin, .XMax = view.ViewXMax, .YMin = view.ViewYMin, .YMax = view.ViewYMax};
  }
  return shown;
}

// Shows the loaded game as one was shown before, in one redraw.
void Main::ShowAgain(const ShownState& shown) {
  OverlaySwitches switches = shown.Switches;
  {
    const QScopedValueRollback noRedraw(isDrawing_, true);
    const int race = Combo1->findText(ToQString(switches.RaceName),
                                      Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (race >= 0) Combo1->setCurrentIndex(race);
    state_.SelectedX = shown.SelectedX;
    state_.SelectedY = shown.SelectedY;
    SelectPlanet(state_, session_, SelectedPlanet(state_, session_));
    if (shown.Zoom) {
      const std::optional<MapView> view = ViewOf(*shown.Zoom, state_.View);
      if (view) ShowView(state_, *view);
    }
    Overlays->ShowZoom(state_.ZoomArmed == 1);
    switches.Set(OverlayKind::ZoomIn, state_.ZoomArmed == 1);
    Overlays->Show(switches);
  }
  DrawOverlays();
  Navigator->BeginGame();
  Detail->setCurrentIndex(std::clamp(shown.Tab, 0, Detail->count() - 1));
  ShowSelection();
}

void Main::EnableGameCommands() {
  for (QAction* command : {Menu.GameReload, Menu.GameColoursForEveryEye, Menu.GameDefaultColours,
                           Menu.GameImportYears}) {
    command->setEnabled(session_.IsLoaded());
  }
}

void Main::GameOption_Click() {
  Preferences preferences = preferences_.Values();
  preferences.NumbersInLegend = Menu.ViewNumbersInLegend->isChecked();
  preferences.ReopenAtStart = Menu.GameReopenAtStart->isChecked();
  preferences.ReloadByItself = Menu.GameReloadByItself->isChecked();
  preferences.KeepHistory = Menu.GameKeepHistory->isChecked();
  KeepPreferences(preferences);
  RaceLegend->ShowNumbers(preferences.NumbersInLegend);
  ShowMarkerNumber();
}

void Main::KeepPreferences(const Preferences& preferences) {
  preferences_.Keep(preferences);
  TellFault();
}

void Main::RememberGame() {
  GameMemory game = {.Choice = session_, .Shown = Shown(), .Files = loadedFiles_};
  game.Opened = memories_.TimeOfOpening(QDateTime::currentSecsSinceEpoch());
  memories_.Keep(game);
  recent_->Fill();
  TellFault();
}

// Not every program is closed before it ends.
void Main::RememberSoon() {
  constexpr std::chrono::seconds kAfterLastAction(3);
  remember_.start(kAfterLastAction);
}

void Main::RememberShown() {
  const GameMemory* known = memories_.Find(session_.MapFilePath);
  if (!session_.IsLoaded() || known == nullptr || lookBack_) return;
  GameMemory game = *known;
  game.Shown = Shown();
  memories_.Keep(game);
  TellFault();
}

UnsavedChanges Main::Unsaved() const {
  if (!session_.IsLoaded()) return {};
  UnsavedChanges changes = saved_.ChangesOf(Loaded());
  changes.Drawings = !Detail->Tools->Layer->IsSaved();
  return changes;
}

// Asks what becomes of unsaved changes before they would be lost. @return false: all stays
bool Main::MayLeaveGame() {
  ShowLoadedYear();
  const UnsavedChanges changes = Unsaved();
  if (!changes.Any()) return true;
  const SaveAnswer answer = prompts_.AskSave(UnsavedQuestion(changes, session_));
  if (answer != SaveAnswer::Save) return answer == SaveAnswer::Discard;
  const Result<void> saved = SaveChanges(changes);
  if (!saved) prompts_.Inform(saved.Message());
  return static_cast<bool>(saved);
}

Result<void> Main::SaveChanges(const UnsavedChanges& changes) {
  if (changes.Colours) {
    if (Result<void> saved = WriteRaceColourFile(session_); !saved) return saved;
    saved_.TakeColours(session_);
  }
  if (changes.Races) {
    if (Result<void> saved = WriteEmpireDataFile(session_); !saved) return saved;
    saved_.TakeRaces(session_);
  }
  return changes.Drawings ? Detail->Tools->Layer->Save(session_) : Result<void>();
}

// As the colour dialog's OK does, for all races at once.
void Main::UseColours(const RaceColourTable& preset) {
  if (!session_.IsLoaded() || redraw_ != nullptr) return;
  UseRaceColours(session_, preset);
  for (int row = 0; row < session_.PlayerCount; ++row) {
    RaceLegend->ShowChangedColour(session_, row);
  }
  ShowNewColours();
}

void Main::ShowNewColours() {
  state_.BordersCached = 0;
  Map->Universe2->Surface().Clear();
  DrawOverlays();
  ShowPlanets();
}

}  // namespace quorvane

// What the main window's menus do.
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QScopedValueRollback>
#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "formats/empire_data_file.h"
#include "formats/game_files.h"
#include "formats/race_colour_file.h"
#include "model/text.h"
#include "paint/picture_file.h"
#include "screens/main_texts.h"
#include "ui/about.h"
#include "ui/details_panel.h"
#include "ui/drawing_board.h"
#include "ui/empire_stat.h"
#include "ui/find_planet.h"
#include "ui/grid.h"
#include "ui/legend.h"
#include "ui/main_window.h"
#include "ui/manual.h"
#include "ui/map_navigator.h"
#include "ui/map_panel.h"
#include "ui/overlay_bar.h"
#include "ui/texts.h"
#include "ui/thanksto.h"
#include "ui/year_band.h"

namespace quorvane {
namespace {

// A window beside the main one, wherever it was left.
void ShowInFront(QWidget& window) {
  if (window.isMinimized()) {
    window.showNormal();
  } else {
    window.show();
  }
  window.raise();
  window.activateWindow();
}

}  // namespace

void Main::mnuMap_Click() {
  if (redraw_ != nullptr) return;  // the game must stay while it is drawn
  if (openFile_ == nullptr || openFile_->IsDiscarded()) {
    openFile_ = std::make_unique<OpenFile>(open_, prompts_, this);
    RememberPlace(*openFile_, preferences_);
  }
  open_.RecentFolders = memories_.Folders();
  if (offered_) openFile_->ShowChoice(*std::exchange(offered_, {}));
  openFile_->exec();
  if (open_.OpenDialogResult != 0) return;
  LoadChosenGame();
}

void Main::ShowLoadedGame() {
  ResetWindow();
  setWindowTitle(PlainTitle(ToQString(MainCaption(QUORVANE_VERSION, &session_))));
  for (const PlayerRecord& player : session_.Players()) {
    Combo1->addItem(ToQString(player.Name()));
  }
  RaceLegend->ShowPlayers(session_);
  Detail->ShowLoadedGame(session_);
  Board->ShowLoadedGame();

  Combo1->setCurrentIndex(session_.PlayerCount > 0 ? 0 : -1);
  Combo1->setEnabled(true);
  EnableOverlays(true);
  Overlays->EnableNewReportItems(session_.ReportStyle == kNewReportStyle);
  Menu.mnuData->setEnabled(true);
  Map->ShowHint(!Overlays->Switches().ShowsAnything());
  ShowKey();
  surveys_ = {};
  SurveyReports();
  ShowNews();
  EnableGameCommands();
}

// Every load begins with a blank map and all overlays released.
void Main::ResetWindow() {
  const QScopedValueRollback noRedraw(isDrawing_, true);
  Overlays->EnableButtons(kOverlayButtonCount, false);
  OverlaySwitches switches = Overlays->Switches();
  switches.BeginNewGame();
  Overlays->Show(switches);
  Combo1->clear();
  Combo1->clearEditText();
  state_ = FirstMapState(session_);
  Map->Blank();
  Map->ShowZoomBox();
  Map->PlaceSelector();
  pointer_.reset();
  Navigator->BeginGame();
  ShowPlanets();
  ShowPlanetMenu();
  ShowNearest();
  ShowDistances();
}

void Main::mnuHideSelect_Click() {
  SelectPlanet(state_, session_, 0);
  Selection_Changed();
}

void Main::mnuSearchPlanet_Click() {
  if (findPlanet_ == nullptr) {
    findPlanet_ = std::make_unique<FindPlanet>(session_, state_, prompts_, this);
    RememberPlace(*findPlanet_, preferences_);
  }
  findPlanet_->exec();
  Selection_Changed();
  const bool isSelected = state_.SelectedX != 0;
  if (!isSelected || findPlanet_->ShowFoundDetails != 1) return;
  Universe_MouseDown(state_.View.ToSurface(
      {static_cast<double>(state_.SelectedX), static_cast<double>(state_.SelectedY)}));
}

void Main::mnuGrid_Click() {
  if (grid_ == nullptr) {
    grid_ = std::make_unique<Grid>();
    RememberPlace(*grid_, preferences_);
  }
  grid_->Fill(session_);
  ShowInFront(*grid_);
}

void Main::mnuGrid2_Click() {
  EmpireStat statistics(session_, prompts_, this);
  RememberPlace(statistics, preferences_);
  if (lookBack_) statistics.ShowOnly(Band->Reason());
  connect(&statistics, &EmpireStat::Saved, this, [this] { saved_.TakeRaces(session_); });
  statistics.exec();
  ShowPlanets();  // whose values for a race follow from what was told of it
}

void Main::mnuAbout_Click() {
  About about(this);
  RememberPlace(about, preferences_);
  about.exec();
}

void Main::mnuThanks_Click() {
  Thanksto thanks(this);
  RememberPlace(thanks, preferences_);
  thanks.exec();
}

void Main::mnuManual_Click() {
  if (manual_ == nullptr) {
    manual_ = std::make_unique<Manual>();
    RememberPlace(*manual_, preferences_);
  }
  ShowInFront(*manual_);
}

void Main::mnuSave_Click() {
  if (!session_.IsLoaded()) return prompts_.Inform(kNothingToSave);
  Navigator->DrawDueFrame();
  const std::filesystem::path file = MapPictureFile(session_);
  prompts_.Inform("Map saved to " + TextFromPath(file));
  const Result<void> saved = SavePicture(file, Map->Universe->Surface().Picture());
  if (!saved) prompts_.Inform(saved.Message());
}

void Main::mnuSaveRaceC_Click() {
  if (!session_.IsLoaded()) return prompts_.Inform(kNothingToSave);
  const Result<void> saved = WriteRaceColourFile(session_);
  if (saved) saved_.TakeColours(session_);
  prompts_.Inform(saved ? SavedRacesMessage("Current Colour settings saved", session_)
                        : saved.Message());
}

void Main::mnuExit_Click() {
  if (close()) QApplication::quit();
}

}  // namespace quorvane

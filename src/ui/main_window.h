#pragma once

#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QTimer>
#include <filesystem>
#include <memory>
#include <optional>

#include "map/map_state.h"
#include "map/overlay_kind.h"
#include "model/game_session.h"
#include "model/result.h"
#include "screens/game_memory.h"
#include "screens/reload_plan.h"
#include "screens/unsaved_changes.h"
#include "ui/game_memories.h"
#include "ui/game_watcher.h"
#include "ui/history_keeper.h"
#include "ui/main_menu.h"
#include "ui/open_file.h"
#include "ui/preferences.h"
#include "ui/prompts.h"
#include "ui/report_surveyor.h"

class QScrollArea;

namespace quorvane {

class ChangesDock;
class DetailsPanel;
class DistancesDock;
class DrawingBoard;
class FindPlanet;
class Grid;
class KeyDock;
class Legend;
class LongStep;
class Manual;
class OverlaySetsMenu;
class ReloadBar;
class YearBand;
class YearsDock;
class RecentGames;
class ReportsDock;
class MapNavigator;
class MapPanel;
class OverlayBar;
class PlanetsDock;
enum class PlanetCommand;

/// The program's one long-lived window: the map with its overlay switches, details, legend, status
/// line and menus. It owns the loaded game and the state in which it is shown.
class Main : public QMainWindow {
  Q_OBJECT

 public:
  /// @param startFolder  where the open dialog starts
  /// @param prompts      how to talk to the user; nullptr: message boxes
  /// @param preferences  where the user's preferences are kept; empty: nowhere
  /// @param history      where the years of games are kept; empty: nowhere
  explicit Main(std::filesystem::path startFolder, Prompts* prompts = nullptr,
                const std::filesystem::path& preferences = {},
                const std::filesystem::path& history = {});
  ~Main() override;

  /// Lets the open dialog begin with the last game, as nothing else says where to look.
  void OfferLastGame();
  /// What a start shows: the last game as it was left, where the user wants that, or else the open
  /// dialog.
  void Begin();
  /// "Load Data": lets the user choose a game in the open dialog and loads it.
  void mnuMap_Click();
  /// Loads the game that the open dialog left chosen. A load that fails says why, and the game on
  /// screen stays.
  void LoadChosenGame();
  /// Settles the overlay switches and draws the map anew: once for each action of the user.
  void DrawOverlays();

  /// The year of the game that the map shows.
  const GameSession& Session() const { return session_; }
  /// The game as it was loaded, whichever year is shown.
  const GameSession& Loaded() const { return lookBack_ ? lookBack_->Loaded : session_; }
  GameWatcher& Watcher() { return watcher_; }
  HistoryKeeper& Keeper() { return keeper_; }

  MainMenu Menu;
  MapPanel* Map = nullptr;
  MapNavigator* Navigator = nullptr;
  OverlayBar* Overlays = nullptr;
  DetailsPanel* Detail = nullptr;
  DrawingBoard* Board = nullptr;
  Legend* RaceLegend = nullptr;
  quorvane::PlanetsDock* PlanetsDock = nullptr;
  quorvane::KeyDock* KeyDock = nullptr;
  quorvane::DistancesDock* DistancesDock = nullptr;
  quorvane::ReportsDock* ReportsDock = nullptr;
  quorvane::ChangesDock* ChangesDock = nullptr;
  quorvane::YearsDock* YearsDock = nullptr;
  ReloadBar* Bar = nullptr;
  YearBand* Band = nullptr;
  QComboBox* Combo1 = nullptr;
  QLabel* XYCoord = nullptr;
  QLabel* theplanet = nullptr;
  QProgressBar* ProgressBar1 = nullptr;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  void Form_Load();
  void Form_Resize();
  bool Form_KeyDown(int key, Qt::KeyboardModifiers modifiers);
  bool GiveUpZoomBox();
  void Map_Resized();
  void Navigator_Moved();
  void Navigator_FrameDue();
  void ViewOption_Click();
  void Combo1_Click();
  void Board_Cleared();
  void RaceC_Click(int index);
  void Universe_MouseDown(SurfacePoint at);
  void Universe_MouseMove(SurfacePoint at);
  void mnuSearchPlanet_Click();
  void mnuHideSelect_Click();
  void mnuGrid_Click();
  void mnuGrid2_Click();
  void mnuAbout_Click();
  void mnuThanks_Click();
  void mnuManual_Click();
  void mnuSave_Click();
  void mnuSaveRaceC_Click();
  void mnuExit_Click();
  void GameReload_Click();
  void GameOption_Click();
  void Watcher_Began(const std::filesystem::path& map, const GameWatcher::Stamps& files);
  void Watcher_Changed(const std::filesystem::path& map, const GameWatcher::Stamps& files);
  void Bar_Dismissed();
  void ReportsDock_Ticked(int row, bool isIn);
  void ReportsDock_YearTyped(int row, const QString& year);
  void ChangesDock_Asked();
  void ChangesDock_SaveAsked();
  void GameForgetHistory_Click();
  void GameImportYears_Click();
  void YearsDock_SavePictureAsked();
  void YearsDock_SaveTableAsked();
  void ViewSet_Choose(int index);
  void ViewSaveSet_Click();
  void ViewRemoveSet_Click(int index);

  void BuildArea();
  void BuildDocks();
  void AddDock(QDockWidget& dock, QAction& item);
  void OpenDock(QDockWidget& dock);
  QRect PlaceOfFloatingDock() const;
  void ShowKey();
  void ShowDistances();
  void ShowNearest();
  void Dock_PlanetChosen(int planet);
  void BuildPlanets();
  void ShowPlanets();
  void ShowFoundRings();
  void ShowPlanetMenu();
  void PlanetsDock_MenuAsked(int planet, QPoint at);
  void PlanetsDock_SaveSearchAsked();
  void PlanetsDock_RemoveSearchAsked(int index);
  void PlanetsDock_ExportAsked();
  void Planet_Asked(PlanetCommand command, int planet);
  void KeepArrangement();
  std::vector<bool> ChangedPlanets();
  void BuildHistory();
  void TakeGame();
  void KeepYear();
  void ShowHistory();
  void ShowYear(int year);
  void ShowLoadedYear();
  void YearsDock_BackAsked();
  bool LeaveYear(const QWidget& focus);
  void ShowOtherYear(const QString& race);
  void ShowBand();
  void EnableEditing(bool isEnabled);
  void ReadComparedYear(int year);
  void ShowChanges();
  void ShowRings();
  void TellQuietly(const QString& words, const QString& details);
  void ViewKeepDestination_Click();
  void KeepDestination(int planet);
  void ConnectParts();
  void ConnectMenus();
  void ConnectGameMenu();
  void EnableOverlays(bool isEnabled);
  void PickPlanet(SurfacePoint at);
  void Selection_Changed();
  void ShowSelection();
  void ShowFullView();
  void Repaint();
  void TellFault();
  bool Load(const GameChoice& choice, const std::optional<GameWatcher::Stamps>& since = {});
  Result<GameSession> RunLoad(const GameChoice& choice);
  void ShowLoadedGame();
  bool Open(const std::filesystem::path& map);
  void Reload(const GameChoice& choice);
  void ReloadByItself();
  void ShowNews();
  ShownState Shown() const;
  void ShowAgain(const ShownState& shown);
  void RememberGame();
  void RememberShown();
  void RememberSoon();
  UnsavedChanges Unsaved() const;
  bool MayLeaveGame();
  Result<void> SaveChanges(const UnsavedChanges& changes);
  void UseColours(const RaceColourTable& preset);
  void ShowNewColours();
  void SurveyReports();
  void ShowReports();
  void EnableGameCommands();
  void ShowSets();
  void KeepSets(const Preferences& preferences);
  void ShowMarkerNumber();
  void KeepPreferences(const Preferences& preferences);
  void ResetWindow();
  void PaintMap(OverlaySwitches switches);
  void ShowWhetherStopped(bool isStopped, const char* sentence);

  // What is to be there again when the year that was loaded is shown once more.
  struct LookBack {
    GameSession Loaded;
    MapState State;
    ShownState Shown;
  };

  std::unique_ptr<Prompts> ownPrompts_;
  Prompts& prompts_;
  PreferencesFile preferences_;
  GameMemories memories_{preferences_};
  GameWatcher watcher_;
  bool arePlacesKnown_ = false;  // of the docks
  OpenState open_;
  // These have their places kept when they go, and so go before.
  std::unique_ptr<OpenFile> openFile_;
  std::unique_ptr<FindPlanet> findPlanet_;
  std::unique_ptr<Grid> grid_;
  std::unique_ptr<Manual> manual_;
  // What the open dialog is to show when it is opened next.
  std::optional<GameChoice> offered_;
  GameSession session_;
  SavedSession saved_;
  // With what the game would be loaded again.
  GameChoice next_;
  // The game's files as they were loaded, as they are, and the changes that the user has put off.
  GameWatcher::Stamps loadedFiles_;
  GameWatcher::Stamps files_;
  std::vector<FileChange> dismissed_;
  OverlaySetsMenu* sets_ = nullptr;
  RecentGames* recent_ = nullptr;
  QTimer remember_;
  ReportSurveyor surveyor_;
  ReportSurveys surveys_;
  HistoryKeeper keeper_;
  QTimer keep_;
  std::string game_;        // its hash
  std::vector<int> years_;  // of the game that are stored
  std::unique_ptr<LookBack> lookBack_;
  int comparedYear_ = 0;  // chosen to be compared with; 0: the last one before
  std::optional<GameSession> compared_;
  std::vector<int> ringed_;  // planets
  MapState state_;
  std::optional<SurfacePoint> pointer_;  // where it was over the map last
  QScrollArea* scroll_ = nullptr;
  QWidget* area_ = nullptr;
  bool isDrawing_ = false;
  LongStep* redraw_ = nullptr;
  // Since the last redraw: the race chooser has changed, and what depends on it has been drawn.
  bool isChoiceDrawn_ = false;
};

}  // namespace quorvane

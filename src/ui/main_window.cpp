#include "ui/main_window.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <algorithm>
#include <optional>
#include <utility>

#include "loading/load_game.h"
#include "paint/twips.h"
#include "rules/every_eye_colours.h"
#include "screens/main_layout.h"
#include "screens/main_texts.h"
#include "ui/controls.h"
#include "ui/details_panel.h"
#include "ui/drawing_board.h"
#include "ui/find_planet.h"
#include "ui/grid.h"
#include "ui/legend.h"
#include "ui/manual.h"
#include "ui/map_navigator.h"
#include "ui/map_panel.h"
#include "ui/message_box_prompts.h"
#include "ui/overlay_bar.h"
#include "ui/overlay_sets_menu.h"
#include "ui/pixel_rect.h"
#include "ui/recent_games.h"
#include "ui/reload_bar.h"
#include "ui/texts.h"
#include "ui/year_band.h"

namespace quorvane {
namespace {

// How much of the window's height lies above and below its client area on the systems whose frame
// the layout was made for; a thicker frame must not push the status line out of sight.
constexpr int kFrameTwips = 735;
// Under what the places of the docks are kept.
constexpr const char* kDocks = "MainDocks";
constexpr const char* kChooserText = "Select a Race, then click Show Boundary";

// Controls that the arrow keys belong to while they have the focus.
bool UsesArrowKeys(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
         qobject_cast<const QRadioButton*>(widget) != nullptr ||
         qobject_cast<const QTabBar*>(widget) != nullptr ||
         qobject_cast<const QComboBox*>(widget) != nullptr ||
         qobject_cast<const QAbstractSlider*>(widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(widget) != nullptr;
}

std::optional<ScrollKey> ScrollKeyOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return ScrollKey::Left;
    case Qt::Key_Up:
      return ScrollKey::Up;
    case Qt::Key_Right:
      return ScrollKey::Right;
    case Qt::Key_Down:
      return ScrollKey::Down;
    default:
      return std::nullopt;
  }
}

// 1 Shift, 2 Ctrl, 4 Alt, added together.
int ShiftMaskOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
         (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

// The scrolled area is at least as large as its frame; a scroll bar takes room from the other
// direction only where it is needed.
QSize AreaSize(QSize frame, QSize needed, int scrollBar) {
  const bool isWide = needed.width() > frame.width();
  const bool isHigh = needed.height() > frame.height() - (isWide ? scrollBar : 0);
  const QSize room = frame - QSize(isHigh ? scrollBar : 0, isWide ? scrollBar : 0);
  return room.expandedTo(needed);
}

// Where it can, the window opens whole on a small screen, too.
QSize FirstSize(const QWidget& window) {
  constexpr QSize kWanted(1280, 860);
  constexpr QSize kLeast(1280, 700);
  return kWanted.boundedTo(RoomOnScreen(window).expandedTo(kLeast));
}

}  // namespace

Main::Main(std::filesystem::path startFolder, Prompts* prompts,
           const std::filesystem::path& preferences, const std::filesystem::path& history)
    : Menu(*menuBar()),
      ownPrompts_(prompts == nullptr ? std::make_unique<MessageBoxPrompts>(*this) : nullptr),
      prompts_(prompts == nullptr ? *ownPrompts_ : *prompts),
      preferences_(preferences),
      keeper_(history) {
  open_.StarsInstallDir = std::move(startFolder);
  setObjectName("Main");
  BuildArea();
  BuildDocks();
  BuildHistory();
  BuildPlanets();
  ConnectParts();
  ConnectMenus();
  Form_Load();
  resize(FirstSize(*this));
  RememberPlace(*this, preferences_);
  arePlacesKnown_ = restoreState(preferences_.PlaceOf(kDocks));
  qApp->installEventFilter(this);
}

Main::~Main() {
  hide();  // its place is kept while there is somebody to keep it
  qApp->removeEventFilter(this);
}

void Main::Form_Load() {
  Menu.mnuData->setEnabled(false);
  Menu.mnuOver->setEnabled(false);
  setWindowTitle(ToQString(MainCaption(QUORVANE_VERSION, nullptr)));
  const MapOptions& options = preferences_.Values().Map;
  Menu.ViewOutlineNames->setChecked(options.OutlineNames);
  Menu.ViewFewerNames->setChecked(options.FewerNames);
  Menu.ViewGatesOfSelected->setChecked(options.GatesOfSelectedOnly);
  Menu.ViewNumbersInLegend->setChecked(preferences_.Values().NumbersInLegend);
  Menu.GameReopenAtStart->setChecked(preferences_.Values().ReopenAtStart);
  Menu.GameReloadByItself->setChecked(preferences_.Values().ReloadByItself);
  Menu.GameKeepHistory->setChecked(preferences_.Values().KeepHistory);
  RaceLegend->ShowNumbers(preferences_.Values().NumbersInLegend);
  Navigator->EnableCommands();
  sets_->ShowSets(preferences_.Values().Sets);
  ShowSets();
  EnableGameCommands();
  TellFault();
}

// What is wrong with the preferences is no reason to interrupt anybody.
void Main::TellFault() {
  const std::optional<PreferencesFile::Fault> fault = preferences_.TakeFault();
  if (fault) TellQuietly(fault->Words, fault->Details);
}

void Main::TellQuietly(const QString& words, const QString& details) {
  theplanet->setText(" " + words);
  SetPlainToolTip(*theplanet, details);
}

void Main::BuildArea() {
  scroll_ = new QScrollArea(this);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  area_ = new QWidget();
  scroll_->setWidget(area_);
  setCentralWidget(scroll_);
  setMinimumSize(PixelsFromTwips(3000), PixelsFromTwips(5000));

  Overlays = new OverlayBar(*area_, *Menu.mnuOver);
  Combo1 = new QComboBox(area_);
  Combo1->setObjectName("Combo1");
  Combo1->setEditable(true);
  NameBox(*Combo1, tr("Race of the estimated habitability"));
  Combo1->setInsertPolicy(QComboBox::NoInsert);
  Combo1->setEditText(kChooserText);
  Combo1->setEnabled(false);
  Combo1->setGeometry(PixelRect(RaceChooserRect()));
  Map = new MapPanel(*area_, state_);
  Navigator = new MapNavigator(*Map, state_, Menu);
  Band = new YearBand(Map->Universe);
  Bar = new ReloadBar(Map->Universe);
  RaceLegend = new Legend(*area_);
  Detail = new DetailsPanel(area_);
  Board = new DrawingBoard(session_, *Map, *Detail->Tools, prompts_);
  XYCoord = NewValue("XYCoord", area_);
  theplanet = NewValue("theplanet", area_);
  ProgressBar1 = new QProgressBar(area_);
  ProgressBar1->setObjectName("ProgressBar1");
  ProgressBar1->setAccessibleName(tr("Progress of loading and drawing"));
  ProgressBar1->setTextVisible(false);
  ProgressBar1->setValue(0);
}

void Main::ConnectParts() {
  connect(Overlays, &OverlayBar::Switched, this, [this](bool isButton) {
    if (isButton) Map->Universe->setFocus();
    DrawOverlays();
  });
  // Another race that is chosen is told of twice, first as a change; the same race, chosen again
  // over a half typed name, only as a choice.
  connect(Combo1, &QComboBox::currentIndexChanged, this, [this] {
    Combo1_Click();
    isChoiceDrawn_ = true;
  });
  connect(Combo1, &QComboBox::activated, this, [this] {
    if (!std::exchange(isChoiceDrawn_, false)) Combo1_Click();
  });
  connect(Map, &MapPanel::Resized, this, &Main::Map_Resized);
  connect(Navigator, &MapNavigator::Moved, this, &Main::Navigator_Moved);
  connect(Navigator, &MapNavigator::FrameDue, this, &Main::Navigator_FrameDue);
  connect(Map->Universe, &PictureBox::MouseDown, this, &Main::Universe_MouseDown);
  connect(Map->Universe, &PictureBox::MouseMove, this, &Main::Universe_MouseMove);
  connect(Board, &DrawingBoard::Cleared, this, &Main::Board_Cleared);
  connect(RaceLegend, &Legend::Chosen, this, &Main::RaceC_Click);
  const auto focusMap = [this] { Map->Universe->setFocus(); };
  connect(Detail->Minerals, &MineralsTab::ChartsSwitched, this, focusMap);
  // A button that lost the focus before it saw the click would not be chosen.
  connect(Detail->Tools, &DrawingTools::ChosenByMouse, this, focusMap, Qt::QueuedConnection);
}

// No overlay may change in the middle of a zoom.
void Main::EnableOverlays(bool isEnabled) {
  Overlays->EnableButtons(kOverlayButtonCount, isEnabled);
  Menu.mnuOver->setEnabled(isEnabled);
  ShowSets();
}

void Main::ConnectMenus() {
  connect(Menu.mnuMap, &QAction::triggered, this, &Main::mnuMap_Click);
  connect(Menu.mnuSaveRaceC, &QAction::triggered, this, &Main::mnuSaveRaceC_Click);
  connect(Menu.mnuExit, &QAction::triggered, this, &Main::mnuExit_Click);
  connect(Menu.mnuSave, &QAction::triggered, this, &Main::mnuSave_Click);
  connect(Menu.mnuSearchPlanet, &QAction::triggered, this, &Main::mnuSearchPlanet_Click);
  connect(Menu.mnuHideSelect, &QAction::triggered, this, &Main::mnuHideSelect_Click);
  connect(Menu.mnuGrid, &QAction::triggered, this, &Main::mnuGrid_Click);
  connect(Menu.mnuGrid2, &QAction::triggered, this, &Main::mnuGrid2_Click);
  for (const QAction* option :
       {Menu.ViewOutlineNames, Menu.ViewFewerNames, Menu.ViewGatesOfSelected}) {
    connect(option, &QAction::triggered, this, &Main::ViewOption_Click);
  }
  connect(Menu.ViewNumbersInLegend, &QAction::triggered, this, &Main::GameOption_Click);
  ConnectGameMenu();
  connect(Menu.mnuAbout, &QAction::triggered, this, &Main::mnuAbout_Click);
  connect(Menu.mnuThanks, &QAction::triggered, this, &Main::mnuThanks_Click);
  connect(Menu.mnuManual, &QAction::triggered, this, &Main::mnuManual_Click);
}

void Main::ConnectGameMenu() {
  connect(Menu.GameReload, &QAction::triggered, this, &Main::GameReload_Click);
  recent_ = new RecentGames(*Menu.GameRecent, *Menu.GameMenu, memories_);
  // The menu is filled anew when another game is opened, and is on its way up until then.
  connect(recent_, &RecentGames::Chosen, this, &Main::Open, Qt::QueuedConnection);
  connect(Menu.GameReopenAtStart, &QAction::triggered, this, &Main::GameOption_Click);
  connect(Menu.GameReloadByItself, &QAction::triggered, this, &Main::GameOption_Click);
  connect(Menu.GameColoursForEveryEye, &QAction::triggered, this,
          [this] { UseColours(kEveryEyeColours); });
  connect(Menu.GameDefaultColours, &QAction::triggered, this,
          [this] { UseColours(kDefaultRaceColours); });
  remember_.setSingleShot(true);
  connect(&remember_, &QTimer::timeout, this, &Main::RememberShown);
  connect(Detail, &QTabWidget::currentChanged, this, &Main::RememberSoon);
  connect(&watcher_, &GameWatcher::Began, this, &Main::Watcher_Began);
  connect(&watcher_, &GameWatcher::Changed, this, &Main::Watcher_Changed);
  connect(Bar, &ReloadBar::ReloadAsked, this, &Main::GameReload_Click);
  connect(Bar, &ReloadBar::Dismissed, this, &Main::Bar_Dismissed);
  sets_ = new OverlaySetsMenu(*Menu.ViewOverlaySets);
  connect(sets_, &OverlaySetsMenu::SetChosen, this, &Main::ViewSet_Choose);
  connect(sets_, &OverlaySetsMenu::SaveAsked, this, &Main::ViewSaveSet_Click);
  connect(sets_, &OverlaySetsMenu::RemoveAsked, this, &Main::ViewRemoveSet_Click);
}

void Main::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  Form_Resize();
}

// The frame that a window manager puts around the window becomes known with its first move.
void Main::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  Form_Resize();
}

void Main::closeEvent(QCloseEvent* event) {
  if (!MayLeaveGame()) return event->ignore();
  if (keep_.isActive()) KeepYear();
  RememberShown();
  KeepArrangement();
  preferences_.KeepPlace(kDocks, saveState());
  QMainWindow::closeEvent(event);
}

// Docks take their room from the window that is laid out.
void Main::Form_Resize() {
  const int height = std::min(TwipsFromPixels(frameGeometry().height()),
                              TwipsFromPixels(scroll_->height()) + kFrameTwips);
  const int docked = width() - scroll_->width();
  const int width = TwipsFromPixels(frameGeometry().width() - docked);
  const std::optional<MainLayout> layout = LayOutMain(height, width);
  if (!layout) return;
  const TwipRect needed = {.Width = std::max(layout->Detail.Right(), RaceChooserRect().Right()),
                           .Height = layout->ProgressBar.Bottom()};
  area_->resize(AreaSize(scroll_->size(), PixelRect(needed).size(),
                         style()->pixelMetric(QStyle::PM_ScrollBarExtent)));
  Map->Place(PixelRect(layout->Universe));
  Detail->setGeometry(PixelRect(layout->Detail));
  XYCoord->setGeometry(PixelRect(layout->XYCoord));
  theplanet->setGeometry(PixelRect(layout->ThePlanet));
  ProgressBar1->setGeometry(PixelRect(layout->ProgressBar));
  RaceLegend->Place(*layout);
}

bool Main::eventFilter(QObject* target, QEvent* event) {
  const auto* widget = qobject_cast<QWidget*>(target);
  if (target == scroll_ && event->type() == QEvent::Resize) Form_Resize();  // a dock came or went
  if (widget == nullptr) return QMainWindow::eventFilter(target, event);
  const bool isFloatingDock = qobject_cast<const QDockWidget*>(widget->window()) != nullptr;
  if (isFloatingDock && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && LeaveYear(*widget)) {
    return true;
  }
  if (widget->window() != this) return QMainWindow::eventFilter(target, event);
  if (event->type() == QEvent::ShortcutOverride) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool scrolls = Navigator->LeavesAltToArrowKeys() && ScrollKeyOf(key->key()) &&
                         key->modifiers() == Qt::AltModifier && !UsesArrowKeys(widget);
    if (!scrolls) return QMainWindow::eventFilter(target, event);
    event->accept();  // as a key that is pressed, and no shortcut
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isUsed = key->key() == Qt::Key_Escape
                            ? GiveUpZoomBox() || LeaveYear(*widget)
                            : !UsesArrowKeys(widget) && Form_KeyDown(key->key(), key->modifiers());
    if (isUsed) return true;
  }
  return QMainWindow::eventFilter(target, event);
}

bool Main::GiveUpZoomBox() {
  if (!quorvane::GiveUpZoomBox(state_)) return false;
  Map->ShowZoomBox();
  EnableOverlays(true);
  return true;
}

bool Main::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
  const std::optional<ScrollKey> scroll = ScrollKeyOf(key);
  if (!scroll || !ScrollView(state_, *scroll, ShiftMaskOf(modifiers))) return false;
  Navigator->Visit(true);
  DrawOverlays();
  Map->PlaceSelector();
  return true;
}

}  // namespace quorvane

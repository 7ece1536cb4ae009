#include "ui/main_window.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <algorithm>
#include <optional>
#include <utility>

#include "analysis/find_planet.h"
#include "analysis/race_colour.h"
#include "loading/load_game.h"
#include "loading/map_picture_file.h"
#include "loading/race_colour_file.h"
#include "platform/toolkit/picture_file.h"
#include "platform/toolkit/twips.h"
#include "render/main_layout.h"
#include "render/planet_pick.h"
#include "ui/about.h"
#include "ui/details_panel.h"
#include "ui/drawing_board.h"
#include "ui/empire_stat.h"
#include "ui/find_planet.h"
#include "ui/grid.h"
#include "ui/labels.h"
#include "ui/legend.h"
#include "ui/map_panel.h"
#include "ui/message_box_prompts.h"
#include "ui/overlay_bar.h"
#include "ui/pixel_rect.h"
#include "ui/race_colour.h"
#include "ui/texts.h"
#include "ui/thanksto.h"

namespace quorvane {
namespace {

constexpr QSize kFirstSize(1280, 860);
// How much of the window's height lies above and below its client area on the systems whose frame
// the layout was made for; a thicker frame must not push the status line out of sight.
constexpr int kFrameTwips = 735;
constexpr const char* kChooserText = "Select a Race, then click Show Boundary";

// Controls that the arrow keys belong to while they have the focus.
bool UsesArrowKeys(const QWidget* widget) {
  return qobject_cast<const QLineEdit*>(widget) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
         qobject_cast<const QRadioButton*>(widget) != nullptr ||
         qobject_cast<const QTabBar*>(widget) != nullptr ||
         qobject_cast<const QAbstractItemView*>(widget) != nullptr;
}

// The scrolled area is at least as large as its frame; a scroll bar takes room from the other
// direction only where it is needed.
QSize AreaSize(QSize frame, QSize needed, int scrollBar) {
  const bool isWide = needed.width() > frame.width();
  const bool isHigh = needed.height() > frame.height() - (isWide ? scrollBar : 0);
  const QSize room = frame - QSize(isHigh ? scrollBar : 0, isWide ? scrollBar : 0);
  return room.expandedTo(needed);
}

}  // namespace

Main::Main(std::filesystem::path startFolder, Prompts* prompts)
    : Menu(*menuBar()),
      ownPrompts_(prompts == nullptr ? std::make_unique<MessageBoxPrompts>(*this) : nullptr),
      prompts_(prompts == nullptr ? *ownPrompts_ : *prompts) {
  open_.StarsInstallDir = std::move(startFolder);
  setObjectName("Main");
  BuildArea();
  ConnectParts();
  ConnectMenus();
  Form_Load();
  resize(kFirstSize);
  qApp->installEventFilter(this);
}

Main::~Main() { qApp->removeEventFilter(this); }

void Main::Form_Load() {
  Menu.mnuData->setEnabled(false);
  Menu.mnuOver->setEnabled(false);
  setWindowTitle(ToQString(MainCaption(QUORVANE_VERSION, nullptr)));
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
  Combo1->setAccessibleName(tr("Race of the estimated habitability"));
  Combo1->setEditable(true);
  Combo1->setInsertPolicy(QComboBox::NoInsert);
  Combo1->setEditText(kChooserText);
  Combo1->setEnabled(false);
  Combo1->setGeometry(PixelRect(RaceChooserRect()));
  Map = new MapPanel(*area_);
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
  connect(Combo1, &QComboBox::currentIndexChanged, this, &Main::Combo1_Click);
  connect(Map, &MapPanel::Resized, this, &Main::Map_Resized);
  connect(Map, &MapPanel::ZoomBoxStarted, this, [this] { EnableOverlays(false); });
  connect(Map, &MapPanel::ZoomBoxEnded, this, [this] {
    EnableOverlays(true);
    DrawOverlays();
    PlaceSelector();
  });
  connect(Map->Universe, &PictureBox::MouseDown, this, &Main::Universe_MouseDown);
  connect(Map, &MapPanel::Clicked, this, &Main::Universe_Clicked);
  connect(Map, &MapPanel::Hovered, this, &Main::Universe_Hovered);
  connect(Board, &DrawingBoard::Cleared, this, &Main::Board_Cleared);
  connect(RaceLegend, &Legend::Chosen, this, &Main::RaceC_Click);
  connect(Detail, &DetailsPanel::ChartsSwitched, this, [this] { Map->Universe->setFocus(); });
}

// No overlay may change in the middle of a zoom.
void Main::EnableOverlays(bool isEnabled) {
  Overlays->EnableButtons(kOverlayButtonCount, isEnabled);
  Menu.mnuOver->setEnabled(isEnabled);
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
  connect(Menu.mnuAbout, &QAction::triggered, this, &Main::mnuAbout_Click);
  connect(Menu.mnuThanks, &QAction::triggered, this, &Main::mnuThanks_Click);
  // A picture or colours to save exist once a game is loaded.
  for (QAction* item : {Menu.mnuSave, Menu.mnuSaveRaceC}) {
    item->setEnabled(false);
  }
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

void Main::Form_Resize() {
  const int height = std::min(TwipsFromPixels(frameGeometry().height()),
                              TwipsFromPixels(scroll_->height()) + kFrameTwips);
  const int width = TwipsFromPixels(frameGeometry().width());
  const std::optional<MainLayout> layout = LayOutMain(height, width);
  if (!layout) return;
  const TwipRect needed = {.Width = std::max(layout->Detail.Right(), RaceChooserRect().Right()),
                           .Height = layout->ProgressBar.Bottom()};
  area_->resize(AreaSize(scroll_->size(), PixelRect(needed).size(),
                         style()->pixelMetric(QStyle::PM_ScrollBarExtent)));
  const QRect map = PixelRect(layout->Universe);
  QRect detail = PixelRect(layout->Detail);
  detail.moveBottom(map.bottom());  // lined up to the pixel, whatever the rounding
  Map->Place(map);
  Detail->setGeometry(detail);
  XYCoord->setGeometry(PixelRect(layout->XYCoord));
  theplanet->setGeometry(PixelRect(layout->ThePlanet));
  ProgressBar1->setGeometry(PixelRect(layout->ProgressBar));
  RaceLegend->Place(*layout);
}

// The picture of a resized map is blank. It gets back all that it showed, drawings that are not
// saved yet included.
void Main::Map_Resized() {
  session_.BordersCached = 0;
  if (session_.PlanetCount == 0 || isDrawing_) return;
  DrawMap(Overlays->Switches());
  Board->DrawShapes();
}

bool Main::eventFilter(QObject* target, QEvent* event) {
  const auto* widget = qobject_cast<QWidget*>(target);
  if (event->type() == QEvent::KeyPress && widget != nullptr && widget->window() == this &&
      !UsesArrowKeys(widget)) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (Form_KeyDown(key->key(), key->modifiers())) return true;
  }
  return QMainWindow::eventFilter(target, event);
}

bool Main::Form_KeyDown(int key, Qt::KeyboardModifiers modifiers) {
  if (!Map->Scroll(key, modifiers)) return false;
  DrawOverlays();
  PlaceSelector();
  return true;
}

void Main::Combo1_Click() {
  if (Overlays->Switches().IsOn(OverlayKind::EstimateHabValues)) DrawOverlays();
}

void Main::Universe_MouseDown(int button, int shift, double x, double y) {
  if (Board->Universe_MouseDown({x, y})) return;
  Map->Universe_MouseDown(button, shift, x, y);
}

// Tells all that is known of the planet that was clicked.
void Main::Universe_Clicked(SurfacePoint at) {
  const int planet = PlanetAt(session_, Map->State().View, at);
  SelectPlanet(session_, planet);
  PlaceSelector();
  if (planet > 0) Detail->ShowPlanet(session_, planet);
}

void Main::Universe_Hovered(SurfacePoint at, bool isPicking) {
  const MapView& view = Map->State().View;
  if (isPicking) {
    const int planet = PlanetAt(session_, view, at);
    const QString name = planet > 0 ? ToQString(session_.Planet(planet).Name()) : QString();
    theplanet->setText(planet > 0 ? " " + name : " Deep Space");
    Map->Universe->setToolTip(planet > 0 ? "Click for more details on " + name : QString());
  }
  XYCoord->setText(ToQString(PointerText(view, at)));
  Board->Universe_MouseMove(at);
}

// Without the layer, its overlay is off.
void Main::Board_Cleared() {
  {
    const QScopedValueRollback oneRedraw(isDrawing_, true);
    Overlays->OvButt[static_cast<std::size_t>(OverlayKind::QvlDrawing)]->setChecked(false);
  }
  DrawOverlays();
}

void Main::RaceC_Click(int index) {
  const QString name = RaceLegend->Race[static_cast<std::size_t>(index)]->text();
  const int slot = ColourSlotOf(session_, ToText(name));
  if (slot == 0) return;
  RaceColour dialog(session_, index, slot, name, this);
  if (dialog.exec() == QDialog::Accepted) RaceLegend->ShowChangedColours(session_);
  session_.BordersCached = 0;
  Map->Universe2->Surface().Clear();
  DrawOverlays();
}

void Main::PlaceSelector() { Map->PlaceSelector(session_.SelectedX, session_.SelectedY); }

void Main::mnuMap_Click() {
  if (openFile_ == nullptr || openFile_->IsDiscarded()) {
    openFile_ = std::make_unique<OpenFile>(open_, prompts_, this);
  }
  openFile_->exec();
  if (open_.OpenDialogResult != 0) return;
  LoadChosenGame();
}

void Main::LoadChosenGame() {
  const bool wasEnabled = Menu.mnuOver->isEnabled();
  Menu.mnuOver->setEnabled(false);
  repaint();
  Result<GameSession> loaded = LoadGame(open_.Choice, session_.MyRaceName, ProgressDisplay());
  if (!loaded) {
    Menu.mnuOver->setEnabled(wasEnabled);
    ProgressBar1->setValue(0);
    prompts_.Inform(loaded.Message());
    return;
  }
  session_ = std::move(*loaded);
  ShowLoadedGame();
  if (session_.OwnersWithoutRecord.empty()) return;
  std::string message =
      "The game has more than 16 races. These are left out of colours and counts:";
  for (const std::string& owner : session_.OwnersWithoutRecord) message += "\n" + owner;
  prompts_.Inform(message);
}

void Main::ShowLoadedGame() {
  ResetWindow();
  setWindowTitle(ToQString(MainCaption(QUORVANE_VERSION, &session_)));
  for (int player = 1; player <= session_.PlayerCount; ++player) {
    Combo1->addItem(ToQString(session_.Player(player).Name()));
  }
  RaceLegend->ShowPlayers(session_);
  Detail->ShowRaces(session_);
  Board->ShowLoadedGame();

  Combo1->setCurrentIndex(session_.PlayerCount > 0 ? 0 : -1);
  Combo1->setEnabled(true);
  EnableOverlays(true);
  const bool isNewStyle = session_.ReportStyle == kNewReportStyle;
  Overlays->Item(OverlayKind::ValueAfterTerraforming).setEnabled(isNewStyle);
  Overlays->Item(OverlayKind::CompleteStargateNetwork).setEnabled(isNewStyle);
  Menu.mnuSave->setEnabled(true);
  Menu.mnuSaveRaceC->setEnabled(true);
  Menu.mnuData->setEnabled(true);
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
  Map->ShowUniverse(session_.UniverseExtent);
  Detail->DisableCharts();
  PlaceSelector();
}

void Main::DrawOverlays() {
  // Switches that the redraw itself changes are part of the same user action.
  if (isDrawing_) return;
  const QScopedValueRollback oneRedraw(isDrawing_, true);
  OverlaySwitches switches = Overlays->Switches();
  const bool isZoomIn = switches.IsOn(OverlayKind::ZoomIn);
  if (Map->ArmZoom(isZoomIn)) {
    Detail->Tools->StopDrawing();
    return;
  }
  if (Map->LeaveZoom(isZoomIn)) {
    constexpr int kButtonsOfFullView = 11;  // the estimated habitability is left as it is
    Overlays->EnableButtons(kButtonsOfFullView);
    Detail->Tools->StopDrawing();
    PlaceSelector();
  }
  if (switches.IsOn(OverlayKind::ClearMap)) {
    switches.ClearMap();
    Overlays->Show(switches);
  }
  const bool wantsDrawing = switches.IsOn(OverlayKind::QvlDrawing);
  const bool hasDrawing = wantsDrawing && Board->ReadLayer();
  if (wantsDrawing && !hasDrawing) {
    switches.Set(OverlayKind::QvlDrawing, false);
    Overlays->Show(switches);
  }
  Board->ForgetShapes();
  DrawMap(switches);
  if (hasDrawing) Detail->Tools->ResetColour();
}

void Main::DrawMap(OverlaySwitches switches) {
  switches.RaceName = ToText(Combo1->currentText());
  Map->Draw(session_, switches, Board->Layer(), ProgressDisplay());
}

ShowProgress Main::ProgressDisplay() {
  return [this](int value, int maximum) {
    ProgressBar1->setRange(0, maximum);
    ProgressBar1->setValue(value);
    ProgressBar1->repaint();
  };
}

void Main::mnuHideSelect_Click() {
  SelectPlanet(session_, 0);
  PlaceSelector();
}

void Main::mnuSearchPlanet_Click() {
  if (findPlanet_ == nullptr) findPlanet_ = std::make_unique<FindPlanet>(session_, prompts_, this);
  findPlanet_->exec();
  PlaceSelector();
  const bool isSelected = session_.SelectedX != 0;
  if (!isSelected || findPlanet_->ShowFoundDetails != 1) return;
  const SurfacePoint at = Map->State().View.ToSurface(
      {static_cast<double>(session_.SelectedX), static_cast<double>(session_.SelectedY)});
  Universe_MouseDown(1, 0, at.X, at.Y);
}

void Main::mnuGrid_Click() {
  if (grid_ == nullptr) grid_ = std::make_unique<Grid>();
  grid_->Fill(session_);
  grid_->ShowInFront();
}

void Main::mnuGrid2_Click() { EmpireStat(session_, prompts_, this).exec(); }

void Main::mnuAbout_Click() { About(this).exec(); }

void Main::mnuThanks_Click() { Thanksto(this).exec(); }

void Main::mnuSave_Click() {
  const std::filesystem::path file = MapPictureFile(session_);
  prompts_.Inform("Map saved to " + TextFromPath(file));
  const Result<void> saved = SavePicture(file, Map->Universe->Surface().Picture());
  if (!saved) prompts_.Inform(saved.Message());
}

void Main::mnuSaveRaceC_Click() {
  const Result<void> saved = WriteRaceColourFile(session_);
  prompts_.Inform(saved ? "Current Colour settings saved" : saved.Message());
}

void Main::mnuExit_Click() {
  close();
  QApplication::quit();
}

}  // namespace quorvane

// The docks beside the main window's map.
#include <QAction>
#include <QDockWidget>
#include <QScrollArea>
#include <QStyle>
#include <algorithm>
#include <cmath>

#include "map/planets_in_view.h"
#include "screens/main_layout.h"
#include "ui/details_panel.h"
#include "ui/distances_dock.h"
#include "ui/key_dock.h"
#include "ui/legend.h"
#include "ui/main_window.h"
#include "ui/map_navigator.h"
#include "ui/map_panel.h"
#include "ui/overlay_bar.h"
#include "ui/planets_dock.h"
#include "ui/reports_dock.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

// Gives the keyboard to the first control of a dock that takes it.
void FocusFirst(QWidget& content) {
  for (QWidget* each = &content; each == &content || content.isAncestorOf(each);
       each = each->nextInFocusChain()) {
    const bool takesKeys = (each->focusPolicy() & Qt::TabFocus) != 0;
    if (!takesKeys || !each->isEnabled()) continue;
    return each->setFocus(Qt::TabFocusReason);
  }
}

}  // namespace

void Main::BuildDocks() {
  KeyDock = new quorvane::KeyDock(this);
  AddDock(*KeyDock, *Menu.ViewKey);
  connect(KeyDock->toggleViewAction(), &QAction::toggled, this, &Main::ShowKey);
  DistancesDock = new quorvane::DistancesDock(this);
  AddDock(*DistancesDock, *Menu.ViewDistances);
  connect(DistancesDock->toggleViewAction(), &QAction::toggled, this, [this] {
    ShowNearest();
    ShowDistances();
  });
  connect(Menu.ViewKeepDestination, &QAction::triggered, this, &Main::ViewKeepDestination_Click);
  connect(DistancesDock, &quorvane::DistancesDock::PlanetChosen, this, &Main::Dock_PlanetChosen);
  connect(DistancesDock, &quorvane::DistancesDock::KeepAsked, this,
          &Main::ViewKeepDestination_Click);
  connect(DistancesDock, &quorvane::DistancesDock::ForgetAsked, this,
          [this] { KeepDestination(0); });
  ReportsDock = new quorvane::ReportsDock(this);
  AddDock(*ReportsDock, *Menu.GameReports);
  connect(ReportsDock->toggleViewAction(), &QAction::toggled, this, &Main::SurveyReports);
  connect(ReportsDock, &quorvane::ReportsDock::Ticked, this, &Main::ReportsDock_Ticked);
  connect(ReportsDock, &quorvane::ReportsDock::YearTyped, this, &Main::ReportsDock_YearTyped);
  connect(&surveyor_, &ReportSurveyor::Found, this, [this](const ReportSurveys& surveys) {
    surveys_ = surveys;
    ShowReports();
  });
}

// The menu item opens and closes the dock, and tells whether it is open.
void Main::AddDock(QDockWidget& dock, QAction& item) {
  addDockWidget(Qt::RightDockWidgetArea, &dock);
  dock.hide();
  connect(dock.toggleViewAction(), &QAction::toggled, &item, &QAction::setChecked);
  connect(&item, &QAction::triggered, this, [this, &dock](bool isOpen) {
    if (isOpen) return OpenDock(dock);
    dock.hide();
    Map->Universe->setFocus();
  });
}

// The empty place beside the map, between the legend and the details, on the screen.
QRect Main::PlaceOfFloatingDock() const {
  constexpr int kGap = 8;
  constexpr int kStep = 24;  // so that each dock leaves the titles of the others in sight
  const QRect swatch = RaceLegend->RaceC[kLegendRows - 1]->geometry();
  const QRect details = Detail->geometry();
  const QRect place(QPoint(details.left(), swatch.bottom() + kGap),
                    QPoint(details.right(), details.top() - kGap));
  const QList<QDockWidget*> docks = findChildren<QDockWidget*>();
  const auto taken = std::ranges::count_if(
      docks, [](const QDockWidget* dock) { return dock->isVisible() && dock->isFloating(); });
  return place.translated(area_->mapToGlobal(QPoint()) +
                          QPoint(0, kStep * static_cast<int>(taken)));
}

// A dock that was never placed takes the room beside the map and its details; where there is none
// it floats.
void Main::OpenDock(QDockWidget& dock) {
  constexpr int kLeastWidth = 200;
  const int wantedWidth = &dock == PlanetsDock ? 640 : 320;
  const int room = scroll_->width() - Detail->geometry().right() - 1 -
                   style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent);
  const bool isAlone = dock.isHidden() && !dock.isFloating() && scroll_->width() == width();
  if (!arePlacesKnown_ && isAlone && room < kLeastWidth) {
    const QRect place = PlaceOfFloatingDock();
    dock.setFloating(true);
    dock.setGeometry(place);
  } else if (!arePlacesKnown_ && isAlone) {
    resizeDocks({&dock}, {std::min(room, wantedWidth)}, Qt::Horizontal);
  }
  dock.show();
  dock.raise();
  FocusFirst(*dock.widget());
}

void Main::ShowKey() {
  if (KeyDock->isHidden()) return;
  OverlaySwitches switches = Overlays->Switches();
  switches.RaceName = ToText(Combo1->currentText());
  KeyDock->ShowKey(session_, switches, state_.View, preferences_.Values().Map,
                   Map->Universe->size());
}

void Main::ShowNearest() {
  if (DistancesDock->isHidden()) return;
  DistancesDock->ShowNearest(session_, SelectedPlanet(state_, session_));
}

// Tells how far it is to the pointer, whose place counts in whole light years as in the status
// line, and to the destination.
void Main::ShowDistances() {
  const bool isShown = !DistancesDock->isHidden();
  const int from = isShown ? SelectedPlanet(state_, session_) : 0;
  const int to = state_.Destination;
  const DistanceTexts toKept = DescribeWay(session_, from, to);
  if (from > 0 && to > 0 && from != to) {
    Map->ShowWay(std::pair(PlaceOf(session_.Planet(from)), PlaceOf(session_.Planet(to))),
                 ToQString(toKept.LightYears));
  } else {
    Map->ShowWay({}, {});
  }
  if (!isShown) return;
  DistanceTexts toPointer;
  if (pointer_) {
    const StoredPoint at = state_.View.ToStored(*pointer_);
    toPointer = DescribeWay(session_, from, PlanetAt(session_, state_.View, *pointer_),
                            StoredPoint{std::floor(at.X), std::floor(at.Y)});
  }
  DistancesDock->ShowWays(from > 0 ? session_.Planet(from).Name() : "", toPointer, toKept);
}

void Main::Dock_PlanetChosen(int planet) {
  SelectPlanet(state_, session_, planet);
  Selection_Changed();
  Detail->ShowPlanet(session_, planet);
}

// Keeps the planet under the pointer, else that of the row with the keyboard, else the selected
// one.
void Main::ViewKeepDestination_Click() {
  int planet = 0;
  if (Navigator->Pointer()) planet = PlanetAt(session_, state_.View, *Navigator->Pointer());
  if (planet == 0) planet = DistancesDock->ChosenPlanet();
  if (planet == 0) planet = SelectedPlanet(state_, session_);
  if (planet > 0) KeepDestination(planet);
}

void Main::KeepDestination(int planet) {
  state_.Destination = planet;
  if (planet > 0) DistancesDock->show();
  ShowDistances();
}

}  // namespace quorvane

// What happens on the main window's map: redraws, the pointer, clicks and race colours.
#include <QScopedValueRollback>
#include <string>

#include "map/planets_in_view.h"
#include "rules/colour_slots.h"
#include "screens/captions.h"
#include "screens/planet_search.h"
#include "ui/controls.h"
#include "ui/details_panel.h"
#include "ui/drawing_board.h"
#include "ui/legend.h"
#include "ui/long_step.h"
#include "ui/main_window.h"
#include "ui/map_panel.h"
#include "ui/overlay_bar.h"
#include "ui/race_colour.h"
#include "ui/texts.h"

namespace quorvane {

// The picture of a resized map is blank. It gets back all that it showed, drawings that are not
// saved yet included.
void Main::Map_Resized() {
  session_.BordersCached = 0;
  if (redraw_ != nullptr) return redraw_->Stop();  // it begins again
  if (!session_.IsLoaded() || isDrawing_) return;
  DrawMap(Overlays->Switches());
  Board->DrawShapes();
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
    SetPlainToolTip(*Map->Universe, planet > 0 ? "Click for more details on " + name : QString());
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
  if (dialog.exec() == QDialog::Accepted) RaceLegend->ShowChangedColour(session_, index);
  session_.BordersCached = 0;
  Map->Universe2->Surface().Clear();
  DrawOverlays();
}

void Main::PlaceSelector() { Map->PlaceSelector(session_.SelectedX, session_.SelectedY); }

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
  if (hasDrawing) Detail->Tools->SelectColour(1);
}

void Main::DrawMap(OverlaySwitches switches) {
  isChoiceDrawn_ = false;
  switches.RaceName = ToText(Combo1->currentText());
  bool isComplete = false;
  QSize drawn;
  do {
    LongStep step(*ProgressBar1);
    const QScopedValueRollback running(redraw_, &step);
    drawn = Map->Universe->Surface().Picture().size();
    isComplete = Map->Draw(session_, switches, Board->Layer(), step.Display());
  } while (Map->Universe->Surface().Picture().size() != drawn);
  ShowWhetherStopped(!isComplete, "Drawing stopped");
}

// The status line tells of a step that was stopped until such a step is completed.
void Main::ShowWhetherStopped(bool isStopped, const char* sentence) {
  const QString shown = QString(" ") + sentence;
  if (isStopped) {
    theplanet->setText(shown);
  } else if (theplanet->text() == shown) {
    theplanet->clear();
  }
}

}  // namespace quorvane

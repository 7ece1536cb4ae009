// What happens on the main window's map: redraws, the pointer, clicks and race colours.
#include <QScopedValueRollback>
#include <string>

#include "map/overlay_stack.h"
#include "map/planets_in_view.h"
#include "map/redraw.h"
#include "rules/colour_slots.h"
#include "screens/main_texts.h"
#include "ui/controls.h"
#include "ui/details_panel.h"
#include "ui/drawing_board.h"
#include "ui/legend.h"
#include "ui/long_step.h"
#include "ui/main_window.h"
#include "ui/map_navigator.h"
#include "ui/map_panel.h"
#include "ui/overlay_bar.h"
#include "ui/overlay_sets_menu.h"
#include "ui/planets_dock.h"
#include "ui/race_colour.h"
#include "ui/texts.h"

namespace quorvane {

// The picture of a resized map is blank. It gets back all that it showed, drawings that are not
// saved yet included.
void Main::Map_Resized() {
  state_.BordersCached = 0;
  if (redraw_ != nullptr) return redraw_->Stop();  // it begins again
  if (!session_.IsLoaded() || isDrawing_) return;
  Repaint();
}

// Paints what the map shows already, drawings that are not saved yet included.
void Main::Repaint() {
  const QScopedValueRollback oneRedraw(isDrawing_, true);
  PaintMap(Overlays->Switches());
  if (!lookBack_) Board->DrawShapes();
  Map->Universe->update();
}

// The wheel, a pinch or a key shows another part of the universe.
void Main::Navigator_Moved() {
  Overlays->ShowZoom(state_.ZoomArmed == 1);
  if (state_.ZoomArmed == 0) ShowFullView();
}

// The map is painted anew, and what lies above it follows. The drawing layer is not read again, so
// nothing of it is lost.
void Main::Navigator_FrameDue() {
  if (isDrawing_) return;  // the map is being painted with this view
  Board->FollowView();
  Repaint();
  Map->PlaceSelector();
  Map->ShowZoomBox();
  if (Navigator->Pointer()) Universe_MouseMove(*Navigator->Pointer());
  RememberSoon();
}

void Main::ViewOption_Click() {
  Preferences preferences = preferences_.Values();
  preferences.Map = {.OutlineNames = Menu.ViewOutlineNames->isChecked(),
                     .FewerNames = Menu.ViewFewerNames->isChecked(),
                     .GatesOfSelectedOnly = Menu.ViewGatesOfSelected->isChecked()};
  KeepPreferences(preferences);
  if (session_.IsLoaded()) Repaint();
}

// Nothing is left of a zoom.
void Main::ShowFullView() {
  constexpr int kButtonsOfFullView = 11;  // the estimated habitability is left as it is
  Detail->Tools->StopDrawing();
  Overlays->EnableButtons(kButtonsOfFullView);
  Map->PlaceSelector();
}

void Main::ShowSelection() {
  Map->PlaceSelector();
  ShowMarkerNumber();
  Navigator->EnableCommands();
  ShowNearest();
  ShowDistances();
  ShowPlanetMenu();
  if (!PlanetsDock->isHidden()) PlanetsDock->ShowSelected(SelectedPlanet(state_, session_));
  RememberSoon();
}

// Some overlays depend on which planet is selected.
void Main::Selection_Changed() {
  ShowSelection();
  const MapOptions& options = preferences_.Values().Map;
  if (session_.IsLoaded() && (options.FewerNames || options.GatesOfSelectedOnly)) Repaint();
}

// Whose planet is selected can be read, however alike two colours are to an eye.
void Main::ShowMarkerNumber() {
  const int planet = SelectedPlanet(state_, session_);
  const bool isTold = preferences_.Values().NumbersInLegend && planet > 0;
  Map->ShowMarkerNumber(isTold ? session_.FindPlayerByName(session_.Planet(planet).Owner()) : 0);
}

void Main::Combo1_Click() {
  if (Overlays->Switches().IsOn(OverlayKind::EstimateHabValues)) DrawOverlays();
}

void Main::Universe_MouseDown(SurfacePoint at) {
  if (Board->Universe_MouseDown(at)) return;
  const MapClick click = ClickMap(state_, at);
  if (click == MapClick::Pick) return PickPlanet(at);
  Map->ShowZoomBox();
  if (click == MapClick::BoxStarted) EnableOverlays(false);
  if (click != MapClick::BoxEnded) return;
  EnableOverlays(true);
  DrawOverlays();
  Map->PlaceSelector();
}

void Main::Universe_MouseMove(SurfacePoint at) {
  MovePointer(state_, at);
  Map->ShowZoomBox();
  if (state_.ClickMode == kOrdinaryClick) {
    const HoverTexts texts = DescribeHover(session_, PlanetAt(session_, state_.View, at));
    theplanet->setText(ToQString(texts.StatusLine));
    SetPlainToolTip(*theplanet, "");  // of what it said before
    SetPlainToolTip(*Map->Universe, ToQString(texts.ToolTip));
  }
  XYCoord->setText(ToQString(PointerText(state_.View, at)));
  Board->Universe_MouseMove(at);
  pointer_ = at;
  ShowDistances();
}

// Tells all that is known of the planet that was clicked.
void Main::PickPlanet(SurfacePoint at) {
  const int planet = PlanetAt(session_, state_.View, at);
  SelectPlanet(state_, session_, planet);
  Selection_Changed();
  if (planet > 0) Detail->ShowPlanet(session_, planet);
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
  const std::string& race = session_.Player(index + 1).Name();
  const int slot = ColourSlotOf(session_, race);
  if (slot == 0) return;
  RaceColour dialog(session_, index, slot, ToQString(race), this);
  RememberPlace(dialog, preferences_);
  if (dialog.exec() == QDialog::Accepted) RaceLegend->ShowChangedColour(session_, index);
  ShowNewColours();
}

void Main::DrawOverlays() {
  // Switches that the redraw itself changes are part of the same user action.
  if (isDrawing_) return;
  const QScopedValueRollback oneRedraw(isDrawing_, true);
  Redraw redraw = SettleSwitches(Overlays->Switches(), state_);
  if (redraw.StopsDrawing()) Detail->Tools->StopDrawing();
  if (!redraw.IsDue) return;
  if (redraw.IsFullView) ShowFullView();
  const bool hasDrawing = redraw.ReadsDrawing() && (lookBack_ || Board->ReadLayer());
  redraw.Switches.Set(OverlayKind::QvlDrawing, hasDrawing);
  Overlays->Show(redraw.Switches);
  if (!lookBack_) Board->ForgetShapes();
  PaintMap(redraw.Switches);
  if (hasDrawing && !lookBack_) Detail->Tools->SelectColour(1);
  Navigator->Visit();
  ShowSets();
  RememberSoon();
}

void Main::ShowSets() {
  sets_->ShowLit(Overlays->Switches(), session_.ReportStyle == kNewReportStyle,
                 Menu.mnuOver->isEnabled());
}

// All buttons and items of the set are pressed in one redraw.
void Main::ViewSet_Choose(int index) {
  if (!Menu.mnuOver->isEnabled()) return;
  {
    const QScopedValueRollback noRedraw(isDrawing_, true);
    const OverlaySet& set = preferences_.Values().Sets.at(static_cast<std::size_t>(index));
    Overlays->Show(SwitchesFor(set, Overlays->Switches(), session_.ReportStyle == kNewReportStyle));
  }
  DrawOverlays();
}

void Main::ViewSaveSet_Click() {
  const auto name = prompts_.AskText("Save as Set", "Name of the set:", "");
  if (!name) return;
  Preferences preferences = preferences_.Values();
  const Result<void> saved = SaveAsSet(preferences.Sets, *name, Overlays->Switches());
  if (!saved) return prompts_.Inform(saved.Message());
  KeepSets(preferences);
}

void Main::ViewRemoveSet_Click(int index) {
  Preferences preferences = preferences_.Values();
  preferences.Sets.erase(preferences.Sets.begin() + index);
  KeepSets(preferences);
}

void Main::KeepSets(const Preferences& preferences) {
  KeepPreferences(preferences);
  sets_->ShowSets(preferences.Sets);
  ShowSets();
}

// A map that gets another size meanwhile is painted again.
void Main::PaintMap(OverlaySwitches switches) {
  isChoiceDrawn_ = false;
  Navigator->FrameBegins();
  switches.RaceName = ToText(Combo1->currentText());
  PictureSurface& universe = Map->Universe->Surface();
  bool isComplete = false;
  QSize drawn;
  do {
    LongStep step(*ProgressBar1);
    const QScopedValueRollback running(redraw_, &step);
    const Progress progress = step.Display();
    drawn = universe.Picture().size();
    isComplete = DrawOverlayStack(
        {.Session = session_,
         .State = state_,
         .Switches = switches,
         .Universe = universe,
         .Universe2 = Map->Universe2->Surface(),
         .Progress = progress,
         .Drawing = lookBack_ ? session_.DrawingLayer : Detail->Tools->Layer->Records(),
         .Options = preferences_.Values().Map});
    Map->Universe->update();
  } while (universe.Picture().size() != drawn);
  if (switches.ShowsAnything()) Map->ShowHint(false);
  ShowKey();
  ShowDistances();
  ShowRings();
  ShowFoundRings();
  ShowPlanetMenu();
  ShowWhetherStopped(!isComplete, kDrawingStopped);
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

#pragma once

#include <QObject>
#include <QTimer>
#include <span>

#include "map/map_state.h"
#include "map/overlay_kind.h"
#include "model/drawing_record.h"
#include "model/game_session.h"
#include "model/progress.h"
#include "paint/picture_box.h"
#include "paint/picture_shapes.h"

namespace quorvane {

/// The map picture `Universe` with the shapes above it, its twin that keeps the borders, and the
/// view that it shows.
class MapPanel : public QObject {
  Q_OBJECT

 public:
  explicit MapPanel(QWidget& area);

  const MapState& State() const { return state_; }
  void Place(const QRect& place);
  /// Blanks the map and shows the whole of a universe of that extent.
  void ShowUniverse(int universeExtent);
  /// Honours a Zoom In button that was just pressed. @return whether nothing is to be drawn now
  bool ArmZoom(bool isZoomIn) { return quorvane::ArmZoom(state_, isZoomIn); }
  /// Goes back to the full view when the Zoom In button is up. @return whether it did
  bool LeaveZoom(bool isZoomIn) { return quorvane::LeaveZoom(state_, isZoomIn); }
  /// Gives an open zoom box up. @return false when none is open
  bool GiveUpZoomBox();
  /// Moves a zoomed map. @return whether it is to be drawn again
  bool Scroll(int key, Qt::KeyboardModifiers modifiers);
  /// @param drawing the user's drawing layer
  /// @return false when the user stopped it; what is drawn by then stays
  bool Draw(GameSession& session, const OverlaySwitches& switches,
            std::span<const DrawingRecord> drawing, const Progress& progress);

  /// Gives the map the pen of the drawing layer, as a drawing file that is loaded does. Overlays
  /// that keep the pen's mode draw in this one next.
  void TakeDrawingPen();
  /// Places the selection marker around a planet at a stored position, or hides it where there is
  /// nothing to mark.
  void PlaceSelector(int x, int y);
  /// A press of a mouse button, whichever, at a place of the picture while nothing is being drawn.
  void Universe_MouseDown(int button, int shift, double x, double y);

  PictureBox* Universe = nullptr;
  PictureBox* Universe2 = nullptr;
  /// The area that is about to be shown, above the map while it is dragged.
  SquareShape* ZoomBox = nullptr;
  /// The selection marker.
  SquareShape* CurrentSelected = nullptr;
  /// Animates the marker.
  QTimer* Timer1 = nullptr;

 signals:
  /// An ordinary click.
  void Clicked(SurfacePoint at);
  /// The pointer has moved; `isPicking` while a click would be an ordinary one.
  void Hovered(SurfacePoint at, bool isPicking);
  /// The first corner of the zoom box was clicked.
  void ZoomBoxStarted();
  /// The zoom box is complete and the view is what it encloses.
  void ZoomBoxEnded();
  /// The picture is blank because it has a new size; kept borders are of the old one.
  void Resized();

 private:
  void Universe_MouseMove(int buttons, int shift, double x, double y);
  void Universe_Resize();
  void Timer1_Timer();

  MapState state_;
};

}  // namespace quorvane

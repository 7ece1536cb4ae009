#pragma once

#include <QObject>

#include "model/game_session.h"
#include "model/progress.h"
#include "platform/toolkit/picture_box.h"
#include "render/map_state.h"
#include "render/overlay_kind.h"

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
  /// Moves a zoomed map. @return whether it is to be drawn again
  bool Scroll(int key, Qt::KeyboardModifiers modifiers);
  void Draw(GameSession& session, const OverlaySwitches& switches, const ShowProgress& progress);

  PictureBox* Universe = nullptr;
  PictureBox* Universe2 = nullptr;
  /// The area that is about to be shown, above the map while it is dragged.
  OutlineShape* ZoomBox = nullptr;

 signals:
  /// The first corner of the zoom box was clicked.
  void ZoomBoxStarted();
  /// The zoom box is complete and the view is what it encloses.
  void ZoomBoxEnded();
  /// The picture is blank because it has a new size; kept borders are of the old one.
  void Resized();

 private:
  void Universe_MouseDown(double x, double y);
  void Universe_MouseMove(double x);
  void Universe_Resize();

  MapState state_;
};

}  // namespace quorvane

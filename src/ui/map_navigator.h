#pragma once

#include <QAction>
#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QTimer>
#include <optional>

#include "map/map_motion.h"
#include "map/view_history.h"
#include "ui/main_menu.h"

class QGestureEvent;
class QKeyEvent;
class QNativeGestureEvent;
class QWheelEvent;

namespace quorvane {

class MapPanel;

/// Moves the map: the wheel, pinches, swipes and keys over it, and the upper part of the view menu.
/// It changes which view is shown at once; what comes while a frame is drawn is drawn together in
/// the next one.
class MapNavigator : public QObject {
  Q_OBJECT

 public:
  MapNavigator(MapPanel& map, MapState& state, const MainMenu& menu);

  /// Forgets the views of the game before.
  void BeginGame();
  /// Takes note of the view on show, which others may have changed.
  /// @param isStep whether that was one of the small steps of the arrow keys
  void Visit(bool isStep = false);
  /// A frame is being drawn, with all that came so far.
  void FrameBegins() { isFrameDue_ = false; }
  /// Draws what is not drawn yet.
  void DrawDueFrame();
  /// Whether the keys of going back belong to the arrow keys still: until wheel, pinch or menu move
  /// the map, Alt with them scrolls a zoomed map as it does with all four.
  bool LeavesAltToArrowKeys() const { return !isUsed_ && state_.ZoomArmed == 1; }
  /// Where the pointer was seen last, while it is over the map.
  const std::optional<SurfacePoint>& Pointer() const { return pointer_; }
  /// Zooms to a place, and shows one in the middle without zooming.
  void ZoomTo(StoredPoint place);
  void CentreOn(StoredPoint place);
  /// Enables the commands that there is something to do for.
  void EnableCommands();

 signals:
  /// The state of the view is another one.
  void Moved();
  /// The map is to be drawn.
  void FrameDue();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  // What moves the map. The steps of one movement follow each other quickly.
  enum class Movement { None, Command, Wheel, Drag, ArrowKey };

  void ConnectCommands();
  bool Universe_Wheel(const QWheelEvent& event);
  bool Universe_NativeGesture(const QNativeGestureEvent& event);
  bool Universe_Gesture(QGestureEvent& event);
  bool Universe_Key(const QKeyEvent& event, bool isPressed);
  void Universe_MouseMove(QPointF position);
  void StopDragging();

  void Zoom(QPointF position, double notches);
  void Pan(QPointF pixels);
  void ZoomInTheMiddle(double notches);
  void Show(const MapView& view, Movement movement);
  bool Continues(Movement movement);

  MapPanel& map_;
  MapState& state_;
  const MainMenu& menu_;
  MapMotion motion_;
  ViewHistory history_;
  Movement lastMovement_ = Movement::None;
  QElapsedTimer sinceMovement_;
  bool isUsed_ = false;
  std::optional<SurfacePoint> pointer_;
  // While Space is held: which place the pointer holds, once it is known.
  bool isDragging_ = false;
  std::optional<StoredPoint> held_;
  QTimer frameEnd_;
  bool isFrameDue_ = false;
};

}  // namespace quorvane

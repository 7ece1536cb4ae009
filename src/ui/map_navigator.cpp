#include "ui/map_navigator.h"

#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ui/map_panel.h"

namespace quorvane {
namespace {

// What the wheel tells for one notch, in eighths of a degree; a device that tells pixels moves the
// map as far with as many of them.
constexpr double kNotchAngle = QWheelEvent::DefaultDeltasPerStep;
// How far a notch pans, in parts of the map's width.
constexpr double kPanPerNotch = 0.1;
constexpr qint64 kPause = 500;  // milliseconds between two movements

// Whether two fingers on a touch pad scroll. A system that does not tell their movement from a
// wheel's lets them zoom.
bool IsSwipe(const QWheelEvent& event) { return event.phase() != Qt::NoScrollPhase; }

double NotchesOf(double factor) {
  constexpr double kLeastFactor = 0.01;
  return std::log(std::max(factor, kLeastFactor)) / std::log(kZoomPerNotch);
}

}  // namespace

MapNavigator::MapNavigator(MapPanel& map, MapState& state, const MainMenu& menu)
    : QObject(&map), map_(map), state_(state), menu_(menu) {
  map.Universe->setAttribute(Qt::WA_AcceptTouchEvents);
  map.Universe->grabGesture(Qt::PinchGesture);
  map.Universe->installEventFilter(this);
  frameEnd_.setSingleShot(true);
  connect(&frameEnd_, &QTimer::timeout, this, &MapNavigator::DrawDueFrame);
  ConnectCommands();
}

void MapNavigator::ConnectCommands() {
  const auto run = [this](const QAction* command, const auto& step) {
    connect(command, &QAction::triggered, this, step);
  };
  run(menu_.ViewZoomIn, [this] { ZoomInTheMiddle(1); });
  run(menu_.ViewZoomOut, [this] { ZoomInTheMiddle(-1); });
  run(menu_.ViewWholeUniverse, [this] {
    MapView whole;
    whole.ShowAll(state_.View.UniverseExtent);
    Show(whole, Movement::Command);
  });
  run(menu_.ViewZoomToSelected, [this] {
    if (const auto planet = state_.Selected()) ZoomTo(*planet);
  });
  run(menu_.ViewBack, [this] {
    if (history_.CanGoBack()) Show(history_.GoBack(), Movement::Command);
  });
  run(menu_.ViewForward, [this] {
    if (history_.CanGoForward()) Show(history_.GoForward(), Movement::Command);
  });
}

void MapNavigator::BeginGame() {
  history_.Begin(state_.View);
  isUsed_ = false;
  EnableCommands();
}

void MapNavigator::Visit(bool isStep) {
  if (state_.View == history_.Shown()) return;
  history_.Visit(state_.View, Continues(isStep ? Movement::ArrowKey : Movement::Command));
  EnableCommands();
}

void MapNavigator::EnableCommands() {
  const MapView& view = state_.View;
  const bool isLoaded = view.UniverseWidth() > 0;
  menu_.ViewZoomIn->setEnabled(isLoaded && view.WidthShown() > kSmallestWindow);
  menu_.ViewZoomOut->setEnabled(isLoaded && !view.IsFull());
  menu_.ViewWholeUniverse->setEnabled(isLoaded && !view.IsFull());
  menu_.ViewZoomToSelected->setEnabled(isLoaded && state_.Selected().has_value());
  menu_.ViewKeepDestination->setEnabled(isLoaded);
  menu_.ViewBack->setEnabled(history_.CanGoBack());
  menu_.ViewForward->setEnabled(history_.CanGoForward());
}

void MapNavigator::DrawDueFrame() {
  if (!isFrameDue_) return;
  FrameBegins();
  emit FrameDue();
  frameEnd_.start(0);
}

bool MapNavigator::eventFilter(QObject* target, QEvent* event) {
  switch (event->type()) {
    case QEvent::Wheel:
      return Universe_Wheel(*static_cast<QWheelEvent*>(event));
    case QEvent::NativeGesture:
      return Universe_NativeGesture(*static_cast<QNativeGestureEvent*>(event));
    case QEvent::Gesture:
      return Universe_Gesture(*static_cast<QGestureEvent*>(event));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return Universe_Key(*static_cast<QKeyEvent*>(event), event->type() == QEvent::KeyPress);
    case QEvent::MouseMove:
      Universe_MouseMove(static_cast<QMouseEvent*>(event)->position());
      break;
    case QEvent::MouseButtonPress:
      DrawDueFrame();  // nobody clicks on what was not shown yet
      lastMovement_ = Movement::None;
      break;
    case QEvent::Leave:
      pointer_.reset();
      break;
    case QEvent::FocusOut:
      StopDragging();
      break;
    default:
      break;
  }
  return QObject::eventFilter(target, event);
}

bool MapNavigator::Universe_Wheel(const QWheelEvent& event) {
  const QPointF notches =
      QPointF(event.hasPixelDelta() ? event.pixelDelta() : event.angleDelta()) / kNotchAngle;
  const bool hasShift = event.modifiers().testFlag(Qt::ShiftModifier);
  const bool hasCtrl = event.modifiers().testFlag(Qt::ControlModifier);
  pointer_ = map_.Universe->LogicalPoint(event.position());
  if (IsSwipe(event) && !hasCtrl && !hasShift) {
    // The map follows the fingers.
    Pan(event.hasPixelDelta() ? QPointF(event.pixelDelta())
                              : notches * kPanPerNotch * map_.Universe->width());
  } else if (hasShift || notches.y() == 0) {
    // As everywhere, Shift turns a wheel that goes up and down to the side.
    const QPointF aside = notches.x() == 0 ? QPointF(notches.y(), 0) : notches;
    Pan(aside * kPanPerNotch * map_.Universe->width());
  } else {
    Zoom(event.position(), notches.y());
  }
  return true;
}

bool MapNavigator::Universe_NativeGesture(const QNativeGestureEvent& event) {
  switch (event.gestureType()) {
    case Qt::ZoomNativeGesture:
      Zoom(event.position(), NotchesOf(1 + event.value()));
      return true;
    case Qt::PanNativeGesture:
      Pan(event.delta());
      return true;
    default:
      return false;
  }
}

bool MapNavigator::Universe_Gesture(QGestureEvent& event) {
  const auto* pinch = qobject_cast<QPinchGesture*>(event.gesture(Qt::PinchGesture));
  if (pinch == nullptr) return false;
  const QPointF centre = map_.Universe->mapFromGlobal(pinch->centerPoint());
  const QPointF before = map_.Universe->mapFromGlobal(pinch->lastCenterPoint());
  if (pinch->changeFlags().testFlag(QPinchGesture::CenterPointChanged)) Pan(centre - before);
  if (pinch->changeFlags().testFlag(QPinchGesture::ScaleFactorChanged)) {
    Zoom(centre, NotchesOf(pinch->scaleFactor()));
  }
  event.accept();
  return true;
}

bool MapNavigator::Universe_Key(const QKeyEvent& event, bool isPressed) {
  if (event.key() != Qt::Key_Space || event.modifiers() != Qt::NoModifier) return false;
  if (event.isAutoRepeat()) return true;
  StopDragging();
  if (!isPressed || state_.View.IsFull()) return true;
  isDragging_ = true;
  if (pointer_) held_ = state_.View.ToStored(*pointer_);
  map_.Universe->setCursor(Qt::ClosedHandCursor);
  return true;
}

void MapNavigator::StopDragging() {
  if (!std::exchange(isDragging_, false)) return;
  held_.reset();
  map_.Universe->unsetCursor();
  lastMovement_ = Movement::None;
}

void MapNavigator::Universe_MouseMove(QPointF position) {
  pointer_ = map_.Universe->LogicalPoint(position);
  if (!isDragging_) return;
  if (!held_) held_ = state_.View.ToStored(*pointer_);
  Show(DraggedView(state_.View, *held_, *pointer_), Movement::Drag);
}

void MapNavigator::Zoom(QPointF position, double notches) {
  const SurfacePoint pointer = map_.Universe->LogicalPoint(position);
  Show(motion_.Zoomed(state_.View, pointer, notches), Movement::Wheel);
}

// Moves the map, and so its window the other way.
void MapNavigator::Pan(QPointF pixels) {
  const SurfacePoint by = map_.Universe->LogicalPoint(-pixels);
  Show(motion_.Panned(state_.View, by.X, by.Y), Movement::Wheel);
}

void MapNavigator::ZoomInTheMiddle(double notches) {
  constexpr SurfacePoint kMiddle = {kMapUnits / 2, kMapUnits / 2};
  Show(motion_.Zoomed(state_.View, kMiddle, notches), Movement::Command);
}

void MapNavigator::ZoomTo(StoredPoint place) {
  constexpr int kSurroundings = 200;  // light years
  const int width = std::min(state_.View.WidthShown(), kSurroundings);
  Show(CentredView(state_.View, place, width), Movement::Command);
}

void MapNavigator::CentreOn(StoredPoint place) {
  Show(CentredView(state_.View, place, state_.View.WidthShown()), Movement::Command);
}

void MapNavigator::Show(const MapView& view, Movement movement) {
  if (state_.View.UniverseWidth() == 0 || view == state_.View) return;
  ShowView(state_, view);
  history_.Visit(view, Continues(movement));
  isUsed_ = true;
  EnableCommands();
  emit Moved();
  isFrameDue_ = true;
  if (!frameEnd_.isActive()) DrawDueFrame();
}

bool MapNavigator::Continues(Movement movement) {
  const bool isNext = movement == lastMovement_ && movement != Movement::Command &&
                      (movement == Movement::Drag || !sinceMovement_.hasExpired(kPause));
  lastMovement_ = movement;
  sinceMovement_.start();
  return isNext;
}

}  // namespace quorvane

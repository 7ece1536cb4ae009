#include "paint/picture_box.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quorvane {
namespace {

int ButtonMask(Qt::MouseButtons buttons) {
  return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) + (buttons.testFlag(Qt::RightButton) ? 2 : 0) +
         (buttons.testFlag(Qt::MiddleButton) ? 4 : 0);
}

}  // namespace

int ShiftMaskOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
         (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

PictureBox::PictureBox(QWidget* parent, QSizeF units)
    : QWidget(parent), surface_(size(), devicePixelRatioF(), units) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);  // the picture covers every pixel
}

bool PictureBox::event(QEvent* event) {
  const bool result = QWidget::event(event);
  // Another screen may have other pixels.
  if (event->type() == QEvent::ScreenChangeInternal) FitSurface();
  return result;
}

void PictureBox::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitSurface();
}

void PictureBox::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawImage(QRectF(rect()), surface_.Picture());
}

void PictureBox::mousePressEvent(QMouseEvent* event) {
  const SurfacePoint at = LogicalPoint(event->position());
  emit MouseDown(ButtonMask(event->button()), ShiftMaskOf(event->modifiers()), at.X, at.Y);
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
  const SurfacePoint at = LogicalPoint(event->position());
  emit MouseMove(ButtonMask(event->buttons()), ShiftMaskOf(event->modifiers()), at.X, at.Y);
}

void PictureBox::FitSurface() {
  if (surface_.Resize(size(), devicePixelRatioF())) emit Resized();
}

SurfacePoint PictureBox::LogicalPoint(QPointF position) const {
  return {position.x() * surface_.Units().width() / width(),
          position.y() * surface_.Units().height() / height()};
}

QPointF PictureBox::WidgetPoint(SurfacePoint point) const {
  return {point.X * width() / surface_.Units().width(),
          point.Y * height() / surface_.Units().height()};
}

}  // namespace quorvane

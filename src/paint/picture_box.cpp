#include "paint/picture_box.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quorvane {

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
  emit MouseDown(LogicalPoint(event->position()));
}

void PictureBox::mouseMoveEvent(QMouseEvent* event) {
  emit MouseMove(LogicalPoint(event->position()));
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

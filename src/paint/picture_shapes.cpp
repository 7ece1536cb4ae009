#include "paint/picture_shapes.h"

#include <QEvent>
#include <QPainter>
#include <QPixmap>
#include <cmath>
#include <utility>

#include "paint/picture_box.h"

namespace quorvane {

PictureShape::PictureShape(PictureBox& picture, const char* name)
    : QWidget(&picture), picture_(picture) {
  setObjectName(name);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  picture.installEventFilter(this);
}

void PictureShape::SetLineColour(Colour colour) {
  colour_ = colour;
  update();
}

void PictureShape::AddDarkSides() {
  hasDarkSides_ = true;
  Fit();
}

bool PictureShape::eventFilter(QObject* target, QEvent* event) {
  if (event->type() == QEvent::Resize) Fit();
  return QWidget::eventFilter(target, event);
}

void PictureShape::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.translate(-pos());
  const QPointF first = picture_.WidgetPoint(First());
  const QPointF last = picture_.WidgetPoint(Last());
  if (hasDarkSides_) {
    painter.setPen({Qt::black, width_ + 2, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin});
    Paint(painter, first, last);
  }
  painter.setPen({QColor(RgbOf(colour_)), width_});
  Paint(painter, first, last);
}

void PictureShape::Fit() {
  const QRectF between(picture_.WidgetPoint(First()), picture_.WidgetPoint(Last()));
  const int rightSide = hasDarkSides_ ? 2 : 1;
  setGeometry(between.normalized().toAlignedRect().adjusted(-1, -1, rightSide, rightSide));
  update();
}

void SquareShape::Place(SurfacePoint topLeft, double side) {
  topLeft_ = topLeft;
  side_ = side;
  Fit();
}

void SquareShape::Paint(QPainter& painter, QPointF first, QPointF last) const {
  painter.drawRect(QRectF(first, last));
}

void LineShape::Place(SurfacePoint from, SurfacePoint to) {
  from_ = from;
  to_ = to;
  Fit();
}

void LineShape::Paint(QPainter& painter, QPointF first, QPointF last) const {
  painter.drawLine(first, last);
}

void RingsShape::Place(std::vector<SurfacePoint> centres) {
  centres_ = std::move(centres);
  Fit();
}

SurfacePoint RingsShape::Last() const {
  return Picture().LogicalPoint(Picture().rect().bottomRight());
}

void RingsShape::Paint(QPainter& painter, QPointF first, QPointF last) const {
  const QRectF seen = QRectF(first, last).adjusted(-radius_, -radius_, radius_, radius_);
  const QPixmap ring = RingOf(painter.pen());
  const QPointF corner(ring.deviceIndependentSize().width() / 2,
                       ring.deviceIndependentSize().height() / 2);
  for (const SurfacePoint& centre : centres_) {
    const QPointF pixel = Picture().WidgetPoint(centre);
    if (seen.contains(pixel)) painter.drawPixmap(pixel - corner, ring);
  }
}

// There may be thousands of rings, and a picture of one is drawn ten times faster than a circle.
QPixmap RingsShape::RingOf(const QPen& pen) const {
  const double ratio = devicePixelRatioF();
  const double half = std::ceil(radius_ + pen.widthF());
  QPixmap ring((QSizeF(2 * half, 2 * half) * ratio).toSize());
  ring.setDevicePixelRatio(ratio);
  ring.fill(Qt::transparent);
  QPainter painter(&ring);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(pen);
  painter.drawEllipse(QPointF(half, half), radius_, radius_);
  return ring;
}

}  // namespace quorvane

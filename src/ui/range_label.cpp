#include "ui/range_label.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace quorvane {

RangeLabel::RangeLabel(const QString& name, const QString& meaning, QWidget* parent)
    : ElidedLabel(name, parent), meaning_(meaning) {
  setProperty("range", true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  ShowValue("");
}

void RangeLabel::ShowValue(const QString& value) {
  ElidedLabel::ShowValue(value);
  setAccessibleName(QString("%1: %2").arg(meaning_, value));
}

// A label leaves the button to its parent, which would then receive the release as well.
void RangeLabel::mousePressEvent(QMouseEvent* event) {
  event->setAccepted(event->button() == Qt::LeftButton);
}

void RangeLabel::mouseReleaseEvent(QMouseEvent* event) {
  const bool isInside = rect().contains(event->position().toPoint());
  if (event->button() == Qt::LeftButton && isInside) emit Clicked();
}

void RangeLabel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      emit Clicked();
      break;
    default:
      ElidedLabel::keyPressEvent(event);
  }
}

}  // namespace quorvane

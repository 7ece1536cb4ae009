#include "ui/elided_label.h"

#include <QPainter>
#include <QStyle>
#include <algorithm>

#include "ui/controls.h"

namespace quorvane {

ElidedLabel::ElidedLabel(const QString& name, QWidget* parent) : QLabel(parent) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
}

void ElidedLabel::ShowValue(const QString& value) {
  setText(value);
  UpdateToolTip();
}

void ElidedLabel::SetTip(const QString& tip) {
  tip_ = tip;
  UpdateToolTip();
}

QSize ElidedLabel::sizeHint() const {
  const QSize whole = QLabel::sizeHint();
  return {std::min(whole.width(), kWidestValueHint), whole.height()};
}

QSize ElidedLabel::minimumSizeHint() const {
  const QSize whole = QLabel::minimumSizeHint();
  return {std::min(whole.width(), kLeastValueWidth), whole.height()};
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  UpdateToolTip();
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
  if (!IsTooLong()) return QLabel::paintEvent(event);
  QPainter painter(this);
  drawFrame(&painter);
  const QRect room = TextRect();
  style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                        fontMetrics().elidedText(text(), Qt::ElideRight, room.width()),
                        foregroundRole());
}

bool ElidedLabel::IsTooLong() const {
  return fontMetrics().horizontalAdvance(text()) > TextRect().width();
}

// Inside a frame, labels leave half an "x" free before the text.
QRect ElidedLabel::TextRect() const {
  const int indent = frameWidth() > 0 ? fontMetrics().horizontalAdvance('x') / 2 : 0;
  return contentsRect().adjusted(indent, 0, 0, 0);
}

void ElidedLabel::UpdateToolTip() {
  QStringList lines(tip_);
  if (IsTooLong()) lines.prepend(text());
  lines.removeAll("");
  SetPlainToolTip(*this, lines.join('\n'));
}

}  // namespace quorvane

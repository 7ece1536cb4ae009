#include "ui/range_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include "ui/controls.h"
#include "ui/elided_label.h"
#include "ui/texts.h"

namespace quorvane {

RangeButton::RangeButton(const QString& name, const QString& meaning, QWidget* parent)
    : QPushButton(parent), meaning_(meaning) {
  setObjectName(name);
  setProperty("range", true);
  setAutoDefault(false);
  setCursor(Qt::PointingHandCursor);
  ShowValue("");
}

void RangeButton::ShowValue(const QString& value) {
  setText(value);
  setShortcut({});  // an "&" in a value from a file is no access key
  setAccessibleName(QString("%1: %2").arg(meaning_, value));
  UpdateToolTip();
}

QSize RangeButton::sizeHint() const {
  const QSize whole = QPushButton::sizeHint();
  return {std::min(whole.width(), kWidestValueHint), whole.height()};
}

QSize RangeButton::minimumSizeHint() const {
  const QSize whole = QPushButton::minimumSizeHint();
  return {std::min(whole.width(), kLeastValueWidth), whole.height()};
}

void RangeButton::resizeEvent(QResizeEvent* event) {
  QPushButton::resizeEvent(event);
  UpdateToolTip();
}

void RangeButton::paintEvent(QPaintEvent*) {
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text = WithoutAccessKeys(Shortened());
  QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
}

QString RangeButton::Shortened() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect room = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
  return fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
}

void RangeButton::UpdateToolTip() {
  SetPlainToolTip(*this, Shortened() != text() ? text() : QString());
}

}  // namespace quorvane

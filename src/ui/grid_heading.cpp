#include "ui/grid_heading.h"

#include <QMouseEvent>
#include <QPainter>

#include "paint/twips.h"

namespace quorvane {
namespace {

constexpr int kHeightTwips = 500;
constexpr int kArrowHeight = 4;

}  // namespace

GridHeading::GridHeading(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setFixedHeight(PixelsFromTwips(kHeightTwips));
  setDefaultAlignment(Qt::AlignCenter | static_cast<Qt::Alignment>(Qt::TextWordWrap));
  setSectionsClickable(true);
  connect(this, &QHeaderView::sectionClicked, this,
          [this](int column) { emit Clicked(column, Qt::LeftButton); });
}

void GridHeading::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) pressed_ = logicalIndexAt(event->pos());
  QHeaderView::mousePressEvent(event);
}

void GridHeading::mouseReleaseEvent(QMouseEvent* event) {
  QHeaderView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) return;  // known as sectionClicked
  const int column = logicalIndexAt(event->pos());
  if (column >= 0 && column == pressed_ && rect().contains(event->pos())) {
    emit Clicked(column, event->button());
  }
  pressed_ = -1;
}

void GridHeading::paintSection(QPainter* painter, const QRect& rect, int column) const {
  painter->save();  // the style leaves its clipping behind
  QHeaderView::paintSection(painter, rect, column);
  painter->restore();
  if (column != sortIndicatorSection()) return;
  const bool isUp = sortIndicatorOrder() == Qt::AscendingOrder;
  const QPointF tip(rect.center().x() + 0.5, rect.top() + (isUp ? 1 : 1 + kArrowHeight));
  const double base = rect.top() + (isUp ? 1 + kArrowHeight : 1);
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(palette().link());
  painter->drawPolygon(
      QPolygonF{tip, {tip.x() - kArrowHeight, base}, {tip.x() + kArrowHeight, base}});
}

}  // namespace quorvane

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
          [this](int column) { emit Clicked(column, Qt::LeftButton, modifiers_); });
}

void GridHeading::ShowSorting(std::vector<std::pair<int, Qt::SortOrder>> sorting) {
  sorting_ = std::move(sorting);
  viewport()->update();
}

void GridHeading::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) pressed_ = logicalIndexAt(event->pos());
  QHeaderView::mousePressEvent(event);
}

void GridHeading::mouseReleaseEvent(QMouseEvent* event) {
  modifiers_ = event->modifiers();
  QHeaderView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) return;  // known as sectionClicked
  const int column = logicalIndexAt(event->pos());
  if (column >= 0 && column == pressed_ && rect().contains(event->pos())) {
    emit Clicked(column, event->button(), modifiers_);
  }
  pressed_ = -1;
}

void GridHeading::paintSection(QPainter* painter, const QRect& rect, int column) const {
  painter->save();  // the style leaves its clipping behind
  QHeaderView::paintSection(painter, rect, column);
  painter->restore();
  if (sorting_.empty() && column == sortIndicatorSection()) {
    PaintMark(*painter, rect, sortIndicatorOrder(), 0);
  }
  for (int rank = 0; rank < static_cast<int>(sorting_.size()); ++rank) {
    const auto& [sorted, order] = sorting_[static_cast<std::size_t>(rank)];
    if (sorted == column) PaintMark(*painter, rect, order, sorting_.size() > 1 ? rank + 1 : 0);
  }
}

// @param rank  told beside the arrow; 0: nothing is
void GridHeading::PaintMark(QPainter& painter, const QRect& rect, Qt::SortOrder order,
                            int rank) const {
  const bool isUp = order == Qt::AscendingOrder;
  const QPointF tip(rect.center().x() + 0.5, rect.top() + (isUp ? 1 : 1 + kArrowHeight));
  const double base = rect.top() + (isUp ? 1 + kArrowHeight : 1);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().link());
  painter.drawPolygon(
      QPolygonF{tip, {tip.x() - kArrowHeight, base}, {tip.x() + kArrowHeight, base}});
  if (rank > 0) {
    constexpr int kRankSize = 9;  // pixels
    QFont small = font();
    small.setPixelSize(kRankSize);
    painter.setFont(small);
    painter.setPen(palette().color(QPalette::Link));
    painter.drawText(QRect(rect.center().x() + kArrowHeight + 2, rect.top(), kRankSize, kRankSize),
                     Qt::AlignLeft | Qt::AlignTop, QString::number(rank));
  }
  painter.restore();
}

}  // namespace quorvane

#include "ui/grid_look.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>

#include "paint/twips.h"
#include "screens/planet_grid.h"

namespace quorvane {

void GiveGridLook(QTableView& table) {
  constexpr int kRowPadding = 6;
  constexpr double kFontSize = 8;
  QPalette black = table.palette();
  black.setColor(QPalette::Base, Qt::black);
  table.setPalette(black);
  // Columns have fixed first widths, which shall hold most texts whole.
  QFont small = table.font();
  small.setPointSizeF(kFontSize);
  table.setFont(small);
  table.horizontalHeader()->setFont(small);
  table.verticalHeader()->hide();
  // Rows of one height need no measuring, however many planets there are.
  table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table.verticalHeader()->setDefaultSectionSize(QFontMetrics(small).height() + kRowPadding);
  table.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  table.setWordWrap(false);
  table.setCornerButtonEnabled(false);
}

bool CellTips::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                         const QStyleOptionViewItem& option, const QModelIndex& index) {
  const bool isCut = sizeHint(option, index).width() > option.rect.width() + spared_;
  if (isCut || event->type() != QEvent::ToolTip) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QToolTip::hideText();
  return true;
}

int FirstColumnWidth(int twips) {
  constexpr int kDefaultWidthTwips = 960;
  return PixelsFromTwips(twips == kDefaultColumnWidth ? kDefaultWidthTwips : twips);
}

}  // namespace quorvane

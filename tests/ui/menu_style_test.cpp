#include <gtest/gtest.h>

#include <QMenu>
#include <algorithm>

#include "ui/icons.h"

namespace quorvane {
namespace {

TEST(MenuStyle, ShowsBesideAPictureWhetherAnItemIsChecked) {
  QMenu menu;
  QAction* item = menu.addAction(OverlayIcon(2, 18), "Planets");
  item->setCheckable(true);
  menu.ensurePolished();
  menu.resize(menu.sizeHint());
  const QImage empty = menu.grab().toImage();
  const QRect place = menu.actionGeometry(item);
  int brightest = 0;
  for (int x = place.left() + 2; x < place.left() + 20; ++x) {
    brightest = std::max(brightest, qGray(empty.pixel(x, place.center().y())));
  }
  EXPECT_GT(brightest, 100 + qGray(empty.pixel(place.left() + 2, place.center().y())));
  item->setChecked(true);
  const QImage checked = menu.grab().toImage();
  const QRect box(place.left(), place.top(), 22, place.height());
  EXPECT_NE(checked.copy(box), empty.copy(box));
  const QRect picture = place.adjusted(box.width(), 0, 0, 0);
  EXPECT_EQ(checked.copy(picture), empty.copy(picture));
}

}  // namespace
}  // namespace quorvane

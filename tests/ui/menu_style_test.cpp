#include <gtest/gtest.h>

#include <QMenu>
#include <algorithm>
#include <cmath>

#include "ui/icons.h"

namespace quorvane {
namespace {

// How bright a colour is to the eye, 0 ... 1.
double Luminance(QRgb colour) {
  const auto part = [](int value) { return std::pow(value / 255.0, 2.2); };
  return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

TEST(MenuStyle, ShowsBesideAPictureWhetherAnItemIsChecked) {
  QMenu menu;
  QAction* item = menu.addAction(OverlayIcon(2, 18), "Planets");
  item->setCheckable(true);
  menu.ensurePolished();
  menu.resize(menu.sizeHint());
  const QImage empty = menu.grab().toImage();
  const QRect place = menu.actionGeometry(item);
  double brightest = 0;
  for (int x = place.left() + 2; x < place.left() + 20; ++x) {
    brightest = std::max(brightest, Luminance(empty.pixel(x, place.center().y())));
  }
  const double background = Luminance(empty.pixel(place.left() + 2, place.center().y()));
  EXPECT_GT((brightest + 0.05) / (background + 0.05), 3);
  item->setChecked(true);
  const QImage checked = menu.grab().toImage();
  const QRect box(place.left(), place.top(), 22, place.height());
  EXPECT_NE(checked.copy(box), empty.copy(box));
  const QRect picture = place.adjusted(box.width(), 0, 0, 0);
  EXPECT_EQ(checked.copy(picture), empty.copy(picture));
}

}  // namespace
}  // namespace quorvane

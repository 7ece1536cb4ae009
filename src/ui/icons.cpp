#include "ui/icons.h"

#include <QPainter>
#include <QPixmap>
#include <QString>

namespace quorvane {
namespace {

// A picture that fades into the window says more plainly than a grey one that it cannot be used.
QPixmap Faded(const QPixmap& picture) {
  constexpr double kOpacity = 0.3;
  QPixmap faded(picture.size());
  faded.setDevicePixelRatio(picture.devicePixelRatio());
  faded.fill(Qt::transparent);
  QPainter painter(&faded);
  painter.setOpacity(kOpacity);
  painter.drawPixmap(0, 0, picture);
  return faded;
}

}  // namespace

QIcon ThemedIcon(const char* name) { return QIcon(QString(":/icons/%1.svg").arg(name)); }

QIcon OverlayIcon(int button, int side) {
  const QIcon drawing(QString(":/icons/overlay_%1.svg").arg(button, 2, 10, QChar('0')));
  QIcon icon;
  for (const double ratio : {1.0, 2.0, 3.0}) {
    const QPixmap picture = drawing.pixmap(QSize(side, side), ratio);
    icon.addPixmap(picture);
    icon.addPixmap(Faded(picture), QIcon::Disabled);
  }
  return icon;
}

}  // namespace quorvane

#include "ui/menu_style.h"

#include <QMenu>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include "ui/icons.h"

namespace quorvane {
namespace {

constexpr int kBoxSide = 13;
constexpr int kBoxLeft = 6;
constexpr int kBoxColumn = 20;  // what a menu with pictures has more for the boxes

using MenuItem = QStyleOptionMenuItem;

// The items of a menu are laid out alike, whether they can be checked or not.
MenuItem WithBoxColumn(const MenuItem& item) {
  MenuItem wider = item;
  if (item.menuHasCheckableItems && item.maxIconWidth > 0) wider.maxIconWidth += kBoxColumn;
  return wider;
}

void PaintBox(const MenuItem& item, QPainter& painter) {
  const bool isEnabled = item.state.testFlag(QStyle::State_Enabled);
  QRect box(0, 0, kBoxSide, kBoxSide);
  box.moveCenter(item.rect.center());
  box.moveLeft(item.rect.left() + kBoxLeft);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(isEnabled ? QColor(0xa9, 0xb4, 0xc8) : QColor(0x5a, 0x64, 0x78));
  painter.setBrush(item.palette.brush(item.checked ? QPalette::Highlight : QPalette::Base));
  painter.drawRoundedRect(QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
  painter.restore();
  if (item.checked) ThemedIcon("check").paint(&painter, box);
}

void PaintPicture(const MenuItem& item, int side, QPainter& painter) {
  QRect place(0, 0, side, side);
  place.moveCenter(item.rect.center());
  place.moveLeft(item.rect.left() + kBoxLeft + kBoxColumn);
  const bool isEnabled = item.state.testFlag(QStyle::State_Enabled);
  item.icon.paint(&painter, place, Qt::AlignCenter, isEnabled ? QIcon::Normal : QIcon::Disabled);
}

}  // namespace

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  const auto* item = qstyleoption_cast<const MenuItem*>(option);
  if (element != CE_MenuItem || item == nullptr) {
    return QProxyStyle::drawControl(element, option, painter, widget);
  }
  MenuItem text = WithBoxColumn(*item);
  if (item->checkType != MenuItem::NotCheckable) {
    text.checkType = MenuItem::NotCheckable;
    text.icon = {};
  }
  QProxyStyle::drawControl(element, &text, painter, widget);
  if (item->checkType == MenuItem::NotCheckable) return;
  PaintBox(*item, *painter);
  PaintPicture(*item, pixelMetric(PM_SmallIconSize, option, widget), *painter);
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const {
  // Elsewhere texts have room for the shadow, and would move without it.
  if (hint == SH_EtchDisabledText && qobject_cast<const QMenu*>(widget) != nullptr) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returned);
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                  const QSize& contents, const QWidget* widget) const {
  const auto* item = qstyleoption_cast<const MenuItem*>(option);
  if (type != CT_MenuItem || item == nullptr) {
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
  }
  const MenuItem wider = WithBoxColumn(*item);
  return QProxyStyle::sizeFromContents(type, &wider, contents, widget);
}

}  // namespace quorvane

#pragma once

#include <QProxyStyle>

namespace quorvane {

/// Gives every menu item that can be checked a box, empty or with its mark, and its picture beside
/// that. The style beneath draws an empty box in the colour of the menu, and none beside a picture;
/// it also gives items that cannot be used a bright shadow, which stands out on a dark menu.
class MenuStyle : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
};

}  // namespace quorvane

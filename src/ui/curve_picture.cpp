#include "ui/curve_picture.h"

#include <QFontMetrics>
#include <QPainter>
#include <QtMath>
#include <algorithm>

#include "paint/colours.h"
#include "ui/texts.h"

namespace quorvane {
namespace {

constexpr int kGap = 8;
constexpr int kSquare = 10;

// Where the races stand below the chart, in as many columns as there is room for.
class Names {
 public:
  Names(const std::vector<RaceCurve>& curves, const QFont& font, int width)
      : curves_(curves), metrics_(font) {
    const int room = width - 2 * kGap;
    columnWidth_ = 1;
    for (const RaceCurve& curve : curves) {
      const int name = metrics_.horizontalAdvance(ToQString(curve.Race));
      columnWidth_ = std::clamp(kSquare + 3 * kGap + name, columnWidth_, std::max(room, 1));
    }
    columns_ = std::max(room / columnWidth_, 1);
  }

  int Height() const {
    const int lines = (static_cast<int>(curves_.size()) + columns_ - 1) / columns_;
    return lines * metrics_.lineSpacing() + 2 * kGap;
  }

  void Draw(QPainter& painter, int top) const {
    for (int race = 0; race < static_cast<int>(curves_.size()); ++race) {
      const RaceCurve& curve = curves_[static_cast<std::size_t>(race)];
      const QRect cell(kGap + race % columns_ * columnWidth_,
                       top + kGap + race / columns_ * metrics_.lineSpacing(), columnWidth_,
                       metrics_.lineSpacing());
      painter.fillRect(cell.x(), cell.center().y() - kSquare / 2 + 1, kSquare, kSquare,
                       QColor(RgbOf(curve.RaceColour)));
      const QRect text = cell.adjusted(kSquare + kGap, 0, -kGap, 0);
      painter.drawText(text, Qt::AlignVCenter | Qt::TextSingleLine,
                       metrics_.elidedText(ToQString(curve.Race), Qt::ElideRight, text.width()));
    }
  }

 private:
  const std::vector<RaceCurve>& curves_;
  QFontMetrics metrics_;
  int columnWidth_;
  int columns_;
};

}  // namespace

QPixmap CurvePicture(const QPixmap& chart, const QString& title,
                     const std::vector<RaceCurve>& curves, const QFont& font) {
  const QSize drawn = chart.deviceIndependentSize().toSize();
  const Names names(curves, font, drawn.width());
  const int above = QFontMetrics(font).lineSpacing() + kGap;
  const QSize whole(drawn.width(), above + drawn.height() + names.Height());
  QPixmap picture(whole * chart.devicePixelRatio());
  picture.setDevicePixelRatio(chart.devicePixelRatio());
  picture.fill(QColor(kChartBackground));
  QPainter painter(&picture);
  painter.setFont(font);
  painter.setPen(QColor(kChartText));
  painter.drawText(QRect(kGap, 0, drawn.width() - kGap, above), Qt::AlignVCenter, title);
  painter.drawPixmap(0, above, chart);
  names.Draw(painter, above + drawn.height());
  return picture;
}

}  // namespace quorvane

#include "paint/pie_chart.h"

#include <QPainter>
#include <numbers>
#include <utility>

#include "paint/colours.h"

namespace quorvane {
namespace {

// The pie in a square picture, both in twips.
constexpr double kPicture = 1680;
constexpr double kRadius = 800;
constexpr double kCentre = kPicture / 2;

int SixteenthsOfDegrees(double radians) { return qRound(radians * 180 * 16 / std::numbers::pi); }

}  // namespace

void PieChart::SetSlices(std::vector<PieSlice> slices) {
  slices_ = std::move(slices);
  update();
}

void PieChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(width() / kPicture, height() / kPicture);
  QPen outline(Qt::black, 1);
  outline.setCosmetic(true);
  painter.setPen(outline);
  const QRectF pie(kCentre - kRadius, kCentre - kRadius, 2 * kRadius, 2 * kRadius);
  for (const PieSlice& slice : slices_) {
    painter.setBrush(QColor(RgbOf(slice.SliceColour)));
    const int start = SixteenthsOfDegrees(slice.Start);
    painter.drawPie(pie, start, SixteenthsOfDegrees(slice.End) - start);
  }
}

}  // namespace quorvane

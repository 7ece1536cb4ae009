#include "platform/toolkit/text_layouts.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace quorvane {
namespace {

constexpr QRgb kNoInk = qRgb(0, 0, 0);
constexpr double kMostInkPixels = 1 << 18;

// A picture of the text, whose top left corner lies `margin` pixels inside.
QImage InkOf(const TextLayout& layout, int margin) {
  const int width = static_cast<int>(std::ceil(layout.Width));
  const int height = static_cast<int>(std::ceil(layout.Height));
  QImage ink(width + 2 * margin, height + 2 * margin, QImage::Format_RGB32);
  ink.fill(kNoInk);
  QPainter painter(&ink);
  painter.setPen(Qt::white);
  for (const QGlyphRun& glyphs : layout.Glyphs) {
    painter.drawGlyphRun(QPointF(margin, margin + layout.Drop), glyphs);
  }
  return ink;
}

void AddRunsOfRow(const QImage& ink, int y, int margin, std::vector<PixelRun>& runs) {
  const auto* const row = reinterpret_cast<const QRgb*>(ink.constScanLine(y));
  const auto* const end = row + ink.width();
  const auto placeOf = [=](const QRgb* pixel) {
    return static_cast<std::int16_t>(pixel - row - margin);
  };
  const auto isInk = [](QRgb pixel) { return pixel != kNoInk; };
  const QRgb* first = std::find_if(row, end, isInk);
  while (first != end) {
    const QRgb* const behind = std::find(first, end, kNoInk);
    runs.push_back({static_cast<std::int16_t>(y - margin), placeOf(first), placeOf(behind - 1)});
    first = std::find_if(behind, end, isInk);
  }
}

// The pixels that a text covers when its top left corner is that of a pixel.
std::vector<PixelRun> RunsOf(const TextLayout& layout) {
  // Letters may reach beyond the line that is counted as theirs.
  const int margin = static_cast<int>(std::ceil(layout.Height));
  const double area = (layout.Width + 2 * margin) * 3 * margin;
  std::vector<PixelRun> runs;
  if (layout.Glyphs.isEmpty() || area > kMostInkPixels) return runs;
  const QImage ink = InkOf(layout, margin);
  for (int y = 0; y < ink.height(); ++y) AddRunsOfRow(ink, y, margin, runs);
  return runs;
}

TextLayout LayOut(std::string_view text, const QFont& font) {
  QTextOption options;
  options.setWrapMode(QTextOption::NoWrap);
  QTextLayout layout(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), font);
  layout.setTextOption(options);
  layout.setCacheEnabled(true);  // or the glyphs would be found a second time for `glyphRuns`
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  const QFontMetricsF metrics(font);
  TextLayout result = {.Glyphs = layout.glyphRuns(),
                       .Drop = metrics.ascent() - line.ascent(),
                       .Width = line.horizontalAdvance(),
                       .Height = metrics.height(),
                       .Runs = {}};
  result.Runs = RunsOf(result);
  if (!result.Runs.empty()) result.Glyphs.clear();
  return result;
}

}  // namespace

const TextLayout& TextLayouts::Of(std::string_view text) {
  text = text.substr(0, kLongestText);
  const auto known = layouts_.find(text);
  if (known != layouts_.end()) return known->second;
  if (layouts_.size() >= kMostTexts) layouts_.clear();
  return layouts_.emplace(text, LayOut(text, font_)).first->second;
}

}  // namespace quorvane

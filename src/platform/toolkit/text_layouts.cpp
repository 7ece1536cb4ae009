#include "platform/toolkit/text_layouts.h"

#include <QFontMetricsF>
#include <QString>
#include <QTextLayout>
#include <QTextOption>

namespace quorvane {
namespace {

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
  return {.Glyphs = layout.glyphRuns(),
          .Drop = metrics.ascent() - line.ascent(),
          .Width = line.horizontalAdvance(),
          .Height = metrics.height()};
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

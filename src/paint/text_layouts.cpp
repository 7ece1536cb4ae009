#include "paint/text_layouts.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvane {
namespace {

// Latin letters, digits and signs follow each other without a change of direction or height in a
// font that has them: those of ASCII, and those with accents from U+00A1 to U+017F.
constexpr char32_t kFirstPlain = U' ';
constexpr char32_t kLastPlain = U'~';
constexpr char32_t kFirstAccented = U'\u00a1';
constexpr char32_t kLastAccented = U'\u017f';
constexpr char32_t kSoftHyphen = U'\u00ad';  // has no width of its own

bool IsPlain(char sign) { return sign >= ' ' && sign <= '~'; }

// Whether a text starts with the two bytes of an accented character.
bool StartsAccented(std::string_view text) {
  if (text.size() < 2) return false;
  const auto first = static_cast<unsigned char>(text[0]);
  const auto second = static_cast<unsigned char>(text[1]);
  if ((first & 0xe0U) != 0xc0 || (second & 0xc0U) != 0x80) return false;
  const char32_t character = (first & 0x1fU) << 6 | (second & 0x3fU);
  return character >= kFirstAccented && character <= kLastAccented && character != kSoftHyphen;
}

bool IsLatin(std::string_view text) {
  while (!text.empty()) {
    if (!IsPlain(text.front()) && !StartsAccented(text)) return false;
    text.remove_prefix(IsPlain(text.front()) ? 1 : 2);
  }
  return true;
}

constexpr double kExactPoints = 200;
constexpr QRgb kNoInk = qRgb(0, 0, 0);
constexpr double kMostInkPixels = 1 << 18;
constexpr std::size_t kMostFonts = 1024;  // as many as there are whole numbers of points
constexpr std::size_t kMostBytes = std::size_t{32} << 20;  // of characters, and of layouts
constexpr std::size_t kEntryBytes = 200;  // what anything takes that is kept, beside its pixels

std::size_t BytesOf(const std::vector<PixelRun>& runs) {
  return kEntryBytes + runs.size() * sizeof(PixelRun);
}

QFont FontFor(double points, const QPaintDevice& picture) {
  QFont font(QStringLiteral("Arial"));
  font.setPointSizeF(points);
  font.setStyleStrategy(QFont::NoAntialias);  // every pixel in the colour that was asked for
  font.setHintingPreference(QFont::PreferFullHinting);
  return {font, &picture};
}

SizedFont Measured(const QFont& font) {
  const QFontMetricsF metrics(font);
  // A quarter more, as two characters may be moved apart a little.
  SizedFont sized = {.Font = font,
                     .Ascent = metrics.ascent(),
                     .Height = metrics.height(),
                     .MostCharacterWidth = 1.25 * metrics.maxWidth() + 1};
  return sized;
}

// Widens a range to all pixels of the characters first … last. False when the font lacks one.
bool Include(char32_t first, char32_t last, const SizedFont& font, InkRange& range) {
  const QFontMetricsF metrics(font.Font);
  bool hasAll = true;
  for (char32_t sign = first; sign <= last; ++sign) {
    const QChar character(static_cast<char16_t>(sign));
    hasAll = hasAll && metrics.inFont(character);
    const QRectF ink = metrics.boundingRect(character);
    range.Top = std::min(range.Top, font.Ascent + ink.top());
    range.Bottom = std::max(range.Bottom, font.Ascent + ink.bottom());
    const double right = ink.right() - metrics.horizontalAdvance(character);
    range.Overhang = std::max({range.Overhang, -ink.left(), right});
  }
  return hasAll;
}

void MeasureInk(SizedFont& font) {
  font.PlainInk.Top = font.Height;
  font.HasLatin = Include(kFirstPlain, kLastPlain, font, font.PlainInk);
  font.AccentedInk = font.PlainInk;
  font.HasLatin = Include(kFirstAccented, kLastAccented, font, font.AccentedInk) && font.HasLatin;
}

// The same range in a font of another size.
InkRange Scaled(const InkRange& range, double scale) {
  constexpr double kHinting = 2;  // moves edges to whole pixels
  return {std::floor(range.Top * scale - kHinting), std::ceil(range.Bottom * scale + kHinting),
          std::ceil(range.Overhang * scale + kHinting)};
}

// The pixels that a text may cover: letters may reach beyond the line that is counted as theirs.
QRect BoxOf(const TextLayout& layout) {
  const int margin = static_cast<int>(std::ceil(layout.Height));
  const QSizeF size(std::ceil(layout.Width), margin);
  return QRect({0, 0}, size.toSize()).adjusted(-margin, -margin, margin, margin);
}

bool IsTooLarge(const TextLayout& layout) {
  const double margin = std::ceil(layout.Height);
  return (layout.Width + 2 * margin) * 3 * margin > kMostInkPixels;
}

void AddRunsOfRow(const QImage& ink, int y, QPoint corner, std::vector<PixelRun>& runs) {
  const auto* const row = reinterpret_cast<const QRgb*>(ink.constScanLine(y - corner.y()));
  const auto* const end = row + ink.width();
  const auto placeOf = [&](const QRgb* pixel) {
    return static_cast<std::int16_t>(pixel - row + corner.x());
  };
  const auto isInk = [](QRgb pixel) { return pixel != kNoInk; };
  const QRgb* first = std::find_if(row, end, isInk);
  while (first != end) {
    const QRgb* const behind = std::find(first, end, kNoInk);
    runs.push_back({static_cast<std::int16_t>(y), placeOf(first), placeOf(behind - 1)});
    first = std::find_if(behind, end, isInk);
  }
}

// The pixels in a box that glyphs cover when they are drawn at a place. Only some rows are looked
// at.
std::vector<PixelRun> InkOf(const QList<QGlyphRun>& glyphs, QPointF at, const QRect& box, int top,
                            int bottom) {
  QImage ink(box.size(), QImage::Format_RGB32);
  for (int y = top; y <= bottom; ++y) {
    auto* const row = reinterpret_cast<QRgb*>(ink.scanLine(y - box.top()));
    std::fill(row, row + ink.width(), kNoInk);
  }
  QPainter painter(&ink);
  painter.setPen(Qt::white);
  for (const QGlyphRun& run : glyphs) painter.drawGlyphRun(at - box.topLeft(), run);
  std::vector<PixelRun> runs;
  for (int y = top; y <= bottom; ++y) AddRunsOfRow(ink, y, box.topLeft(), runs);
  return runs;
}

// Adds the pixels of a character, moved and cut to the box.
void AddMoved(const std::vector<PixelRun>& character, QPoint by, const QRect& box,
              std::vector<PixelRun>& runs) {
  for (const PixelRun& run : character) {
    const int y = run.Y + by.y();
    const int first = std::max(run.First + by.x(), box.left());
    const int last = std::min(run.Last + by.x(), box.right());
    if (y < box.top() || y > box.bottom() || first > last) continue;
    runs.push_back({static_cast<std::int16_t>(y), static_cast<std::int16_t>(first),
                    static_cast<std::int16_t>(last)});
  }
}

// All pixels that lie so near to one of the runs.
std::vector<PixelRun> Widened(const std::vector<PixelRun>& runs, int reach) {
  std::vector<PixelRun> wide;
  for (const PixelRun& run : runs) {
    for (int y = run.Y - reach; y <= run.Y + reach; ++y) {
      wide.push_back({static_cast<std::int16_t>(y), static_cast<std::int16_t>(run.First - reach),
                      static_cast<std::int16_t>(run.Last + reach)});
    }
  }
  std::ranges::sort(wide, {}, [](const PixelRun& run) { return std::pair(run.Y, run.First); });
  std::vector<PixelRun> joined;
  for (const PixelRun& run : wide) {
    const bool touches =
        !joined.empty() && joined.back().Y == run.Y && run.First <= joined.back().Last + 1;
    if (!touches) joined.push_back(run);
    joined.back().Last = std::max(joined.back().Last, run.Last);
  }
  return joined;
}

// Characters may lie anywhere in the height, but are kept for so many steps of a pixel only.
constexpr int kSteps = 64;

// Whether glyphs have the same pixels wherever they lie, so that these are worth keeping. From this
// size on glyphs are drawn as outlines, whose edges depend a little on the place in the picture.
bool AreStamps(const QList<QGlyphRun>& glyphs, double drop) {
  constexpr double kFirstOutlineSize = 64;  // pixels
  const auto isWhole = [](double value) { return value == std::floor(value); };
  const auto liesOnStep = [&](QPointF at) {
    return isWhole(at.x()) && isWhole((at.y() + drop) * kSteps);
  };
  return std::ranges::all_of(glyphs, [&](const QGlyphRun& run) {
    return run.rawFont().pixelSize() < kFirstOutlineSize &&
           std::ranges::all_of(run.positions(), liesOnStep);
  });
}

std::size_t FaceNumber(std::vector<QRawFont>& faces, const QRawFont& face) {
  const auto known = std::ranges::find(faces, face);
  const auto number = static_cast<std::size_t>(known - faces.begin());
  if (known == faces.end()) faces.push_back(face);
  return number;
}

}  // namespace

const InkRange* SizedFont::InkOf(std::string_view text) const {
  if (!HasLatin) return nullptr;
  if (std::ranges::all_of(text, IsPlain)) return &PlainInk;
  return IsLatin(text) ? &AccentedInk : nullptr;
}

TextLayouts::TextLayouts() : characters_(kMostBytes), layouts_(kMostBytes), outlines_(kMostBytes) {}

SizedFont& TextLayouts::FontOf(double points, const QPaintDevice& picture) {
  const auto known = fonts_.find(points);
  if (known != fonts_.end()) return known->second;
  if (fonts_.size() >= kMostFonts) Clear();
  SizedFont font = Measured(FontFor(points, picture));
  font.Number = static_cast<std::uint32_t>(fonts_.size());
  if (!exactFont_) {
    exactFont_ = Measured(FontFor(kExactPoints, picture));
    MeasureInk(*exactFont_);
  }
  const double scale = font.Height / exactFont_->Height;
  font.HasLatin = exactFont_->HasLatin;
  font.PlainInk = Scaled(exactFont_->PlainInk, scale);
  font.AccentedInk = Scaled(exactFont_->AccentedInk, scale);
  return fonts_.emplace(points, font).first->second;
}

const TextLayout& TextLayouts::Of(SizedFont& font, std::string_view text) {
  text = text.substr(0, kLongestText);
  MakeKey(font, text);
  if (const TextLayout* const known = layouts_.Find(key_)) return *known;
  TextLayout layout = LayOut(font, text);
  const std::size_t bytes = key_.size() + BytesOf(layout.Runs);
  return layouts_.Add(key_, std::move(layout), bytes);
}

const std::vector<PixelRun>& TextLayouts::OutlineOf(SizedFont& font, std::string_view text,
                                                    int reach) {
  MakeKey(font, text);
  if (const Runs* const known = outlines_.Find(key_)) return *known;
  Runs outline = Widened(Of(font, text).Runs, reach);  // makes the same key
  const std::size_t bytes = key_.size() + BytesOf(outline);
  return outlines_.Add(key_, std::move(outline), bytes);
}

void TextLayouts::MakeKey(const SizedFont& font, std::string_view text) {
  key_.assign(text.substr(0, kLongestText));
  key_.append(reinterpret_cast<const char*>(&font.Number), sizeof font.Number);
}

void TextLayouts::Clear() {
  fonts_.clear();
  characters_.Clear();
  layouts_.Clear();
  outlines_.Clear();
}

TextLayout TextLayouts::LayOut(SizedFont& font, std::string_view text) {
  QTextOption options;
  options.setWrapMode(QTextOption::NoWrap);
  QTextLayout layout(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                     font.Font);
  layout.setTextOption(options);
  layout.setCacheEnabled(true);  // or the glyphs would be found a second time for `glyphRuns`
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  TextLayout result = {.Glyphs = layout.glyphRuns(),
                       .Drop = font.Ascent - line.ascent(),
                       .Width = line.horizontalAdvance(),
                       .Height = font.Height,
                       .Runs = {}};
  if (IsTooLarge(result)) return result;
  result.Runs = RunsOf(result, font, font.InkOf(text));
  result.Glyphs.clear();
  return result;
}

TextLayouts::Runs TextLayouts::RunsOf(const TextLayout& layout, SizedFont& font,
                                      const InkRange* ink) {
  const QRect box = BoxOf(layout);
  if (!AreStamps(layout.Glyphs, layout.Drop)) {
    const QRect rows = ink != nullptr ? ink->Box(0).toAlignedRect() : box;
    const int top = std::max(rows.top(), box.top());
    const int bottom = std::min(rows.bottom(), box.bottom());
    return InkOf(layout.Glyphs, {0, layout.Drop}, box, top, bottom);
  }
  Runs runs;
  for (const QGlyphRun& glyphs : layout.Glyphs) {
    const std::size_t face = FaceNumber(font.Faces, glyphs.rawFont());
    const QList<quint32> indexes = glyphs.glyphIndexes();
    const QList<QPointF> places = glyphs.positions();
    for (qsizetype i = 0; i < indexes.size(); ++i) {
      const double y = places[i].y() + layout.Drop;
      const QPoint pixel(static_cast<int>(places[i].x()), static_cast<int>(std::floor(y)));
      AddMoved(Character(font, face, indexes[i], y - pixel.y()), pixel, box, runs);
    }
  }
  return runs;
}

const TextLayouts::Runs& TextLayouts::Character(const SizedFont& font, std::size_t face,
                                                quint32 glyph, double down) {
  std::uint64_t key = font.Number;
  key = key << 12 | face;
  key = key << 6 | static_cast<std::uint64_t>(down * kSteps);
  key = key << 32 | glyph;
  if (const Runs* const known = characters_.Find(key)) return *known;
  QGlyphRun glyphs;
  glyphs.setRawFont(font.Faces[face]);
  glyphs.setGlyphIndexes({glyph});
  glyphs.setPositions({QPointF(0, down)});
  // Full hinting may move the edges a little.
  const int margin = 2 + static_cast<int>(font.Height / 8);
  const QRect box = font.Faces[face].boundingRect(glyph).toAlignedRect().adjusted(-margin, -margin,
                                                                                  margin, margin);
  Runs runs = InkOf({glyphs}, {0, 0}, box, box.top(), box.bottom());
  const std::size_t bytes = BytesOf(runs);
  return characters_.Add(key, std::move(runs), bytes);
}

}  // namespace quorvane

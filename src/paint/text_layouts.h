#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QPaintDevice>
#include <QRawFont>
#include <QRectF>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "paint/pixel_canvas.h"
#include "paint/recent_cache.h"

namespace quorvane {

/// One line of text ready to be drawn. All lengths are in device pixels.
struct TextLayout {
  /// What is left to be drawn for a text too large to keep its pixels.
  QList<QGlyphRun> Glyphs;
  /// How far the glyphs' origin lies below the text's top edge; not 0 when a substitute font, which
  /// has characters that the font lacks, is taller than the font.
  double Drop = 0;
  double Width = 0;
  double Height = 0;
  /// The pixels that the text covers when its top left corner is that of a pixel. None lies farther
  /// outside the text's box than this is high.
  std::vector<PixelRun> Runs;
};

/// Where the characters of some alphabet have pixels in a font.
struct InkRange {
  /// Between which heights below a line's top.
  double Top = 0;
  double Bottom = 0;
  /// How far beyond the line's ends.
  double Overhang = 0;

  /// The box around all pixels of a line, counted from its top left corner.
  QRectF Box(double width) const {
    return {QPointF(-Overhang, Top), QPointF(width + Overhang, Bottom)};
  }
};

/// A font of one size, with what all its texts have in common.
struct SizedFont {
  std::uint32_t Number = 0;  // counted from 0
  QFont Font;
  double Ascent = 0;
  double Height = 0;
  /// More than any of its own characters takes.
  double MostCharacterWidth = 0;
  /// Whether it has all Latin letters, with and without accents, digits and signs.
  bool HasLatin = false;
  InkRange PlainInk;
  InkRange AccentedInk;
  /// Where the characters of its texts were taken from: itself, and fonts that have what it lacks.
  std::vector<QRawFont> Faces;

  /// Where a text has its pixels; nullptr when only its layout can tell, as it has characters of
  /// other kinds.
  const InkRange* InkOf(std::string_view text) const;
};

/// The layouts of the texts that were asked for. A map prints the same names at every redraw, and
/// finding out where a text's characters go takes several times longer than colouring its pixels;
/// finding out which pixels a character has takes longer still. Needs a running QGuiApplication
/// when a font is asked for.
class TextLayouts {
 public:
  TextLayouts();

  /// How many bytes of a text are drawn, more than any screen has room for: laying out a text of
  /// megabytes, as a damaged file may hold it, would take minutes.
  static constexpr std::size_t kLongestText = 8192;

  /// The font of a size, in points, for pictures with the dots per inch of this one.
  /// @return a font that stays until this is called again
  SizedFont& FontOf(double points, const QPaintDevice& picture);
  /// @param text  UTF-8; line breaks and TABs in it are drawn like any other character
  /// @return a layout that stays until this is called again
  const TextLayout& Of(SizedFont& font, std::string_view text);
  /// The pixels of such a text, of which the layout has runs, and all that lie so near to one of
  /// them in both directions.
  /// @param reach in pixels, the same until `Clear`
  /// @return runs that do not touch each other, which stay until this is called again
  const std::vector<PixelRun>& OutlineOf(SizedFont& font, std::string_view text, int reach);
  /// Forgets all, for a picture with other dots per inch.
  void Clear();

 private:
  using Runs = std::vector<PixelRun>;

  void MakeKey(const SizedFont& font, std::string_view text);
  TextLayout LayOut(SizedFont& font, std::string_view text);
  // @param ink  nullptr when not known
  Runs RunsOf(const TextLayout& layout, SizedFont& font, const InkRange* ink);
  // The pixels of a character whose origin lies so far below the top of a pixel.
  const Runs& Character(const SizedFont& font, std::size_t face, quint32 glyph, double down);

  std::unordered_map<double, SizedFont> fonts_;
  std::optional<SizedFont> exactFont_;  // large enough to measure characters well
  // By the numbers of font, face and glyph, and by the place in a pixel.
  RecentCache<std::uint64_t, Runs> characters_;
  // By text and number of the font.
  RecentCache<std::string, TextLayout> layouts_;
  RecentCache<std::string, Runs> outlines_;
  std::string key_;
};

}  // namespace quorvane

#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/toolkit/pixel_canvas.h"

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
  /// The pixels that the text covers when its top left corner is that of a pixel.
  std::vector<PixelRun> Runs;
};

/// The layouts of the texts that were asked for in a font. Finding out which glyphs a text needs
/// and which pixels they cover takes many times longer than colouring these, and a map prints the
/// same names at every redraw. Needs a running QGuiApplication when a layout is asked for.
class TextLayouts {
 public:
  /// How many texts are kept, a multiple of what a map shows; the next one starts anew.
  static constexpr std::size_t kMostTexts = 8192;
  /// How many bytes of a text are drawn, more than any screen has room for: laying out a text of
  /// megabytes, as a damaged file may hold it, would take minutes.
  static constexpr std::size_t kLongestText = 8192;

  /// @param font with the dots per inch of the picture to be drawn in
  explicit TextLayouts(const QFont& font) : font_(font) {}

  /// @param text  UTF-8; line breaks and TABs in it are drawn like any other character
  /// @return a layout that stays until this is called again
  const TextLayout& Of(std::string_view text);

 private:
  struct TextHash {
    using is_transparent = void;  // NOLINT(readability-identifier-naming): the library's name
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>()(text);
    }
  };

  QFont font_;
  std::unordered_map<std::string, TextLayout, TextHash, std::equal_to<>> layouts_;
};

}  // namespace quorvane

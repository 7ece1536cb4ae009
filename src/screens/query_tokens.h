#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvane {

/// A piece of a search as it is typed.
struct QueryToken {
  enum class Kind {
    Word,
    Quoted,    // between double quotes, which are not part of the text
    Unclosed,  // the same, but the closing quote is missing
    Open,
    Close,
    Comma,
    Colon,
    Comparison,
    End,
  };

  Kind TokenKind = Kind::End;
  std::string_view Text;
  /// Where it stands, in bytes; quotes are part of it.
  std::size_t Begin = 0;
  std::size_t End = 0;

  bool Is(Kind kind) const { return TokenKind == kind; }
  /// Whether nothing stands between this piece and the next one.
  bool Touches(const QueryToken& next) const { return End == next.Begin; }
};

/// The pieces of a search, the last one its end. Any text has some.
std::vector<QueryToken> SplitQuery(std::string_view text);

}  // namespace quorvane

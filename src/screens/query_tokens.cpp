#include "screens/query_tokens.h"

#include <algorithm>

namespace quorvane {
namespace {

using Kind = QueryToken::Kind;

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kWordEnds = " \t\r\n()\",:=<>";

bool IsUnequal(std::string_view rest) { return rest.starts_with("!="); }

std::size_t LengthOfWord(std::string_view rest) {
  std::size_t length = 0;
  while (length < rest.size() && kWordEnds.find(rest[length]) == kWordEnds.npos &&
         !IsUnequal(rest.substr(length))) {
    ++length;
  }
  return length;
}

struct Piece {
  Kind PieceKind = Kind::Word;
  std::size_t Length = 0;
};

Piece FrontOf(std::string_view rest) {
  switch (rest.front()) {
    case '(':
      return {Kind::Open, 1};
    case ')':
      return {Kind::Close, 1};
    case ',':
      return {Kind::Comma, 1};
    case ':':
      return {Kind::Colon, 1};
    case '=':
      return {Kind::Comparison, 1};
    case '<':
    case '>':
      return {Kind::Comparison, rest.substr(1).starts_with('=') ? std::size_t{2} : 1};
    case '"': {
      const std::size_t close = rest.find('"', 1);
      if (close == rest.npos) return {Kind::Unclosed, rest.size()};
      return {Kind::Quoted, close + 1};
    }
    default:
      return IsUnequal(rest) ? Piece{Kind::Comparison, 2} : Piece{Kind::Word, LengthOfWord(rest)};
  }
}

std::string_view WithoutQuotes(Kind kind, std::string_view piece) {
  if (kind == Kind::Quoted) return piece.substr(1, piece.size() - 2);
  return kind == Kind::Unclosed ? piece.substr(1) : piece;
}

}  // namespace

std::vector<QueryToken> SplitQuery(std::string_view text) {
  std::vector<QueryToken> tokens;
  for (std::size_t at = 0;;) {
    at = std::min(text.find_first_not_of(kBlanks, at), text.size());
    if (at == text.size()) break;
    const auto [kind, length] = FrontOf(text.substr(at));
    tokens.push_back({kind, WithoutQuotes(kind, text.substr(at, length)), at, at + length});
    at += length;
  }
  tokens.push_back({Kind::End, {}, text.size(), text.size()});
  return tokens;
}

}  // namespace quorvane

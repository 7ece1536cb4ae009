#include "screens/planet_query.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

#include "model/text.h"
#include "screens/query_tokens.h"

namespace quorvane {
namespace {

using Kind = QueryToken::Kind;

bool IsWord(const QueryToken& token, std::string_view word) {
  return token.Is(Kind::Word) && EqualIgnoringCase(token.Text, word);
}

std::string InQuotes(std::string_view text) { return "\"" + Excerpt(text) + "\""; }

std::size_t CountCharacters(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(
      text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

Comparison ComparisonOf(std::string_view sign) {
  constexpr std::string_view kSigns[] = {"=", "!=", "<", "<=", ">", ">="};
  return static_cast<Comparison>(std::ranges::find(kSigns, sign) - std::begin(kSigns));
}

// "100k", "-13%", "1.5": the thousand is part of the number before it is rounded to a binary one.
std::optional<double> QueryNumber(std::string_view text) {
  if (text.starts_with('+')) text.remove_prefix(1);
  if (text.ends_with('%')) text.remove_suffix(1);
  const bool isInThousands = text.ends_with('k') || text.ends_with('K');
  if (isInThousands) text.remove_suffix(1);
  if (text.find_first_not_of("0123456789.", text.starts_with('-') ? 1 : 0) != text.npos) return {};
  const std::string digits = std::string(text) + (isInThousands ? "e3" : "e0");
  double number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return {};
  return number;
}

// Goes through the pieces of a search from left to right, and stops at the first one that has no
// meaning where it stands.
class QueryParser {
 public:
  explicit QueryParser(std::string_view text) : tokens_(SplitQuery(text)) {}

  std::variant<QueryNode, QueryFault> Parse();

 private:
  std::optional<QueryNode> ReadAny();
  std::optional<QueryNode> ReadAll();
  std::optional<QueryNode> ReadPart();
  std::optional<QueryNode> ReadNot();
  std::optional<QueryNode> ReadBrackets();
  std::optional<QueryNode> ReadWord();
  std::optional<QueryNode> ReadCalled(const QueryToken& word);
  std::optional<QueryNode> ReadOwnerOrBase(const QueryToken& word);
  std::optional<QueryNode> ReadComparison(QueryNode value, const QueryToken& sign);
  std::optional<QueryNode> ReadHab();
  std::optional<QueryNode> ReadNear();
  std::optional<QueryNode> ReadUnknown(const QueryToken& word);
  bool ReadName(QueryNode& node, std::string_view what);
  bool ReadClose(std::string_view what);
  std::optional<double> ReadNumber(std::string_view sentence);
  std::optional<QueryNode> ValueNamed(const QueryToken& word);

  const QueryToken& Next() const { return tokens_[at_]; }
  const QueryToken& Take() { return tokens_[at_++]; }
  bool TakeIf(Kind kind) {
    const bool isNext = Next().Is(kind);
    if (isNext) ++at_;
    return isNext;
  }
  bool TakeIfWord(std::string_view word) {
    const bool isNext = IsWord(Next(), word);
    if (isNext) ++at_;
    return isNext;
  }
  bool EndsPart() const {
    return Next().Is(Kind::End) || Next().Is(Kind::Close) || IsWord(Next(), "or");
  }
  std::nullopt_t Refuse(const QueryToken& token, std::string sentence) {
    return Refuse(token.Begin, token.End, std::move(sentence));
  }
  // The first fault is told.
  std::nullopt_t Refuse(std::size_t begin, std::size_t end, std::string sentence) {
    if (!fault_) fault_ = {.Begin = begin, .Length = end - begin, .Sentence = std::move(sentence)};
    return std::nullopt;
  }

  std::vector<QueryToken> tokens_;
  std::size_t at_ = 0;
  int depth_ = 0;
  std::optional<QueryFault> fault_;
};

std::variant<QueryNode, QueryFault> QueryParser::Parse() {
  if (Next().Is(Kind::End)) return QueryNode();
  std::optional<QueryNode> tree = ReadAny();
  if (tree && Next().Is(Kind::Close)) Refuse(Next(), "No bracket is open here.");
  if (fault_) return *fault_;
  return *tree;
}

std::optional<QueryNode> QueryParser::ReadAny() {
  QueryNode any = {.NodeKind = QueryNode::Kind::Any};
  do {
    std::optional<QueryNode> part = ReadAll();
    if (!part) return std::nullopt;
    any.Parts.push_back(std::move(*part));
  } while (TakeIfWord("or"));
  return any.Parts.size() == 1 ? std::move(any.Parts.front()) : std::move(any);
}

std::optional<QueryNode> QueryParser::ReadAll() {
  QueryNode all;
  do {
    std::optional<QueryNode> part = ReadPart();
    if (!part) return std::nullopt;
    all.Parts.push_back(std::move(*part));
  } while (TakeIfWord("and") || !EndsPart());
  return all.Parts.size() == 1 ? std::move(all.Parts.front()) : std::move(all);
}

std::optional<QueryNode> QueryParser::ReadPart() {
  const QueryToken& token = Next();
  if (IsWord(token, "not")) return ReadNot();
  if (IsWord(token, "or") || IsWord(token, "and")) {
    return Refuse(token, "Something to search for is missing before " + InQuotes(token.Text) + ".");
  }
  switch (token.TokenKind) {
    case Kind::Word:
      return ReadWord();
    case Kind::Quoted:
      ++at_;
      return QueryNode{.NodeKind = QueryNode::Kind::Name, .Text = std::string(token.Text)};
    case Kind::Open:
      return ReadBrackets();
    case Kind::Unclosed:
      return Refuse(token, "The quotation mark is not closed.");
    case Kind::Close:
      return Refuse(token, depth_ > 0 ? "Something to search for is missing before the bracket."
                                      : "No bracket is open here.");
    case Kind::Comma:
      return Refuse(token,
                    "A comma stands only in near(NAME, N), with nothing before its bracket.");
    case Kind::Colon:
      return Refuse(token, "A colon stands only behind owner and base.");
    case Kind::Comparison:
      return Refuse(token, "A value such as pop is missing before " + InQuotes(token.Text) + ".");
    case Kind::End:
      break;
  }
  return Refuse(token, "Something to search for is missing at the end.");
}

std::optional<QueryNode> QueryParser::ReadNot() {
  Take();
  std::optional<QueryNode> part = ReadPart();
  if (!part) return std::nullopt;
  QueryNode turned = {.NodeKind = QueryNode::Kind::Not};
  turned.Parts.push_back(std::move(*part));
  return turned;
}

std::optional<QueryNode> QueryParser::ReadBrackets() {
  const QueryToken& open = Take();
  if (++depth_ > kDeepestBrackets) {
    return Refuse(open, "Brackets can stand in each other up to " +
                            std::to_string(kDeepestBrackets) + " deep.");
  }
  std::optional<QueryNode> inside = ReadAny();
  if (!inside) return std::nullopt;
  if (!TakeIf(Kind::Close)) return Refuse(open, "The bracket is not closed.");
  --depth_;
  return inside;
}

std::optional<QueryNode> QueryParser::ReadWord() {
  const QueryToken& word = Take();
  if (Next().Is(Kind::Open) && word.Touches(Next())) {
    if (IsWord(word, "hab")) return ReadHab();
    if (IsWord(word, "near")) return ReadNear();
    if (IsWord(word, "unknown")) return ReadUnknown(word);
  }
  if (Next().Is(Kind::Colon)) return ReadOwnerOrBase(word);
  if (Next().Is(Kind::Comparison)) {
    std::optional<QueryNode> value = ValueNamed(word);
    if (!value) return std::nullopt;
    const QueryToken& sign = Take();
    return ReadComparison(std::move(*value), sign);
  }
  const auto* const flag = std::ranges::find_if(
      kFlagNames, [&](std::string_view name) { return EqualIgnoringCase(name, word.Text); });
  if (flag == std::end(kFlagNames)) {
    return QueryNode{.NodeKind = QueryNode::Kind::Name, .Text = std::string(word.Text)};
  }
  return QueryNode{.NodeKind = QueryNode::Kind::Flag,
                   .Flag = static_cast<PlanetFlag>(flag - std::begin(kFlagNames))};
}

std::optional<QueryNode> QueryParser::ReadOwnerOrBase(const QueryToken& word) {
  const QueryToken& colon = Take();
  const bool isOwner = IsWord(word, "owner");
  if (!isOwner && !IsWord(word, "base")) {
    return Refuse(word.Begin, colon.End, "Only owner: and base: have a colon.");
  }
  const QueryToken& name = Next();
  if (name.Is(Kind::Unclosed)) return Refuse(name, "The quotation mark is not closed.");
  if (!name.Is(Kind::Word) && !name.Is(Kind::Quoted)) {
    return Refuse(word.Begin, colon.End,
                  isOwner ? "The name of a race, or none, is missing behind owner:."
                          : "The name of a starbase is missing behind base:.");
  }
  Take();
  if (isOwner && IsWord(name, "none")) return QueryNode{.NodeKind = QueryNode::Kind::Unowned};
  return QueryNode{.NodeKind = isOwner ? QueryNode::Kind::Owner : QueryNode::Kind::Base,
                   .Text = std::string(name.Text),
                   .Begin = name.Begin,
                   .End = name.End};
}

std::optional<QueryNode> QueryParser::ValueNamed(const QueryToken& word) {
  const std::optional<PlanetMeasure> measure = MeasureNamed(word.Text);
  if (!measure) return Refuse(word, "No value is called " + InQuotes(word.Text) + ".");
  return QueryNode{.NodeKind = QueryNode::Kind::Compare, .Measure = *measure};
}

std::optional<QueryNode> QueryParser::ReadComparison(QueryNode value, const QueryToken& sign) {
  const auto number = ReadNumber("A number is missing behind " + InQuotes(sign.Text) + ".");
  if (!number) return std::nullopt;
  value.Sign = ComparisonOf(sign.Text);
  value.Number = *number;
  return value;
}

// @param sentence  what is told where nothing stands that could be one
std::optional<double> QueryParser::ReadNumber(std::string_view sentence) {
  const QueryToken& token = Next();
  if (!token.Is(Kind::Word)) {
    const QueryToken& last = tokens_[at_ - 1];
    return Refuse(last, std::string(sentence));
  }
  const std::optional<double> number = QueryNumber(token.Text);
  if (!number)
    return Refuse(token, InQuotes(token.Text) + " is no number such as 150, 100k or 50%.");
  Take();
  return number;
}

std::optional<QueryNode> QueryParser::ReadHab() {
  Take();
  QueryNode value = {
      .NodeKind = QueryNode::Kind::Compare, .Measure = PlanetMeasure::Hab, .IsForRace = true};
  if (!ReadName(value, "The name of a race is missing in hab(NAME).")) return std::nullopt;
  if (!ReadClose("hab(NAME)")) return std::nullopt;
  if (!Next().Is(Kind::Comparison)) {
    return Refuse(value.Begin, value.End, "A comparison such as >=50 is missing behind hab(NAME).");
  }
  const QueryToken& sign = Take();
  return ReadComparison(std::move(value), sign);
}

std::optional<QueryNode> QueryParser::ReadNear() {
  Take();
  QueryNode near = {.NodeKind = QueryNode::Kind::Near};
  if (!ReadName(near, "The name of a planet is missing in near(NAME, N).")) return std::nullopt;
  if (!TakeIf(Kind::Comma)) {
    return Refuse(near.Begin, near.End, "A comma and light years are missing in near(NAME, N).");
  }
  const auto number = ReadNumber("The light years are missing in near(NAME, N).");
  if (!number) return std::nullopt;
  near.Number = *number;
  if (!ReadClose("near(NAME, N)")) return std::nullopt;
  return near;
}

std::optional<QueryNode> QueryParser::ReadUnknown(const QueryToken& word) {
  Take();
  if (!Next().Is(Kind::Word)) {
    return Refuse(word, "A value such as hab is missing in unknown(VALUE).");
  }
  const QueryToken& name = Take();
  std::optional<QueryNode> value = ValueNamed(name);
  if (!value) return std::nullopt;
  value->NodeKind = QueryNode::Kind::Unknown;
  if (value->Measure == PlanetMeasure::Hab && Next().Is(Kind::Open)) {
    Take();
    value->IsForRace = true;
    if (!ReadName(*value, "The name of a race is missing in hab(NAME).")) return std::nullopt;
    if (!ReadClose("hab(NAME)")) return std::nullopt;
  }
  if (!ReadClose("unknown(VALUE)")) return std::nullopt;
  return value;
}

// Between brackets it is plain where a name ends, so its words need no quotes.
bool QueryParser::ReadName(QueryNode& node, std::string_view what) {
  const QueryToken& first = Next();
  if (first.Is(Kind::Unclosed)) {
    Refuse(first, "The quotation mark is not closed.");
    return false;
  }
  if (!first.Is(Kind::Word) && !first.Is(Kind::Quoted)) {
    Refuse(tokens_[at_ - 2].Begin, tokens_[at_ - 1].End, std::string(what));
    return false;
  }
  node.Text = Take().Text;
  while (first.Is(Kind::Word) && Next().Is(Kind::Word)) node.Text.append(" ").append(Take().Text);
  node.Begin = first.Begin;
  node.End = tokens_[at_ - 1].End;
  return true;
}

bool QueryParser::ReadClose(std::string_view what) {
  if (TakeIf(Kind::Close)) return true;
  const QueryToken& token = Next().Is(Kind::End) ? tokens_[at_ - 1] : Next();
  Refuse(token, "The bracket of " + std::string(what) + " is to be closed here.");
  return false;
}

}  // namespace

std::variant<QueryNode, QueryFault> ParseQuery(std::string_view text) {
  if (CountCharacters(text) > kLongestQuery) {
    return QueryFault{
        .Begin = 0,
        .Length = text.size(),
        .Sentence = "A search has up to " + std::to_string(kLongestQuery) + " characters."};
  }
  return QueryParser(text).Parse();
}

}  // namespace quorvane

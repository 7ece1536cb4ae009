#include "screens/query_completion.h"

#include <algorithm>

#include "model/text.h"
#include "screens/planet_query.h"
#include "screens/query_tokens.h"

namespace quorvane {
namespace {

using Kind = QueryToken::Kind;

// What the word before the cursor is a part of.
enum class Place { Start, Owner, Base, Race, Planet, Value };

Place PlaceBehind(const QueryToken& word, const QueryToken& sign) {
  const auto is = [&](std::string_view name) {
    return word.Is(Kind::Word) && EqualIgnoringCase(word.Text, name);
  };
  if (sign.Is(Kind::Colon) && is("owner")) return Place::Owner;
  if (sign.Is(Kind::Colon) && is("base")) return Place::Base;
  if (!sign.Is(Kind::Open) || !word.Touches(sign)) return Place::Start;
  if (is("hab")) return Place::Race;
  if (is("near")) return Place::Planet;
  return is("unknown") ? Place::Value : Place::Start;
}

Place PlaceOf(const std::vector<QueryToken>& tokens, std::size_t at) {
  return at >= 2 ? PlaceBehind(tokens[at - 2], tokens[at - 1]) : Place::Start;
}

// Between brackets a name may have several words: which one is its first.
std::size_t FirstOfName(const std::vector<QueryToken>& tokens, std::size_t at) {
  std::size_t first = at;
  while (first > 0 && tokens[first].Is(Kind::Word) && tokens[first - 1].Is(Kind::Word)) --first;
  const Place place = PlaceOf(tokens, first);
  return place == Place::Race || place == Place::Planet ? first : at;
}

// The name of a race or planet, in quotes where it could be read as something else.
std::string NameInQuery(const std::string& name) {
  const std::vector<QueryToken> tokens = SplitQuery(name);
  const bool isWord = tokens.size() == 2 && tokens[0].Is(Kind::Word) && tokens[0].Text == name;
  const bool isMeant = !EqualIgnoringCase(name, "none") && !EqualIgnoringCase(name, "or") &&
                       !EqualIgnoringCase(name, "and") && !EqualIgnoringCase(name, "not") &&
                       std::ranges::none_of(kFlagNames, [&](std::string_view flag) {
                         return EqualIgnoringCase(flag, name);
                       });
  return isWord && isMeant ? name : '"' + name + '"';
}

// Gathers what begins as the word that is typed.
class Completion {
 public:
  explicit Completion(std::string_view typed) : typed_(InLowerCase(typed)) {}

  void Add(std::string_view name, std::string entry) {
    if (entries_.size() == kMostCompletions || !InLowerCase(name).starts_with(typed_)) return;
    const bool isNew =
        InLowerCase(entry) != typed_ && std::ranges::find(entries_, entry) == entries_.end();
    if (isNew) entries_.push_back(std::move(entry));
  }
  void AddWord(std::string_view word) { Add(word, std::string(word)); }
  // A name with a double quote cannot be typed.
  void AddName(const std::string& name) {
    if (!name.empty() && name.find('"') == name.npos) Add(name, NameInQuery(name));
  }
  std::vector<std::string> Take() { return std::move(entries_); }

 private:
  std::string typed_;
  std::vector<std::string> entries_;
};

void AddRaces(Completion& completion, const GameSession& session) {
  for (const PlayerRecord& player : session.Players()) completion.AddName(player.Name());
}

void AddPlanets(Completion& completion, const GameSession& session) {
  for (const PlanetRecord& planet : session.Planets()) completion.AddName(planet.Name());
}

void AddBases(Completion& completion, const GameSession& session) {
  for (const PlanetRecord& planet : session.Planets()) {
    if (planet.HasStarbase()) completion.AddName(planet.Starbase());
  }
}

void AddValues(Completion& completion) {
  for (const std::string_view name : kMeasureNames) completion.AddWord(name);
}

void AddWords(Completion& completion, const GameSession& session) {
  for (const std::string_view name : kFlagNames) completion.AddWord(name);
  for (const char* word :
       {"owner:", "owner:none", "base:", "hab(", "near(", "unknown(", "not", "or", "and"}) {
    completion.AddWord(word);
  }
  AddValues(completion);
  AddPlanets(completion, session);
}

}  // namespace

QueryCompletion CompleteQuery(std::string_view text, std::size_t cursor,
                              const GameSession& session) {
  const std::vector<QueryToken> tokens = SplitQuery(text.substr(0, cursor));
  std::size_t at = tokens.size() - 1;  // the end, or the word before it
  const bool hasWord = at > 0 && tokens[at - 1].End == tokens[at].Begin &&
                       (tokens[at - 1].Is(Kind::Word) || tokens[at - 1].Is(Kind::Unclosed));
  if (hasWord) --at;
  const bool isNumber = at >= 1 && tokens[at - 1].Is(Kind::Comparison);
  const std::size_t name = FirstOfName(tokens, at);
  if (name < at) at = name;
  const QueryToken& typed = tokens[at];
  const Place place = PlaceOf(tokens, at);
  QueryCompletion completion = {.Begin = typed.Begin, .Length = cursor - typed.Begin};
  if (isNumber || (place == Place::Start && typed.Text.empty())) return completion;
  const std::size_t quote = typed.Is(Kind::Unclosed) ? 1 : 0;
  Completion gathered(text.substr(typed.Begin + quote, completion.Length - quote));
  switch (place) {
    case Place::Owner:
      gathered.AddWord("none");
      [[fallthrough]];
    case Place::Race:
      AddRaces(gathered, session);
      break;
    case Place::Base:
      AddBases(gathered, session);
      break;
    case Place::Planet:
      AddPlanets(gathered, session);
      break;
    case Place::Value:
      AddValues(gathered);
      break;
    case Place::Start:
      if (typed.Is(Kind::Unclosed)) {
        AddPlanets(gathered, session);
      } else {
        AddWords(gathered, session);
      }
  }
  completion.Entries = gathered.Take();
  return completion;
}

}  // namespace quorvane

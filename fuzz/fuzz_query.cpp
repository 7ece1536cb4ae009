// Any text is a search or is told what is wrong with it, and where; a search and its opposite share
// the planets of a game between them; and any place of the text can be completed.
#include <algorithm>

#include "fuzz_support.h"
#include "screens/planet_filter.h"
#include "screens/query_completion.h"

namespace quorvane::fuzz {
namespace {

// Some planets of which different things are known.
GameSession SmallGame() {
  GameSession session;
  session.MeasureUniverse(1400);
  session.CreatePlanetTable(8);
  session.MyRaceName = "Vantari";
  constexpr const char* kNames[] = {"Old Harrow", "Kestrel", "or", "007", "Örn", "X(1)", "a,b", ""};
  for (int number = 1; number <= session.PlanetCount; ++number) {
    PlanetRecord& planet = session.Planet(number);
    planet[PlanetField::X] = 40 * number;
    planet[PlanetField::Y] = 30 * number;
    planet[PlanetField::Name] = kNames[number - 1];
    if (number < 5) planet[PlanetField::Owner] = number < 3 ? "Vantari" : "Veldt Kin";
    if (number < 6) planet[PlanetField::AgeText] = kCurrentAge;
    if (number < 4) planet[PlanetField::Population] = std::to_string(number * 100000);
    if (number == 1) planet[PlanetField::Starbase] = "Space Dock";
    planet[PlanetField::HabValue] = number * 10.0;
  }
  session.PlayerCount = 2;
  session.Player(1)[PlayerField::Name] = "Vantari";
  session.Player(2)[PlayerField::Name] = "Veldt Kin";
  return session;
}

void RequireFault(const QueryFault& fault, std::string_view text) {
  Require(!fault.Sentence.empty(), "a fault is told");
  Require(fault.Begin <= text.size() && fault.Length <= text.size() - fault.Begin, "its place");
}

void Search(const std::string& text, const GameSession& session, const SearchFacts& facts) {
  const auto parsed = ParseQuery(text);
  if (const auto* fault = std::get_if<QueryFault>(&parsed)) return RequireFault(*fault, text);
  const auto made = PlanetFilter::Make(text, session);
  if (const auto* fault = std::get_if<QueryFault>(&made)) return RequireFault(*fault, text);
  const auto& filter = std::get<PlanetFilter>(made);
  const auto turned = PlanetFilter::Make("not (" + text + ")", session);
  const auto* opposite = std::get_if<PlanetFilter>(&turned);
  Require(opposite != nullptr || filter.IsEmpty() || text.size() > 1900 ||
              std::ranges::count(text, '(') >= kDeepestBrackets,
          "a search in brackets is one");
  if (opposite == nullptr) return;
  for (int planet = 1; planet <= session.PlanetCount; ++planet) {
    Require(filter.Holds(session, facts, planet) != opposite->Holds(session, facts, planet),
            "a planet is found or not");
  }
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvane;
  static const GameSession session = fuzz::SmallGame();
  static const SearchFacts facts = FactsOf(session);
  const std::string text = fuzz::DecodedText(data, size);
  fuzz::Search(text, session, facts);
  const std::size_t cursor = text.empty() ? 0 : text.size() * data[0] / 255;
  const QueryCompletion completion = CompleteQuery(text, cursor, session);
  fuzz::Require(completion.Begin + completion.Length <= cursor, "what is completed");
  fuzz::Require(completion.Entries.size() <= kMostCompletions, "some entries");
  return 0;
}

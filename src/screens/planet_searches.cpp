#include "screens/planet_searches.h"

#include <algorithm>

#include "model/text.h"

namespace quorvane {
namespace {

constexpr SearchExample kExamples[] = {
    {"owner:none near<=150 terra>0",
     "Planets that nobody owns, within 150 light years of mine, where I could live after "
     "terraforming"},
    {"yra", "Planets whose names contain \"yra\", letter case aside"},
    {"\"old harrow\"", "A name with a blank stands in quotes"},
    {"\"base\"", "In quotes a word is a planet's name and nothing else"},
    {"owner:bren", "Planets of the race whose name begins so, if there is only one"},
    {"owner:\"Veldt Kin\"", "A race's name with a blank stands in quotes"},
    {"mine not base", "Planets of mine without a starbase: words beside each other must all hold"},
    {"owned not mine", "Planets of all other races"},
    {"pop>100k", "More than 100,000 people; k stands for thousands"},
    {"hab>=50% or terra>=80%", "A good value for my race, now or after terraforming"},
    {"hab(Tamarisk)>20", "The estimated value for another race above 20%"},
    {"owner:none (iron>60 or germ>60)", "Brackets hold together what belongs together"},
    {"gate>=300", "Stargates with a range of 300 light years or more"},
    {"base:dock", "Starbases whose design is called something with \"dock\""},
    {"near(Yrandar, 150)", "All planets within 150 light years of Yrandar, itself among them"},
    {"dist<=81 not owner:none", "Planets of anybody within a year at warp 9 of the selected one"},
    {"age>5 owned", "Owned planets whose last report is more than five years old"},
    {"unexplored", "Planets of which nobody has ever reported"},
    {"changed not mine", "Planets of others that changed since the year of What Changed"},
    {"not hab>=50 not unknown(hab)",
     "A comparison with a value that is not known is false; \"not\" turns that round, so \"not "
     "hab>=50\" finds the unknown ones, too, and \"unknown(hab)\" is there to ask for them"},
};

}  // namespace

std::vector<PlanetSearch> ReadyMadeSearches(bool hasTerra) {
  const ColumnSort byValue = {hasTerra ? "Terra %" : "Hab", true};
  const ColumnSort byWay = {"Nearest Own l.y.", false};
  const ColumnSort byPeople = {"Population", true};
  return {{"Where to settle", "owner:none", {byValue, byWay}},
          {"Undefended", "owned not mine not base def<25", {byPeople}},
          {"Rich rocks", "owner:none iron>=50 bora>=50 germ>=50", {byWay}},
          {"Old reports", "age>=10", {{"Age", true}, byWay}},
          {"My unprotected", "mine not base def<25", {byPeople}}};
}

Result<void> KeepSearch(std::vector<PlanetSearch>& searches, PlanetSearch search) {
  search.Name = Trimmed(search.Name);
  if (search.Name.empty()) return Failure{"A search needs a name"};
  if (Trimmed(search.Query).empty()) return Failure{"There is no search to be kept"};
  const std::variant<QueryNode, QueryFault> parsed = ParseQuery(search.Query);
  if (const auto* fault = std::get_if<QueryFault>(&parsed)) return Failure{fault->Sentence};
  const auto hasName = [&](const PlanetSearch& other) {
    return EqualIgnoringCase(other.Name, search.Name);
  };
  if (std::ranges::any_of(ReadyMadeSearches(true), hasName)) {
    return Failure{"There is a ready-made search called " + search.Name};
  }
  const auto same = std::ranges::find_if(searches, hasName);
  if (same != searches.end()) {
    *same = std::move(search);
  } else {
    searches.push_back(std::move(search));
  }
  return {};
}

std::span<const SearchExample> SearchExamples() { return kExamples; }

}  // namespace quorvane

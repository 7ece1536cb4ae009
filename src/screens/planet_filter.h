#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "screens/planet_query.h"

namespace quorvane {

/// What searches ask of a game beyond what its reports say of each planet.
struct SearchFacts {
  /// The planets' names in small letters, by number.
  std::vector<std::string> Names;
  /// How far it is to the nearest own planet, by number; empty: there is none.
  std::vector<double> ToOwn;
  /// The selected planet; 0: none.
  int Selected = 0;
  /// Which planets changed, by number; empty: there is no year to compare with, and so nothing is
  /// known to have changed.
  std::vector<bool> Changed;
};

/// The facts that a game has by itself: nothing selected, nothing changed.
SearchFacts FactsOf(const GameSession& session);

/// A search in a game: the races and planets that it names are found there.
class PlanetFilter {
 public:
  /// The filter of a search, or what is wrong with its text: it cannot be read, or names a race or
  /// planet that the game does not have, or names a race too shortly to tell which.
  static std::variant<PlanetFilter, QueryFault> Make(std::string_view search,
                                                     const GameSession& session);

  /// Whether a planet is one that is searched for. A comparison with a value that is not known is
  /// false, whichever way it goes.
  /// @param session  the game that the filter was made for, or the same game in another year whose
  ///                 races have the same numbers
  bool Holds(const GameSession& session, const SearchFacts& facts, int planet) const;

  /// Whether the search names anything at all.
  bool IsEmpty() const { return tree_.NodeKind == QueryNode::Kind::All && tree_.Parts.empty(); }
  /// Whether which planet is selected, or which planets changed, matters.
  bool AsksForSelected() const { return asksForSelected_; }
  bool AsksForChanged() const { return asksForChanged_; }

 private:
  explicit PlanetFilter(QueryNode tree) : tree_(std::move(tree)) {}
  std::optional<QueryFault> Resolve(QueryNode& node, const GameSession& session);

  QueryNode tree_;
  bool asksForSelected_ = false;
  bool asksForChanged_ = false;
};

/// The planets that a filter finds, in map order.
std::vector<int> FindPlanets(const PlanetFilter& filter, const GameSession& session,
                             const SearchFacts& facts);

}  // namespace quorvane

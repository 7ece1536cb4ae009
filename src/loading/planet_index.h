#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// Finds planets by name, without regard to blanks at both ends of it. A view into the names that
/// it is made of: they must not change while it is used.
class PlanetIndex {
 public:
  explicit PlanetIndex(const GameSession& session);
  /// The same of planets that have only their names, in map order.
  explicit PlanetIndex(const std::vector<std::string>& names);

  /// The number of the first planet of that name on the map; 0 for an unknown name.
  int Find(std::string_view name) const;

  /// A planet whose name another one bears already, and the first of that name.
  struct Namesake {
    int Number = 0;
    int First = 0;
  };
  /// All of them in map order; a map of the game itself has none.
  const std::vector<Namesake>& Namesakes() const { return namesakes_; }

 private:
  void Add(std::string_view name, int number);

  std::unordered_map<std::string_view, int> numbers_;
  std::vector<Namesake> namesakes_;
};

}  // namespace quorvane

#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// Finds planets by name, without regard to blanks at both ends of it. A view into the session's
/// planets: the names must not change while it is used.
class PlanetIndex {
 public:
  explicit PlanetIndex(const GameSession& session);

  /// The numbers of all planets of that name in map order; empty for an unknown name.
  const std::vector<int>& Find(std::string_view name) const;

 private:
  std::unordered_map<std::string_view, std::vector<int>> numbers_;
};

}  // namespace quorvane

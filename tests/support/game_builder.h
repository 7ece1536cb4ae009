#pragma once

#include <string_view>
#include <vector>

#include "map/map_view.h"
#include "model/game_session.h"

namespace quorvane {

/// Makes a small loaded game in memory: geometry, planets and players as a load leaves them, an
/// influence grid that nobody holds. The universe is 1000 light years wide. Calls about a planet
/// are about the last one added.
///   GameBuilder().Planet("Alpha", {1200, 1300}).OwnedBy("Humanoid").Build()
class GameBuilder {
 public:
  /// A player without planets, or one whose place in the player table matters.
  GameBuilder& Player(std::string_view name);
  /// A field of the player added last, by `Player` or by the first planet of its own.
  GameBuilder& WithPlayerField(PlayerField field, FieldValue value);

  /// An unexplored planet at a place in game coordinates.
  GameBuilder& Planet(std::string_view name, GamePoint at);
  /// Owners become players in the order in which they appear.
  GameBuilder& OwnedBy(std::string_view race);
  GameBuilder& With(PlanetField field, FieldValue value);

  GameSession Build() const;

 private:
  std::vector<PlayerRecord> players_;
  std::vector<PlanetRecord> planets_;
};

}  // namespace quorvane

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// What one label of the details panel shows.
struct DetailText {
  /// The label's control name.
  std::string_view Label;
  std::string Text;
};

/// All that the reports say about a planet itself: who holds it, its population and industry, its
/// minerals and its environment, which only per-player reports state.
/// @param planet its number, from 1
std::vector<DetailText> DescribePlanet(const GameSession& session, int planet);

/// How well each player, in order, could live on a planet: "57%", or "N/A" while its environment is
/// not known.
std::vector<std::string> HabTexts(const GameSession& session, int planet);

/// All that is known of a planet as a text of several lines, for people.
std::string PlanetText(const GameSession& session, int planet);

/// A planet's stargate and the planets with stargates that ships can be sent to, with their
/// distances.
struct StargateDetails {
  /// "Inf Kt / 500 l.y.", mass before range; "None Detected" without a stargate.
  std::string Type;
  std::vector<std::string> Safe;
  std::vector<std::string> Dangerous;
};
StargateDetails DescribeStargate(const GameSession& session, int planet);

}  // namespace quorvane

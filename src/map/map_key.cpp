#include "map/map_key.h"

#include "map/palette.h"

namespace quorvane {

int ScaleBarLength(double pixelsPerLightYear, double mostPixels) {
  constexpr int kFarthest = 100'000;
  int longest = 0;
  for (int unit = 1; unit <= kFarthest; unit *= 10) {
    for (const int times : {1, 2, 5}) {
      if (times * unit * pixelsPerLightYear <= mostPixels) longest = times * unit;
    }
  }
  return longest;
}

int SampleRace(const GameSession& session) {
  const int own = session.FindPlayerByName(session.MyRaceName);
  if (session.ColourOf(own) != nullptr) return own;
  for (int player = 1; player <= session.PlayerCount; ++player) {
    if (session.ColourOf(player) != nullptr) return player;
  }
  return 0;
}

Colour SampleRaceColour(const GameSession& session) {
  const Colour* colour = session.ColourOf(SampleRace(session));
  return colour != nullptr ? *colour : kWhite;
}

std::pair<Colour, Colour> SampleNeighbours(const GameSession& session) {
  const Colour own = SampleRaceColour(session);
  const int race = SampleRace(session);
  for (int player = 1; player <= session.PlayerCount; ++player) {
    const Colour* colour = session.ColourOf(player);
    if (player != race && colour != nullptr) return {own, *colour};
  }
  return {own, own};
}

}  // namespace quorvane

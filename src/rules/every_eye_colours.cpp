#include "rules/every_eye_colours.h"

#include <array>

namespace quorvane {

void UseRaceColours(GameSession& session, const RaceColourTable& preset) {
  std::array<bool, kColourSlots + 1> isUsed = {};
  for (const PlayerRecord& player : session.Players()) {
    isUsed.at(static_cast<std::size_t>(player.ColourSlot())) = true;
  }
  std::size_t next = 0;
  for (const bool used : {true, false}) {
    for (std::size_t slot = 1; slot <= kColourSlots; ++slot) {
      if (isUsed.at(slot) == used) session.RaceColours.at(slot - 1) = preset.at(next++);
    }
  }
}

}  // namespace quorvane

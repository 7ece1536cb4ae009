#include "rules/colour_slots.h"

namespace quorvane {

int ColourSlotOf(const GameSession& session, std::string_view raceName) {
  int slot = 0;
  for (const PlayerRecord& player : session.Players()) {
    if (player.Name() == raceName) slot = player.ColourSlot();
  }
  return slot;
}

bool IsRaceColour(Colour colour) {
  constexpr int kLeastBrightness = 192;  // of the three components together
  return colour.Red + colour.Green + colour.Blue >= kLeastBrightness;
}

}  // namespace quorvane

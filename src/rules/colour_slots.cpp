#include "rules/colour_slots.h"

namespace quorvane {

int ColourSlotOf(const GameSession& session, std::string_view raceName) {
  int slot = 0;
  for (int player = 1; player <= session.PlayerCount; ++player) {
    if (session.Player(player).Name() == raceName) slot = session.Player(player).ColourSlot();
  }
  return slot;
}

bool IsRaceColour(Colour colour) {
  constexpr int kLeastBrightness = 192;  // of the three components together
  return colour.Red + colour.Green + colour.Blue >= kLeastBrightness;
}

}  // namespace quorvane

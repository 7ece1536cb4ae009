#pragma once

#include "model/game_session.h"

namespace quorvane {

/// Race colours that stay apart for normal, red-blind, green-blind and blue-blind eyes, the first
/// of them furthest, and away from white, black and the dull colour of unexplored planets.
inline constexpr RaceColourTable kEveryEyeColours = {{
    {90, 255, 0},
    {219, 34, 148},
    {37, 17, 252},
    {184, 202, 110},
    {242, 169, 180},
    {132, 126, 0},
    {133, 0, 158},
    {158, 203, 252},
    {218, 0, 254},
    {199, 110, 116},
    {183, 148, 255},
    {103, 147, 191},
    {254, 217, 178},
    {144, 97, 52},
    {193, 255, 113},
    {86, 201, 13},
}};

/// Gives the colour slots of the game's players, in ascending order, the colours of a preset in its
/// order, and the other slots those that are left.
void UseRaceColours(GameSession& session, const RaceColourTable& preset);

}  // namespace quorvane

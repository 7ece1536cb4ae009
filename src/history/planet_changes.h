#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// What became of a planet between two years of a game, the weightiest first.
enum class ChangeKind {
  Taken,      // by one race from another
  Lost,       // nobody lives there any more
  Settled,    // where nobody had lived
  FirstSeen,  // never reported before, and somebody lives there
  StarbaseNew,
  StarbaseGone,
  GateNew,
  GateGone,
  Population,  // of the same owner, by a fifth or more
  HabKnown,
  Explored,       // never reported before, and nobody lives there
  ReportYounger,  // and nothing else is new
};

/// One thing that became of one planet.
struct PlanetChange {
  ChangeKind Kind = ChangeKind::Taken;
  int Planet = 0;    // its number in the later year
  std::string From;  // the owners before and after; empty: nobody
  std::string To;
  /// What the kind counts: people, the range of a stargate, the habitability in percent.
  double Before = 0;
  double After = 0;

  bool operator==(const PlanetChange&) const = default;
};

/// The changes between two years of a game, ordered by kind, planets of the user's own race first,
/// then by the people concerned. A planet is the same in both where its name and place are; what
/// only one of them has is left out.
/// @param race  only what concerns planets that this race owns before or after; empty: all
std::vector<PlanetChange> FindPlanetChanges(const GameSession& before, const GameSession& after,
                                            std::string_view race = {});

}  // namespace quorvane

#pragma once

#include <string>

#include "model/game_session.h"

namespace quorvane {

/// What of a game the user has changed and not saved.
struct UnsavedChanges {
  bool Colours = false;
  bool Drawings = false;
  bool Races = false;

  bool Any() const { return Colours || Drawings || Races; }
};

/// Notices what the user changes in a session.
class SavedSession {
 public:
  /// The session is as its files have it.
  void Take(const GameSession& session);
  void TakeColours(const GameSession& session) { colours_ = session.RaceColours; }
  void TakeRaces(const GameSession& session) { players_ = session.PlayerTable; }

  /// What differs now. Of drawings the session does not know.
  UnsavedChanges ChangesOf(const GameSession& session) const;

 private:
  RaceColourTable colours_ = kDefaultRaceColours;
  std::array<PlayerRecord, kMaxPlayers + 1> players_;
};

/// What the user is asked before the changes would be lost.
std::string UnsavedQuestion(const UnsavedChanges& changes, const GameChoice& game);

}  // namespace quorvane

#include "screens/unsaved_changes.h"

#include <vector>

#include "files/files.h"

namespace quorvane {

void SavedSession::Take(const GameSession& session) {
  TakeColours(session);
  TakeRaces(session);
}

UnsavedChanges SavedSession::ChangesOf(const GameSession& session) const {
  return {.Colours = session.RaceColours != colours_, .Races = session.PlayerTable != players_};
}

std::string UnsavedQuestion(const UnsavedChanges& changes, const GameChoice& game) {
  std::vector<std::string> kinds;
  if (changes.Colours) kinds.emplace_back("race colours");
  if (changes.Drawings) kinds.emplace_back("drawings");
  if (changes.Races) kinds.emplace_back("race information");
  std::string text = "The ";
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    if (i > 0) text += i + 1 < kinds.size() ? ", " : " and ";
    text += kinds[i];
  }
  return text + " of " + TextFromPath(game.MapFilePath.stem()) +
         " have been changed and not saved. Save them?";
}

}  // namespace quorvane

#include "screens/stored_session.h"

#include <array>
#include <utility>

#include "influence/compute_influence.h"

namespace quorvane {

Result<GameSession> SessionOfYear(const History& history, const std::string& game, int year,
                                  const GameChoice& choice, GameSession room) {
  Result<GameSession> session = history.ReadYear(game, year, std::move(room));
  if (!session) return session;
  GameChoice stored = choice;
  stored.ReportStyle = session->ReportStyle;
  stored.SoiSetting = session->SoiSetting;
  stored.GameYear = year;
  static_cast<GameChoice&>(*session) = stored;
  // The computation counts the grid points of each race, of which the year has its own figures.
  const auto players = session->PlayerTable;
  for (PlayerRecord& player : session->Players()) player[PlayerField::Territory] = FieldValue();
  ComputeInfluence(*session, {});
  for (int player = 1; player <= session->PlayerCount; ++player) {
    session->Player(player)[PlayerField::Territory] =
        players.at(static_cast<std::size_t>(player))[PlayerField::Territory];
  }
  return session;
}

}  // namespace quorvane

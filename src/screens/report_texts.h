#pragma once

#include <string>
#include <vector>

#include "loading/game_file_stamps.h"
#include "loading/report_survey.h"
#include "model/game_session.h"

namespace quorvane {

/// What is told of a report, or of a player without one. Texts are empty where nothing is known,
/// as all numbers are until the survey is done.
struct ReportRow {
  int Row = 0;       // of the choice, 1 … 16; 0: a player without a report
  std::string File;  // its name
  std::string Race;
  std::string Date;        // of its last change, "2026-11-23 14:02"
  std::string Year;        // as it was typed; empty: the game year
  std::string Planets;     // that it tells of
  std::string OnlyHere;    // of these, those that no other report tells of which is to be loaded
  std::string AverageAge;  // "1.4", in years
  std::string Warning;     // one short sentence
  bool IsTicked = false;   // whether the next load reads it
  bool IsOwn = false;      // the user's own one, which every load reads

  bool operator==(const ReportRow&) const = default;
};

/// The game's reports, by their rows, then the players that no report is from. Who these are is
/// known when all reports are surveyed; in a game of the old style a single report stands for all.
/// @param next  the choice as it will be loaded again: its ticks and years count
std::vector<ReportRow> DescribeReports(const GameSession& session, const GameChoice& next,
                                       const ReportSurveys& surveys,
                                       const std::vector<GameFileStamp>& stamps);

}  // namespace quorvane

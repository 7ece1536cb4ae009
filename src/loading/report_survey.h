#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// What a survey of the reports needs: copies, so that another thread can make it while the game
/// changes.
struct SurveyInput {
  std::vector<std::string> PlanetNames;  // in map order
  std::array<ReportFileSlot, kMaxPlayers + 1> ReportFiles;
  int MyRaceRow = 0;
  int GameYear = 0;
};

/// @param next  the choice as it will be loaded again: its ticks and years count
SurveyInput SurveyOf(const GameSession& session, const GameChoice& next);

/// What a report tells.
struct ReportSurvey {
  bool IsDone = false;  // false: nothing is known yet, or there is no report
  std::string Problem;  // why it cannot be read; empty: it was read
  /// Whose report it is: only a race's own planets show resources. Empty where none does.
  std::string Race;
  int Planets = 0;   // of the map, that it names
  int OnlyHere = 0;  // of these, those that no other report names which is to be loaded
  /// In years of the game, of the planets that it gives a date; nothing where it dates none.
  std::optional<double> AverageAge;

  bool operator==(const ReportSurvey&) const = default;
};

/// For each row of the choice, 1 … 16.
using ReportSurveys = std::array<ReportSurvey, kMaxPlayers + 1>;

/// Reads all reports from the disk and tells what is in them, line by line as a load reads them.
/// Runs on any thread.
/// @param isStopped  is asked before each report; once it is true, nothing is known of any
ReportSurveys SurveyReports(const SurveyInput& input, const std::function<bool()>& isStopped);

/// Whether a load reads the report of a row: the user's own one always, the others where ticked.
bool IsReportTicked(const ReportFileSlot& slot, bool isOwn);

}  // namespace quorvane

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formats/report_line.h"
#include "loading/planet_index.h"
#include "model/game_session.h"

namespace quorvane {

/// How old a report is: "Current" for an age of 0, otherwise the age right-aligned in three
/// characters and " years old"; longer ages make the text longer.
std::string AgeTextOf(double age);

/// Merges planet reports into a session whose planets stand there with their names. The user's own
/// report is authoritative and comes first; every other report then adds what it knows of planets
/// that the user's race does not own, replacing earlier data where its information is newer.
class ReportMerge {
 public:
  explicit ReportMerge(GameSession& session);

  /// Merges the text of the user's own report; `year` is the report's year as text. Sets
  /// `MyRaceName` from a planet that yields resources.
  void AddOwnReport(std::string_view report, std::string_view year);
  /// Merges the text of another player's report.
  void AddOtherReport(std::string_view report, std::string_view year);

 private:
  void ShareAmongNamesakes();
  void MergeOwnLine(PlanetRecord& planet, const ReportLine& line, std::optional<double> age);
  void MergeOtherLine(int number, const ReportLine& line, std::optional<double> age);
  bool IsKnown(int number) const { return isKnown_.at(static_cast<std::size_t>(number)); }
  bool IsNews(int number, std::optional<double> age) const;
  void StoreCommonFields(PlanetRecord& planet, const ReportLine& line, std::optional<double> age);
  void StoreOwnEnvironment(PlanetRecord& planet, const ReportLine& line);

  GameSession& session_;
  PlanetIndex index_;
  /// Planets of which any line was used; index 0 is not used.
  std::vector<bool> isKnown_;
};

}  // namespace quorvane

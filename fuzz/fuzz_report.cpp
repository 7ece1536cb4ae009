// Any bytes as a report merge into a game, first as the user's own report, then as another one.
#include <cstddef>
#include <cstdint>
#include <string>

#include "loading/player_statistics.h"
#include "loading/report_merge.h"
#include "model/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text =
      quorvane::DecodeText(std::string(reinterpret_cast<const char*>(data), size));
  quorvane::GameSession session;
  session.GameYear = 2450;
  session.CreatePlanetTable(3);
  const char* const names[] = {"A", "B", "A"};
  for (int i = 1; i <= 3; ++i) session.Planet(i)[quorvane::PlanetField::Name] = names[i - 1];
  quorvane::ReportMerge merge(session);
  merge.AddOwnReport(text, "2450");
  merge.AddOtherReport(text, text.substr(0, 5));
  quorvane::DiscoverPlayers(session);
  quorvane::GatherStatistics(session);
  for (int i = 1; i <= 3; ++i) quorvane::PlanetScore(session.Planet(i));
  return 0;
}

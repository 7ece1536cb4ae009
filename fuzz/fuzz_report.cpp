// Any bytes as a report are split into lines and fields, and merge into a game, first as the user's
// own report, then as another one. Planets of one name always know the same.
#include <cmath>

#include "formats/report_file.h"
#include "fuzz_support.h"
#include "loading/report_merge.h"
#include "model/text.h"
#include "rules/player_statistics.h"
#include "rules/scores.h"

namespace quorvane::fuzz {
namespace {

void RequireSound(const ReportLine& line, std::string_view text) {
  Require(line.Count() <= kReportFields, "number of fields");
  std::size_t bytes = 0;
  for (std::size_t field = 0; field < line.Count(); ++field) {
    const std::string_view value = line.Text(field);
    Require(value.find('\t') == value.npos, "no field holds a TAB");
    Require(std::isfinite(line.Number(static_cast<ReportField>(field))), "finite numbers");
    if (text.find(value) != text.npos) bytes += value.size();
  }
  Require(bytes <= text.size() + line.Count() * std::string_view("Uninhabited").size(),
          "fields come from the line");
}

void SplitLines(std::string_view text) {
  const auto check = [](const std::vector<std::string_view>& lines, std::size_t most) {
    Require(lines.size() <= most, "no more lines than the text has");
    for (const std::string_view line : lines) RequireSound(ReportLine(line), line);
  };
  std::deque<std::string> unquoted;
  check(OtherReportLines(text, unquoted), CountLines(text));
  // A comma in the heading makes a line of what follows it, and commas in the text may make more.
  check(OwnReportLines(text), CountLines(text) + 1);
}

GameSession SmallSession(int style) {
  GameSession session;
  session.ReportStyle = style;
  session.GameYear = 2450;
  session.CreatePlanetTable(4);
  const char* const names[] = {"A", "B", "A", " Unknown"};
  for (int i = 1; i <= 4; ++i) session.Planet(i)[PlanetField::Name] = names[i - 1];
  return session;
}

void Merge(GameSession session, std::string_view text) {
  ReportMerge merge(session);
  merge.AddOwnReport(text, "2450");
  merge.AddOtherReport(text, text.substr(0, 5));
  DiscoverPlayers(session);
  GatherStatistics(session);
  RequireSoundTables(session);
  Require(session.Planet(1) == session.Planet(3), "namesakes know the same");
  for (int i = 1; i <= session.PlanetCount; ++i) PlanetScore(session.Planet(i));
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvane;
  const std::string text = fuzz::DecodedText(data, size);
  fuzz::SplitLines(text);
  for (const int style : {kNewReportStyle, kOldReportStyle}) {
    fuzz::Merge(fuzz::SmallSession(style), text);
  }
  return 0;
}

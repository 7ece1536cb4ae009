#include "reference/plain_merge.h"

#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/files.h"
#include "model/rounding.h"
#include "model/text.h"

namespace quorvane::reference {
namespace {

constexpr std::size_t kFields = 37;

using Fields = std::vector<FieldValue>;

// What is merged, and which planets some line has told about.
struct Merge {
  GameSession& Session;
  std::vector<bool> IsKnown;
  NameComparison Comparison;
};

FieldValue StandIn(std::size_t field) {
  if (field == 1) return "";
  if (field == 2) return "None";
  if (field == 4) return "Uninhabited";
  if (field >= 30) return 0;
  return "Unknown";
}

// The fields that a line has, at most 37; what follows the last TAB is none.
Fields SplitLine(std::string line) {
  if (line.ends_with('%')) {
    for (int i = 0; i < 9; ++i) line += "\t0";
  }
  Fields fields;
  std::string field;
  for (const char c : line) {
    if (c != '\t') {
      field += c;
    } else if (fields.size() < kFields) {
      fields.push_back(field.empty() ? StandIn(fields.size()) : FieldValue(field));
      field.clear();
    }
  }
  return fields;
}

bool IsLineEnd(std::string_view text, std::size_t at) {
  if (text[at] == '\r') return at + 1 == text.size() || text[at + 1] == '\n';
  return text[at] == '\n';
}

std::string TakeDataItem(std::string_view& rest) {
  std::size_t at = 0;
  std::string item;
  while (at < rest.size() && rest[at] == ' ') ++at;
  if (at < rest.size() && rest[at] == '"') {
    for (++at; at < rest.size() && rest[at] != '"'; ++at) item += rest[at];
    if (at < rest.size()) ++at;
  }
  for (; at < rest.size() && rest[at] != ',' && !IsLineEnd(rest, at); ++at) item += rest[at];
  rest.remove_prefix(at);
  if (rest.starts_with(',')) {
    rest.remove_prefix(1);
  } else {
    TakeLine(rest);  // of which only the line end is left
  }
  return item;
}

int CountLinesOf(std::string_view text) {
  int lines = 0;
  for (; !text.empty(); ++lines) TakeLine(text);
  return lines;
}

std::string TextOfReport(const ReportFileSlot& report) {
  const Result<std::string> text = ReadTextFile(report.Path);
  return text ? *text : std::string();
}

std::vector<std::string> LinesOfOwnReport(const ReportFileSlot& report) {
  const std::string text = TextOfReport(report);
  std::string_view rest = text;
  TakeDataItem(rest);
  const int count = CountLinesOf(rest);
  std::vector<std::string> lines;
  for (int i = 0; i < count; ++i) lines.emplace_back(TakeLine(rest));
  return lines;
}

std::vector<std::string> LinesOfOtherReport(const ReportFileSlot& report) {
  const std::string text = TextOfReport(report);
  std::string_view rest = text;
  TakeDataItem(rest);
  const int count = CountLinesOf(rest);
  rest = text;
  TakeLine(rest);
  std::vector<std::string> lines;
  for (int i = 0; i < count; ++i) lines.push_back(TakeDataItem(rest));
  return lines;
}

// The age in years of what a line tells; nothing when the line gives no number for it.
std::optional<double> AgeOf(const GameSession& session, const ReportFileSlot& report,
                            const FieldValue& years) {
  const bool isText = years.Kind() == FieldKind::Text;
  const std::optional<double> number = isText ? WholeTextNumber(years.Text()) : years.Number();
  if (!number) return std::nullopt;
  return NumericValue(std::to_string(session.GameYear)) - NumericValue(report.Year) + *number;
}

std::string AgeTextOf(double age) {
  if (age == 0) return "Current";
  std::string number = NumberTextWithLeadingBlank(age);
  while (number.size() < 3) number = " " + number;
  return number + " years old";
}

int SubstitutePopulation(const std::string& starbase) {
  if (starbase == "Orbital Fort" || starbase == "Starter Colony") return 250000;
  if (starbase == "Space Dock") return 500000;
  if (starbase == "Space Station") return 1000000;
  if (starbase == "Ultra Station") return 2000000;
  if (starbase == "Death Star") return 3000000;
  return 1350000;
}

int SphereOfInfluence(const PlanetRecord& planet, const FieldValue& defence, int soiSetting) {
  const double population = planet[PlanetField::Population].Number();
  double sphere = 0;
  if (population > 0) {
    double radius = std::floor(population / 10000) * soiSetting / 100;
    if (radius < 10) radius = 10;
    double factor = FieldText(planet[PlanetField::Starbase]) == "None" ? 0.7 : 1.0;
    std::string coverage = FieldText(defence);
    if (coverage != "Unknown") {
      if (!coverage.empty()) coverage.pop_back();
      factor = factor - (97.92 - NumericValue(coverage)) / 489.6;
    } else {
      factor = factor - 97.92 / 489.6;
    }
    sphere = std::floor(factor * radius);
  }
  return FloorToWhole32(sphere > soiSetting ? soiSetting : sphere);
}

// What every line that is used tells, be it the user's own or another player's.
void TakeCommonFields(const GameSession& session, PlanetRecord& planet, Fields& line,
                      const std::optional<double>& age) {
  planet[PlanetField::Owner] = line[1];
  planet[PlanetField::Starbase] = line[2];
  planet[PlanetField::ReportAge] = age ? FieldValue(*age) : FieldValue();
  planet[PlanetField::AgeText] = age ? FieldValue(AgeTextOf(*age)) : FieldValue();
  const std::string starbase = FieldText(planet[PlanetField::Starbase]);
  if (line[4].ReadsAs(0) && starbase != "None") line[4] = SubstitutePopulation(starbase);
  planet[PlanetField::Population] = line[4];
  planet[PlanetField::SoiRadius] = SphereOfInfluence(planet, line[9], session.SoiSetting);
  planet[PlanetField::Mines] = line[7];
  planet[PlanetField::Factories] = line[8];
  planet[PlanetField::Resources] = line[19];
  planet[PlanetField::DefencePercent] = line[9];
  planet[PlanetField::StoredIron] = line[10];
  planet[PlanetField::StoredBora] = line[11];
  planet[PlanetField::StoredGerm] = line[12];
  for (std::size_t rate = 13; rate <= 15; ++rate) {
    if (line[rate].ReadsAs(-1)) line[rate] = "Remote";
  }
  planet[PlanetField::IronMR] = line[13];
  planet[PlanetField::BoraMR] = line[14];
  planet[PlanetField::GermMR] = line[15];
  planet[PlanetField::IronMC] = line[16];
  planet[PlanetField::BoraMC] = line[17];
  planet[PlanetField::GermMC] = line[18];
  if (session.ReportStyle != kNewReportStyle) return;
  planet[PlanetField::Gravity] = line[20];
  planet[PlanetField::Temperature] = line[21];
  planet[PlanetField::Radiation] = line[22];
  planet[PlanetField::Gravity2] = line[23];
  planet[PlanetField::Temperature2] = line[24];
  planet[PlanetField::Radiation2] = line[25];
}

void MergeOwnLine(Merge& merge, int number, const ReportFileSlot& report, Fields& line) {
  GameSession& session = merge.Session;
  PlanetRecord& planet = session.Planet(number);
  const std::optional<double> age = AgeOf(session, report, line[3]);
  if (!age && merge.IsKnown[static_cast<std::size_t>(number)]) return;
  merge.IsKnown[static_cast<std::size_t>(number)] = true;
  TakeCommonFields(session, planet, line, age);
  planet[PlanetField::InMyReport] = 1;
  if (planet[PlanetField::SoiRadius].Number() < 5 && !FieldText(line[1]).empty()) {
    planet[PlanetField::SoiRadius] = 5;
  }
  planet[PlanetField::HabValue] = line[5].Number();
  if (line[19].Number() > 0) session.MyRaceName = FieldText(line[1]);
  if (session.ReportStyle != kNewReportStyle) return;
  planet[PlanetField::TerraValue] = line[26].Number();
  planet[PlanetField::ExtraValue] = line[27].Number();
  const double range = line[33].Number();
  const double mass = line[34].Number();
  planet[PlanetField::GateRange] = range == -1 ? 10000.0 : range;
  planet[PlanetField::GateMass] = mass == -1 ? 10000.0 : mass;
  planet[PlanetField::ScanRange] = line[28].Number();
  planet[PlanetField::PenScanRange] = line[29].Number();
}

void MergeOtherLine(Merge& merge, int number, const ReportFileSlot& report, Fields& line) {
  GameSession& session = merge.Session;
  PlanetRecord& planet = session.Planet(number);
  if (FieldText(line[1]) == session.MyRaceName) return;
  const std::optional<double> age = AgeOf(session, report, line[3]);
  const FieldValue& known = planet[PlanetField::ReportAge];
  const bool isNews = age ? *age == 0 || known.IsEmpty() || known.Number() > *age
                          : !merge.IsKnown[static_cast<std::size_t>(number)];
  if (isNews) {
    merge.IsKnown[static_cast<std::size_t>(number)] = true;
    TakeCommonFields(session, planet, line, age);
  }
  for (std::size_t gate = 33; gate <= 34; ++gate) {
    if (line[gate].ReadsAs(-1)) line[gate] = 10000;
  }
  if (session.ReportStyle == kNewReportStyle &&
      planet[PlanetField::GateRange].Number() < line[33].Number()) {
    planet[PlanetField::GateRange] = line[33].Number();
    planet[PlanetField::GateMass] = line[34].Number();
  }
}

bool IsSameName(const std::string& left, const std::string& right, NameComparison comparison) {
  if (comparison == NameComparison::Views) return Trimmed(left) == Trimmed(right);
  return std::string(Trimmed(left)) == std::string(Trimmed(right));
}

template <typename MergeLine>
void MergeLines(Merge& merge, const ReportFileSlot& report, const std::vector<std::string>& lines,
                MergeLine mergeLine) {
  for (const std::string& text : lines) {
    Fields line = SplitLine(text);
    if (line.empty()) continue;
    line.resize(kFields);
    for (int number = 1; number <= merge.Session.PlanetCount; ++number) {
      if (IsSameName(merge.Session.Planet(number).Name(), line[0].Text(), merge.Comparison)) {
        mergeLine(merge, number, report, line);
      }
    }
  }
}

}  // namespace

GameSession SessionBeforeReports(const GameSession& loaded, const std::string& myRaceName) {
  GameSession session;
  static_cast<GameChoice&>(session) = loaded;
  session.MyRaceName = myRaceName;
  session.CreatePlanetTable(loaded.PlanetCount);
  for (int planet = 1; planet <= loaded.PlanetCount; ++planet) {
    for (std::size_t field = 1; field <= 4; ++field) {
      session.Planet(planet).Field(field) = loaded.Planet(planet).Field(field);
    }
  }
  return session;
}

void PlainMergeReports(GameSession& session, NameComparison comparison) {
  Merge merge{session, std::vector<bool>(session.PlanetTable.size()), comparison};
  if (session.MyRaceRow >= 1 && session.MyRaceRow <= kMaxPlayers) {
    const auto& own = session.ReportFiles[static_cast<std::size_t>(session.MyRaceRow)];
    MergeLines(merge, own, LinesOfOwnReport(own), MergeOwnLine);
  }
  for (int row = 1; row <= kMaxPlayers; ++row) {
    const auto& report = session.ReportFiles[static_cast<std::size_t>(row)];
    if (row == session.MyRaceRow || WholeTextNumber(report.Included) != 1.0) continue;
    MergeLines(merge, report, LinesOfOtherReport(report), MergeOtherLine);
  }
}

}  // namespace quorvane::reference

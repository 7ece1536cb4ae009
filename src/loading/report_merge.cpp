#include "loading/report_merge.h"

#include <algorithm>
#include <deque>
#include <utility>

#include "formats/report_file.h"
#include "loading/report_reading.h"
#include "model/text.h"
#include "rules/sphere_of_influence.h"

namespace quorvane {
namespace {

constexpr int kSmallestOwnRadius = 5;
constexpr const char* kRemoteMining = "Remote";

std::size_t NumberOf(ReportField field) { return static_cast<std::size_t>(field); }
std::size_t NumberOf(PlanetField field) { return static_cast<std::size_t>(field); }

// Fields that stand side by side both in the line and in the record.
struct FieldCopy {
  PlanetField To;
  ReportField From;
  std::size_t Count;
};

constexpr FieldCopy kCommonCopies[] = {
    {PlanetField::Owner, ReportField::Owner, 2},  // and the starbase
    {PlanetField::Mines, ReportField::Mines, 2},  // and the factories
    {PlanetField::Resources, ReportField::Resources, 1},
    {PlanetField::DefencePercent, ReportField::Defence, 4},  // and the three stored minerals
    {PlanetField::IronMC, ReportField::IronMC, 3}};
struct ExtraCopy {
  PlanetExtra To;
  ReportField From;
};

constexpr ExtraCopy kExtraCopies[] = {{PlanetExtra::ProductionQueue, ReportField::ProductionQueue},
                                      {PlanetExtra::CapacityUsed, ReportField::ExtraValue},
                                      {PlanetExtra::DriverTarget, ReportField::DriverTarget},
                                      {PlanetExtra::DriverWarp, ReportField::DriverWarp},
                                      {PlanetExtra::Route, ReportField::Route},
                                      {PlanetExtra::StarbaseDamage, ReportField::StarbaseDamage}};
constexpr FieldCopy kEnvironmentCopy = {PlanetField::Gravity, ReportField::Gravity, 6};

void CopyFields(PlanetRecord& planet, const ReportLine& line, const FieldCopy& copy) {
  for (std::size_t i = 0; i < copy.Count; ++i) {
    line.CopyTo(planet.Field(NumberOf(copy.To) + i), NumberOf(copy.From) + i);
  }
}

// Of several reports of one year, the owner's tells more than those of his neighbours.
void StoreExtras(PlanetRecord& planet, const ReportLine& line, bool isSameYear) {
  for (const auto& [to, from] : kExtraCopies) {
    const std::string_view text = Trimmed(line.Written(from));
    if (!text.empty()) {
      planet[to].SetText(text);
    } else if (!isSameYear) {
      planet[to] = FieldValue();
    }
  }
}

// A number that the report leaves out reads as 0, and is not known.
void StoreNumber(PlanetRecord& planet, PlanetField to, const ReportLine& line, ReportField from) {
  planet[to] = line.Number(from);
  planet.LeftOut()[NumberOf(to)] = !HasDigit(line.Text(from));
}

void StoreMiningRates(PlanetRecord& planet, const ReportLine& line) {
  for (std::size_t mineral = 0; mineral < 3; ++mineral) {
    const std::size_t field = NumberOf(ReportField::IronMR) + mineral;
    FieldValue& rate = planet.Field(NumberOf(PlanetField::IronMR) + mineral);
    line.CopyTo(rate, field);
    if (line.ReadsAs(field, -1)) rate = kRemoteMining;
  }
}

// A starbase without colonists counts as populated.
void StorePopulation(PlanetRecord& planet, const ReportLine& line) {
  FieldValue& population = planet[PlanetField::Population];
  const std::string_view starbase = line.Text(ReportField::Starbase);
  line.CopyTo(population, ReportField::Population);
  if (population.ReadsAs(0) && starbase != kNoStarbase) population = StarbasePopulation(starbase);
}

double UnlimitedWhenMinusOne(double reading) { return reading == -1 ? kUnlimitedGate : reading; }

double GateReading(const ReportLine& line, ReportField field) {
  return line.ReadsAs(field, -1) ? kUnlimitedGate : line.Number(field);
}

}  // namespace

std::string AgeTextOf(double age) {
  if (age == 0) return kCurrentAge;
  constexpr std::size_t kAgeWidth = 3;
  const std::string text = NumberTextWithLeadingBlank(age);
  const std::string padding(kAgeWidth - std::min(text.size(), kAgeWidth), ' ');
  return padding + text + " years old";
}

ReportMerge::ReportMerge(GameSession& session)
    : session_(session),
      index_(session),
      isKnown_(static_cast<std::size_t>(session.PlanetCount) + 1) {}

void ReportMerge::AddOwnReport(std::string_view report, std::string_view year) {
  const double reportAge = session_.GameYear - NumericValue(year);
  const auto merge = [&](int number, const ReportLine& line) {
    std::optional<double> age = line.Age();
    if (!age && IsKnown(number)) return;  // never dated: it serves only where nothing is known
    if (age) *age += reportAge;
    MergeOwnLine(session_.Planet(number), line, age);
    isKnown_.at(static_cast<std::size_t>(number)) = true;
  };
  UseReportLines(index_, OwnReportLines(report), merge);
  ShareAmongNamesakes();
}

void ReportMerge::AddOtherReport(std::string_view report, std::string_view year) {
  const double reportAge = session_.GameYear - NumericValue(year);
  const auto merge = [&](int number, const ReportLine& line) {
    // What others say of the user's own planets never replaces what the user knows.
    if (line.Text(ReportField::Owner) == session_.MyRaceName) return;
    std::optional<double> age = line.Age();
    if (age) *age += reportAge;
    MergeOtherLine(number, line, age);
  };
  std::deque<std::string> unquoted;
  UseReportLines(index_, OtherReportLines(report, unquoted), merge);
  ShareAmongNamesakes();
}

// A line is for all planets of its name. They never differ in what reports say, so it is enough to
// merge it once; a million lines for each of thousands of namesakes would take hours.
void ReportMerge::ShareAmongNamesakes() {
  for (const auto& [number, first] : index_.Namesakes()) {
    const PlanetRecord& source = session_.Planet(first);
    PlanetRecord& target = session_.Planet(number);
    for (std::size_t field = NumberOf(PlanetField::Owner); field <= kPlanetFieldCount; ++field) {
      target.Field(field) = source.Field(field);
    }
    for (const auto& [extra, from] : kExtraCopies) target[extra] = source[extra];
    target.LeftOut() = source.LeftOut();
  }
}

void ReportMerge::MergeOwnLine(PlanetRecord& planet, const ReportLine& line,
                               std::optional<double> age) {
  planet[PlanetField::InMyReport] = 1;
  StoreCommonFields(planet, line, age);
  if (planet.SoiRadius() < kSmallestOwnRadius && !planet.Owner().empty()) {
    planet[PlanetField::SoiRadius] = kSmallestOwnRadius;
  }
  StoreNumber(planet, PlanetField::HabValue, line, ReportField::Value);
  if (planet[PlanetField::Resources].Number() > 0) session_.MyRaceName = planet.Owner();
  if (session_.ReportStyle == kNewReportStyle) StoreOwnEnvironment(planet, line);
}

void ReportMerge::MergeOtherLine(int number, const ReportLine& line, std::optional<double> age) {
  PlanetRecord& planet = session_.Planet(number);
  if (IsNews(number, age)) {
    StoreCommonFields(planet, line, age);
    isKnown_.at(static_cast<std::size_t>(number)) = true;
  }
  // The widest gate range that anybody saw wins, however old, and its mass limit comes with it.
  const double range = GateReading(line, ReportField::GateRange);
  if (session_.ReportStyle == kNewReportStyle && planet[PlanetField::GateRange].Number() < range) {
    planet[PlanetField::GateRange] = range;
    planet[PlanetField::GateMass] = GateReading(line, ReportField::GateMass);
  }
}

bool ReportMerge::IsNews(int number, std::optional<double> age) const {
  if (!age) return !IsKnown(number);
  const FieldValue& known = session_.Planet(number)[PlanetField::ReportAge];
  return *age == 0 || known.IsEmpty() || known.Number() > *age;
}

void ReportMerge::StoreCommonFields(PlanetRecord& planet, const ReportLine& line,
                                    std::optional<double> age) {
  for (const FieldCopy& copy : kCommonCopies) CopyFields(planet, line, copy);
  if (session_.ReportStyle == kNewReportStyle) CopyFields(planet, line, kEnvironmentCopy);
  StoreExtras(planet, line, age && planet[PlanetField::ReportAge] == FieldValue(*age));
  planet[PlanetField::ReportAge] = age ? FieldValue(*age) : FieldValue();
  planet[PlanetField::AgeText] = age ? FieldValue(AgeTextOf(*age)) : FieldValue();
  StorePopulation(planet, line);
  StoreMiningRates(planet, line);
  planet[PlanetField::SoiRadius] = SphereRadius({.Population = planet.Population(),
                                                 .Starbase = line.Text(ReportField::Starbase),
                                                 .Defence = line.Text(ReportField::Defence),
                                                 .SoiSetting = session_.SoiSetting});
}

void ReportMerge::StoreOwnEnvironment(PlanetRecord& planet, const ReportLine& line) {
  StoreNumber(planet, PlanetField::TerraValue, line, ReportField::TerraValue);
  StoreNumber(planet, PlanetField::ExtraValue, line, ReportField::ExtraValue);
  planet[PlanetField::GateRange] = UnlimitedWhenMinusOne(line.Number(ReportField::GateRange));
  planet[PlanetField::GateMass] = UnlimitedWhenMinusOne(line.Number(ReportField::GateMass));
  StoreNumber(planet, PlanetField::ScanRange, line, ReportField::ScanRange);
  StoreNumber(planet, PlanetField::PenScanRange, line, ReportField::PenScanRange);
}

}  // namespace quorvane

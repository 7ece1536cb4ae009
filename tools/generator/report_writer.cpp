#include "generator/report_writer.h"

#include <algorithm>
#include <map>
#include <string_view>

#include "generator/planet_state.h"
#include "generator/report_row.h"
#include "model/game_choice.h"
#include "model/text.h"

namespace quorvane::generator {
namespace {

constexpr std::string_view kEmptyQueue = "      --- Queue is Empty ---";
constexpr std::string_view kQueues[] = {
    "      Factory (Auto Build) 50", "      Mine (Auto Build) 25",
    "      Defense (Auto Build) 10", "      Max Terraform (Auto Build) 5",
    "      Colony Ship 2",           "      Large Freighter 4"};

// Everything that the lines of one report share.
struct Report {
  const quorvane::generator::Universe& Universe;
  const ReportHead& Head;
  const Race& Author;
};

std::string Percent(int value) { return std::to_string(value) + "%"; }

std::string HundredthsPercent(int hundredths) {
  const std::string decimals = std::to_string(hundredths % 100);
  return std::to_string(hundredths / 100) + (decimals.size() < 2 ? ".0" : ".") + decimals + "%";
}

void SetMinerals(ReportRow& line, Column first, const Minerals& minerals) {
  for (std::size_t kind = 0; kind < kMineralKinds; ++kind) {
    line.Set(first + kind, std::to_string(minerals[kind]));
  }
}

void SetReadings(ReportRow& line, Column first, const Environment& environment) {
  const auto texts = ReadingTexts(environment);
  for (std::size_t kind = 0; kind < kEnvironmentKinds; ++kind) line.Set(first + kind, texts[kind]);
}

// What the planet is worth to the author now, and what terraforming could make of it.
void SetEnvironment(ReportRow& line, const Report& report, const Planet& planet,
                    const PlanetState& state) {
  const HabRanges& ranges = report.Author.Ranges;
  const int steps = report.Author.TerraformSteps;
  const int best = HabValue(ranges, Terraformed(ranges, planet.Original, steps));
  const int value = HabValue(ranges, state.Current);
  line.Set(Column::Value, Percent(value));
  SetMinerals(line, Column::Concentrations, planet.Concentrations);
  SetReadings(line, Column::Readings, state.Current);
  SetReadings(line, Column::OriginalReadings, planet.Original);
  line.Set(Column::ValueTerraformed, Percent(std::max(best, value)));
}

void SetInhabitants(ReportRow& line, const PlanetState& state) {
  line.Set(Column::Owner, state.Owner->Name);
  line.Set(Column::Starbase, state.Starbase);
  line.Set(Column::Population, std::to_string(state.Population));
}

std::string QueueOf(const Planet& planet) {
  const int roll = (planet.StockRoll * 7 + planet.GateRoll) % 10;
  return std::string(roll < 4 ? kEmptyQueue : kQueues[static_cast<std::size_t>(roll - 4)]);
}

void SetOwn(ReportRow& line, const Planet& planet, const PlanetState& state) {
  SetInhabitants(line, state);
  line.Set(Column::Queue, QueueOf(planet));
  line.Set(Column::Mines, state.Mines);
  line.Set(Column::Factories, state.Factories);
  line.Set(Column::Defences, HundredthsPercent(state.DefenceHundredths));
  SetMinerals(line, Column::Stored, state.Stored);
  SetMinerals(line, Column::MiningRates, state.MiningRates);
  line.Set(Column::Resources, state.Resources);
  line.Set(Column::Capacity, state.Population / (state.Capacity / 100));
  line.Set(Column::ScanRange, state.PlanetScanner.Range);
  line.Set(Column::PenScanRange, state.PlanetScanner.PenetratingRange);
  line.Set(Column::Warp, 0);
  line.Set(Column::GateRange, state.Stargate.Range);
  line.Set(Column::GateMass, state.Stargate.Mass);
  line.Set(Column::Damage, 0);
}

// Empty planets beside the author's own are worked by remote miners where that pays.
bool IsMinedRemotely(const Planet& planet, int age) {
  const Minerals& rich = planet.Concentrations;
  return age == 0 && planet.StockRoll < 50 && *std::ranges::max_element(rich) > 60;
}

void SetScanned(ReportRow& line, const Report& report, const Planet& planet,
                const PlanetState& state, int age) {
  SetEnvironment(line, report, planet, state);
  SetMinerals(line, Column::Stored, state.Stored);
  if (state.Owner == nullptr) {
    if (IsMinedRemotely(planet, age)) SetMinerals(line, Column::MiningRates, {-1, -1, -1});
    return;
  }
  SetInhabitants(line, state);
  line.Set(Column::Defences, Percent((state.DefenceHundredths + 50) / 100));
}

std::string LineFor(const Report& report, const Sighting& sighting) {
  const Planet& planet = report.Universe.Planets[sighting.Planet];
  const PlanetState state = StateIn(report.Universe, planet, report.Head.Year - sighting.Age);
  ReportRow line;
  line.Set(Column::Name, planet.Name);
  line.Set(Column::Age, sighting.Age);
  switch (sighting.Depth) {
    case Insight::Own:
      SetEnvironment(line, report, planet, state);
      SetOwn(line, planet, state);
      break;
    case Insight::Scanned:
      SetScanned(line, report, planet, state, sighting.Age);
      break;
    case Insight::Sighted:
      line.Set(Column::Owner, state.Owner->Name);
      break;
  }
  if (report.Head.Style == kOldReportStyle) return line.Text(kOldColumns);
  // Only the planets of one's own have the columns behind the value after terraforming.
  return line.Text(sighting.Depth == Insight::Own ? kNewColumns : kNewForeignColumns);
}

// Every sign that Windows-1252 has beyond ASCII, with its byte.
std::map<std::string, char, std::less<>> MakeCodePage() {
  std::map<std::string, char, std::less<>> bytes;
  for (int byte = 0x80; byte < 0x100; ++byte) {
    const char single = static_cast<char>(byte);
    bytes[DecodeText(std::string(1, single))] = single;
  }
  return bytes;
}

}  // namespace

std::string EncodeForGame(std::string_view text) {
  static const auto kCodePage = MakeCodePage();
  const auto isContinuation = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
  std::string encoded;
  encoded.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    std::size_t end = i + 1;
    while (end < text.size() && isContinuation(text[end])) ++end;
    const std::string_view sign = text.substr(i, end - i);
    const auto found = sign.size() > 1 ? kCodePage.find(sign) : kCodePage.end();
    if (found == kCodePage.end()) {
      encoded += sign;
    } else {
      encoded += found->second;
    }
    i = end;
  }
  return encoded;
}

std::string ReportText(const Universe& universe, const ReportHead& head,
                       const std::vector<Sighting>& known) {
  const Report report = {universe, head, universe.Races[static_cast<std::size_t>(head.Author)]};
  std::string text = HeadingLine(head.Style == kOldReportStyle ? kOldColumns : kNewColumns);
  for (const Sighting& sighting : known) text += LineFor(report, sighting);
  return EncodeForGame(text);
}

}  // namespace quorvane::generator

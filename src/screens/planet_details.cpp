#include "screens/planet_details.h"

#include <algorithm>
#include <cmath>

#include "model/text.h"
#include "rules/estimated_hab.h"
#include "rules/stargates.h"

namespace quorvane {
namespace {

using Field = PlanetField;

std::string OrNone(const std::string& owner) { return owner.empty() ? "None" : owner; }

void AppendIdentity(std::vector<DetailText>& texts, const PlanetRecord& planet) {
  const auto text = [&](Field field) { return FieldText(planet[field]); };
  const bool isExplored = planet.IsExplored();
  const std::string age(Trimmed(planet.AgeText()));
  texts.insert(texts.end(), {{"PlanetName", planet.Name()},
                             {"StarsScore", text(Field::ScoreValue)},
                             {"Owner", OrNone(planet.Owner())},
                             {"Owner2", OrNone(planet.Owner())},
                             {"Starbase", planet.Starbase()},
                             {"ReportAge", isExplored ? age : "Unexplored"},
                             {"ReportAge2", age},
                             {"HabValue", isExplored ? text(Field::HabValue) + "%" : "?%"}});
}

void AppendPopulation(std::vector<DetailText>& texts, const PlanetRecord& planet) {
  const auto text = [&](Field field) { return FieldText(planet[field]); };
  const double radius = std::floor(planet[Field::SoiRadius].Number());
  texts.insert(texts.end(), {{"Population", text(Field::Population)},
                             {"Mines", text(Field::Mines)},
                             {"Factories", text(Field::Factories)},
                             {"Resources", text(Field::Resources)},
                             {"Defence", text(Field::DefencePercent)},
                             {"SOI", NumberText(radius) + " l.y."}});
}

void AppendMinerals(std::vector<DetailText>& texts, const PlanetRecord& planet) {
  const auto text = [&](Field field) { return FieldText(planet[field]) + " "; };
  const bool isRemote = planet[Field::IronMR].Text() == "Remote";
  const auto rate = [&](Field field) { return isRemote ? "Remote " : text(field); };
  texts.insert(texts.end(), {{"IronMCT", text(Field::IronMC)},
                             {"BoraMCT", text(Field::BoraMC)},
                             {"GermMCT", text(Field::GermMC)},
                             {"IronMR", rate(Field::IronMR)},
                             {"BoraMR", rate(Field::BoraMR)},
                             {"GermMR", rate(Field::GermMR)},
                             {"IronS", text(Field::StoredIron)},
                             {"BoraS", text(Field::StoredBora)},
                             {"GermS", text(Field::StoredGerm)}});
}

void AppendEnvironment(std::vector<DetailText>& texts, const PlanetRecord& planet, bool isKnown) {
  const auto reading = [&](Field field, const char* unit) {
    return isKnown ? NumberText(planet[field].Number()) + unit : "Unavailable";
  };
  texts.insert(texts.end(), {{"Grav1", reading(Field::Gravity, "g")},
                             {"Temp1", reading(Field::Temperature, "°C")},
                             {"Rad1", reading(Field::Radiation, "mR")},
                             {"Grav2", reading(Field::Gravity2, "g")},
                             {"Temp2", reading(Field::Temperature2, "°C")},
                             {"Rad2", reading(Field::Radiation2, "mR")}});
}

}  // namespace

std::vector<DetailText> DescribePlanet(const GameSession& session, int planet) {
  const PlanetRecord& record = session.Planet(planet);
  std::vector<DetailText> texts;
  AppendIdentity(texts, record);
  AppendPopulation(texts, record);
  AppendMinerals(texts, record);
  AppendEnvironment(texts, record, session.ReportStyle == kNewReportStyle);
  return texts;
}

std::vector<std::string> HabTexts(const GameSession& session, int planet) {
  const bool isKnown = session.Planet(planet).IsEnvironmentKnown();
  std::vector<std::string> texts;
  for (int player = 1; player <= session.PlayerCount; ++player) {
    texts.push_back(isKnown ? NumberText(EstimatedHab(session, player, planet)) + "%" : "N/A");
  }
  return texts;
}

std::string PlanetText(const GameSession& session, int planet) {
  const PlanetRecord& record = session.Planet(planet);
  const std::vector<DetailText> details = DescribePlanet(session, planet);
  const auto detail = [&](std::string_view label) {
    const auto found = std::ranges::find(details, label, &DetailText::Label);
    return std::string(Trimmed(found->Text));
  };
  const auto three = [&](std::string_view first, std::string_view second, std::string_view third) {
    return detail(first) + ", " + detail(second) + ", " + detail(third);
  };
  std::string text = record.Name() + " (" + NumberText(record.X() + kUniverseOrigin) + ", " +
                     NumberText(session.UniverseExtent - record.Y()) + ")\n";
  const auto line = [&text](const std::string& caption, const std::string& value) {
    if (!value.empty()) text += caption + ": " + value + "\n";
  };
  line("Owner", detail("Owner"));
  line("Starbase", detail("Starbase"));
  line("Report", detail("ReportAge"));
  if (!record.IsExplored()) return text;
  line("Population", detail("Population"));
  line("Value", detail("HabValue"));
  line("Mines", detail("Mines"));
  line("Factories", detail("Factories"));
  line("Resources", detail("Resources"));
  line("Defences", detail("Defence"));
  line("Minerals on the surface (iron, bora, germ)", three("IronS", "BoraS", "GermS"));
  line("Mineral concentrations", three("IronMCT", "BoraMCT", "GermMCT"));
  line("Mining rates", three("IronMR", "BoraMR", "GermMR"));
  if (record.IsEnvironmentKnown()) {
    line("Gravity, temperature, radiation", three("Grav1", "Temp1", "Rad1"));
  }
  line("Stargate", DescribeStargate(session, planet).Type);
  const std::vector<std::string> values = HabTexts(session, planet);
  for (std::size_t player = 0; player < values.size(); ++player) {
    line("Estimated for the " + session.Player(static_cast<int>(player) + 1).Name(),
         values[player]);
  }
  return text;
}

StargateDetails DescribeStargate(const GameSession& session, int planet) {
  const Gate sender = GateOf(session.Planet(planet));
  StargateDetails details;
  if (sender.Range < 1) {
    details.Type = "None Detected";
    return details;
  }
  details.Type = GateLimitsText(session.Planet(planet));
  for (int other = 1; other <= session.PlanetCount; ++other) {
    const PlanetRecord& receiver = session.Planet(other);
    if (other == planet || !(receiver[Field::GateRange].Number() > 0)) continue;
    const std::int32_t distance = GateDistance(sender, GateOf(receiver));
    const GateReach reach = ReachOf(sender.Range, distance);
    if (reach == GateReach::None) continue;
    auto& list = reach == GateReach::Safe ? details.Safe : details.Dangerous;
    list.push_back(receiver.Name() + "  (" + NumberText(distance) + " l.y.)");
  }
  return details;
}

}  // namespace quorvane

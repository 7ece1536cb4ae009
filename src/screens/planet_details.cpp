#include "screens/planet_details.h"

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

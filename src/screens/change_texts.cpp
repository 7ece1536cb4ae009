#include "screens/change_texts.h"

#include <algorithm>
#include <cmath>

#include "files/files.h"
#include "model/text.h"

namespace quorvane {
namespace {

// "the Drask", but not "the The Others".
std::string The(const std::string& race) {
  return (race.starts_with("The ") || race.starts_with("the ") ? "" : "the ") + race;
}

// 1234567 as 1,234,567.
std::string WithCommas(double number) {
  std::string text = NumberText(number);
  const std::size_t end = std::min(text.find('.'), text.size());
  const std::size_t begin = text.starts_with('-') ? 1 : 0;
  for (std::size_t place = end; place > begin + 3;) text.insert(place -= 3, ",");
  return text;
}

std::string People(double people) {
  return people > 0 ? ", " + WithCommas(people) + " people" : "";
}

std::string Percent(double percent) { return NumberText(percent) + " %"; }

std::string GateText(double range) {
  return range >= kUnlimitedGate ? "unlimited" : NumberText(range) + " light years";
}

std::string PopulationText(const PlanetChange& change) {
  const double amount = std::fabs(change.After - change.Before);
  std::string text = "population of " + The(change.To);
  text += change.After > change.Before ? " up" : " down";
  if (change.Before > 0) {
    text += " by " + Percent(std::round(100 * amount / change.Before)) + ",";
  } else {
    text += " from";
  }
  return text + " " + WithCommas(change.Before) + " to " + WithCommas(change.After);
}

std::string AgeWords(double age) {
  if (age == 0) return kCurrentAge;
  return NumberText(age) + (age == 1 ? " year old" : " years old");
}

std::string Words(const PlanetChange& change, const PlanetRecord& planet) {
  switch (change.Kind) {
    case ChangeKind::Taken:
      return "taken from " + The(change.From) + " by " + The(change.To) + People(change.After);
    case ChangeKind::Lost:
      return "lost by " + The(change.From);
    case ChangeKind::Settled:
      return "settled by " + The(change.To) + People(change.After);
    case ChangeKind::FirstSeen:
      return "first seen, held by " + The(change.To) + People(change.After);
    case ChangeKind::StarbaseNew:
      return (change.To.empty() ? "new starbase, " : "new starbase of " + The(change.To) + ", ") +
             planet.Starbase();
    case ChangeKind::StarbaseGone:
      return "starbase gone";
    case ChangeKind::GateNew:
      return "new stargate, " + GateText(change.After);
    case ChangeKind::GateGone:
      return "stargate gone";
    case ChangeKind::Population:
      return PopulationText(change);
    case ChangeKind::HabKnown:
      return "habitability known now, " + Percent(change.After);
    case ChangeKind::Explored:
      return planet[PlanetField::HabValue].IsEmpty()
                 ? "newly explored"
                 : "newly explored, habitability " + Percent(change.After);
    case ChangeKind::ReportYounger:
      return "report younger, " + AgeWords(change.Before) + " to " + AgeWords(change.After);
  }
  return "";
}

}  // namespace

std::vector<ChangeRow> DescribePlanetChanges(const std::vector<PlanetChange>& changes,
                                             const GameSession& after) {
  std::vector<ChangeRow> rows;
  rows.reserve(changes.size());
  for (const PlanetChange& change : changes) {
    const PlanetRecord& planet = after.Planet(change.Planet);
    rows.push_back({change.Planet, planet.Name() + ": " + Words(change, planet)});
  }
  return rows;
}

std::vector<std::string> RacesOf(const GameSession& before, const GameSession& after) {
  std::vector<std::string> races;
  for (const GameSession* session : {&after, &before}) {
    for (const PlayerRecord& player : session->Players()) {
      if (std::ranges::find(races, player.Name()) == races.end()) races.push_back(player.Name());
    }
  }
  return races;
}

std::string ChangesSummary(std::size_t changes, int since) {
  return std::to_string(changes) + (changes == 1 ? " change since " : " changes since ") +
         std::to_string(since);
}

std::string ChangesText(const std::vector<ChangeRow>& rows, const GameSession& before,
                        const GameSession& after, std::string_view race) {
  std::string text = TextFromPath(after.MapFilePath.stem()) + ": year " +
                     std::to_string(after.GameYear) + " against " +
                     std::to_string(before.GameYear) + ", " +
                     (race.empty() ? "all races" : std::string(race)) + "\n\n";
  for (const ChangeRow& row : rows) text += row.Text + "\n";
  return text;
}

}  // namespace quorvane

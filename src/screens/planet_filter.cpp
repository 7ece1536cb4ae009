#include "screens/planet_filter.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "model/text.h"
#include "rules/distances.h"

namespace quorvane {
namespace {

using Kind = QueryNode::Kind;

bool Contains(std::string_view text, std::string_view part) { return text.find(part) != text.npos; }

// A name as it was found in the game, or why it was not.
using FoundName = std::variant<std::size_t, std::string>;

// The name that is meant: one of exactly these letters, or the one that differs only in their case,
// or the only one that begins with them.
FoundName FindName(const std::vector<std::string>& names, const std::string& wanted,
                   const std::string& what) {
  if (const auto exact = std::ranges::find(names, wanted); exact != names.end()) {
    return static_cast<std::size_t>(exact - names.begin());
  }
  const std::string inLowerCase = InLowerCase(wanted);
  std::vector<std::size_t> same;
  std::vector<std::size_t> longer;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string name = InLowerCase(names[i]);
    if (!name.starts_with(inLowerCase)) continue;
    (name.size() == inLowerCase.size() ? same : longer).push_back(i);
  }
  const std::vector<std::size_t>& meant = same.empty() ? longer : same;
  if (meant.size() == 1) return meant.front();
  const std::string quoted = "\"" + Excerpt(wanted) + "\"";
  if (meant.empty()) return "No " + what + " is called " + quoted + ".";
  return "Several " + what + "s begin with " + quoted + ": " + Excerpt(names[meant[0]]) + ", " +
         Excerpt(names[meant[1]]) + (meant.size() > 2 ? " and others." : ".");
}

// In the order of their numbers.
std::vector<std::string> PlayersOf(const GameSession& session) {
  std::vector<std::string> players;
  for (const PlayerRecord& player : session.Players()) players.push_back(player.Name());
  return players;
}

std::vector<std::string> OwnersOf(const GameSession& session) {
  std::vector<std::string> owners = PlayersOf(session);
  owners.insert(owners.end(), session.OwnersWithoutRecord.begin(),
                session.OwnersWithoutRecord.end());
  return owners;
}

std::vector<std::string> PlanetNamesOf(const GameSession& session) {
  std::vector<std::string> names;
  for (const PlanetRecord& planet : session.Planets()) names.push_back(planet.Name());
  return names;
}

bool Compare(double value, Comparison sign, double number) {
  switch (sign) {
    case Comparison::Equal:
      return value == number;
    case Comparison::Unequal:
      return value != number;
    case Comparison::Less:
      return value < number;
    case Comparison::LessOrEqual:
      return value <= number;
    case Comparison::Greater:
      return value > number;
    case Comparison::GreaterOrEqual:
      return value >= number;
  }
  return false;
}

// One planet, asked whether it is searched for.
class Candidate {
 public:
  Candidate(const GameSession& session, const SearchFacts& facts, int planet)
      : session_(session), facts_(facts), number_(planet), planet_(session.Planet(planet)) {}

  bool Fits(const QueryNode& node) const;

 private:
  bool Has(PlanetFlag flag) const;
  std::optional<double> ValueOf(const QueryNode& node) const;
  const std::string& NameInLowerCase() const {
    return facts_.Names.at(static_cast<std::size_t>(number_));
  }

  const GameSession& session_;
  const SearchFacts& facts_;
  int number_;
  const PlanetRecord& planet_;
};

bool Candidate::Fits(const QueryNode& node) const {
  const auto fits = [this](const QueryNode& part) { return Fits(part); };
  switch (node.NodeKind) {
    case Kind::All:
      return std::ranges::all_of(node.Parts, fits);
    case Kind::Any:
      return std::ranges::any_of(node.Parts, fits);
    case Kind::Not:
      return !Fits(node.Parts.front());
    case Kind::Name:
      return Contains(NameInLowerCase(), node.Text);
    case Kind::Owner:
      return planet_.Owner() == node.Text;
    case Kind::Unowned:
      return planet_.Owner().empty();
    case Kind::Base:
      return Contains(InLowerCase(planet_.Starbase()), node.Text);
    case Kind::Flag:
      return Has(node.Flag);
    case Kind::Unknown:
      return !ValueOf(node);
    case Kind::Compare: {
      const std::optional<double> value = ValueOf(node);
      return value && Compare(*value, node.Sign, node.Number);
    }
    case Kind::Near:
      return LightYearsBetween(planet_, session_.Planet(node.Found)) <= node.Number;
  }
  return false;
}

bool Candidate::Has(PlanetFlag flag) const {
  const auto number = static_cast<std::size_t>(number_);
  switch (flag) {
    case PlanetFlag::Mine:
      return !planet_.Owner().empty() && planet_.Owner() == session_.MyRaceName;
    case PlanetFlag::Owned:
      return !planet_.Owner().empty();
    case PlanetFlag::Base:
      return planet_.HasStarbase();
    case PlanetFlag::Gate:
      return planet_[PlanetField::GateRange].Number() > 0;
    case PlanetFlag::Unexplored:
      return !planet_.IsExplored();
    case PlanetFlag::Changed:
      return number < facts_.Changed.size() && facts_.Changed[number];
  }
  return false;
}

std::optional<double> Candidate::ValueOf(const QueryNode& node) const {
  if (node.IsForRace) return MeasureHab(session_, node.Found, number_);
  switch (node.Measure) {
    case PlanetMeasure::NearestOwn:
      if (facts_.ToOwn.empty()) return std::nullopt;
      return facts_.ToOwn.at(static_cast<std::size_t>(number_));
    case PlanetMeasure::FromTheSelected:
      if (facts_.Selected == 0) return std::nullopt;
      return LightYearsBetween(session_.Planet(facts_.Selected), planet_);
    default:
      return MeasurePlanet(session_, number_, node.Measure);
  }
}

}  // namespace

SearchFacts FactsOf(const GameSession& session) {
  SearchFacts facts;
  facts.Names.reserve(session.PlanetTable.size());
  for (const PlanetRecord& planet : session.PlanetTable) {
    facts.Names.push_back(InLowerCase(planet.Name()));
  }
  facts.ToOwn = DistancesToOwnPlanets(session);
  return facts;
}

std::variant<PlanetFilter, QueryFault> PlanetFilter::Make(std::string_view search,
                                                          const GameSession& session) {
  std::variant<QueryNode, QueryFault> parsed = ParseQuery(search);
  if (auto* fault = std::get_if<QueryFault>(&parsed)) return std::move(*fault);
  PlanetFilter filter(std::move(std::get<QueryNode>(parsed)));
  if (std::optional<QueryFault> fault = filter.Resolve(filter.tree_, session)) {
    return std::move(*fault);
  }
  return filter;
}

// Finds the races and planets that a search names, and gives other texts the letters that they are
// compared in.
std::optional<QueryFault> PlanetFilter::Resolve(QueryNode& node, const GameSession& session) {
  const auto find = [&](const std::vector<std::string>& names,
                        const std::string& what) -> std::optional<QueryFault> {
    const FoundName found = FindName(names, node.Text, what);
    if (const auto* reason = std::get_if<std::string>(&found)) {
      return QueryFault{node.Begin, node.End - node.Begin, *reason};
    }
    node.Found = static_cast<int>(std::get<std::size_t>(found)) + 1;
    node.Text = names[std::get<std::size_t>(found)];
    return std::nullopt;
  };
  for (QueryNode& part : node.Parts) {
    if (std::optional<QueryFault> fault = Resolve(part, session)) return fault;
  }
  asksForSelected_ |= node.Measure == PlanetMeasure::FromTheSelected;
  asksForChanged_ |= node.NodeKind == Kind::Flag && node.Flag == PlanetFlag::Changed;
  if (node.NodeKind == Kind::Name || node.NodeKind == Kind::Base) {
    node.Text = InLowerCase(node.Text);
  } else if (node.NodeKind == Kind::Owner) {
    return find(OwnersOf(session), "race");
  } else if (node.NodeKind == Kind::Near) {
    return find(PlanetNamesOf(session), "planet");
  } else if (node.IsForRace) {
    return find(PlayersOf(session), "race");
  }
  return std::nullopt;
}

bool PlanetFilter::Holds(const GameSession& session, const SearchFacts& facts, int planet) const {
  return Candidate(session, facts, planet).Fits(tree_);
}

std::vector<int> FindPlanets(const PlanetFilter& filter, const GameSession& session,
                             const SearchFacts& facts) {
  std::vector<int> found;
  for (int planet = 1; planet <= session.PlanetCount; ++planet) {
    if (filter.Holds(session, facts, planet)) found.push_back(planet);
  }
  return found;
}

}  // namespace quorvane

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "rules/planet_measures.h"

namespace quorvane {

/// Longer searches, and ones with more brackets inside each other, are refused.
inline constexpr std::size_t kLongestQuery = 2000;  // characters
inline constexpr int kDeepestBrackets = 100;

/// Why a text is no search, and where: in bytes from its beginning.
struct QueryFault {
  std::size_t Begin = 0;
  std::size_t Length = 0;
  std::string Sentence;

  bool operator==(const QueryFault&) const = default;
};

enum class PlanetFlag : std::uint8_t {
  Mine,
  Owned,
  Base,
  Gate,
  Unexplored,
  Changed,  // since the year that is compared with
};
/// Every flag by its name in searches, in the order above.
inline constexpr std::string_view kFlagNames[] = {"mine", "owned",      "base",
                                                  "gate", "unexplored", "changed"};

enum class Comparison : std::uint8_t { Equal, Unequal, Less, LessOrEqual, Greater, GreaterOrEqual };

/// A search as a tree of what must hold.
struct QueryNode {
  enum class Kind : std::uint8_t {
    All,      // of the parts; of none: every planet
    Any,      // of the parts
    Not,      // the one part
    Name,     // the planet's name contains the text
    Owner,    // the race whose name the text is, or begins
    Unowned,  // nobody owns the planet
    Base,     // the starbase's design contains the text
    Flag,
    Compare,  // a value with the number
    Unknown,  // the value is not known
    Near,     // within `Number` light years of the planet that the text names
  };

  Kind NodeKind = Kind::All;
  std::vector<QueryNode> Parts;
  std::string Text;
  PlanetFlag Flag = PlanetFlag::Mine;
  /// What is compared or asked for; the estimated habitability for a race where `IsForRace`, and
  /// the text names the race.
  PlanetMeasure Measure = PlanetMeasure::Population;
  bool IsForRace = false;
  Comparison Sign = Comparison::Equal;
  double Number = 0;
  /// The number of the race or planet that the text names, once it is looked for in a game.
  int Found = 0;
  /// Where the text stands in the search, in bytes.
  std::size_t Begin = 0;
  std::size_t End = 0;
};

/// Reads a search:
///
///   words joined by blanks or `and` (all must hold), `or`, `not`, brackets
///   kestrel "old harrow"                    part of a planet's name, letter case aside
///   pop>100k hab(Drask)>=50%                = != < <= > >= on the values of `kMeasureNames`
///   owner:vantari owner:none base:dock
///   near(Kestrel, 150) unknown(hab)
///   mine owned base gate unexplored changed
///
/// A search without words is about all planets.
/// @return the tree, or what is wrong with the text
std::variant<QueryNode, QueryFault> ParseQuery(std::string_view text);

}  // namespace quorvane

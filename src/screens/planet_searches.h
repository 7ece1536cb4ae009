#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"
#include "screens/planet_table.h"

namespace quorvane {

/// A search that can be chosen by its name, and how its planets are sorted.
struct PlanetSearch {
  std::string Name;
  std::string Query;
  /// Without columns the table stays as it is sorted.
  std::vector<ColumnSort> Sorting;

  bool operator==(const PlanetSearch&) const = default;
};

/// The searches that every user finds ready made.
/// @param hasTerra  whether the reports tell values after terraforming, as the new-style ones do
std::vector<PlanetSearch> ReadyMadeSearches(bool hasTerra);

/// Keeps a search under a name, in place of one of the same name, letter case aside. Fails without
/// a name, with the name of one that is ready made, without a search and with one that cannot be
/// read.
Result<void> KeepSearch(std::vector<PlanetSearch>& searches, PlanetSearch search);

/// An example of the language.
struct SearchExample {
  std::string_view Query;
  /// What it finds, and the rule that it shows.
  std::string_view Meaning;
};
/// Examples that together show all of the language. Their names are of the example games.
std::span<const SearchExample> SearchExamples();

}  // namespace quorvane

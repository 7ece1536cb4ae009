#include "screens/year_choice.h"

#include <algorithm>

namespace quorvane {

std::vector<int> YearsToShow(std::vector<int> stored, int loaded) {
  const auto place = std::ranges::lower_bound(stored, loaded);
  const bool isStored = place != stored.end() && *place == loaded;
  if (loaded > 0 && !isStored) stored.insert(place, loaded);
  return stored;
}

std::vector<int> YearsBefore(std::vector<int> stored, int shown) {
  std::erase_if(stored, [shown](int year) { return year >= shown; });
  return stored;
}

int ComparedYear(const std::vector<int>& before, int chosen) {
  if (std::ranges::binary_search(before, chosen)) return chosen;
  return before.empty() ? 0 : before.back();
}

int RememberedChoice(const std::vector<int>& before, int chosen) {
  return !before.empty() && before.back() == chosen ? 0 : chosen;
}

}  // namespace quorvane

#pragma once

#include <vector>

namespace quorvane {

/// The years that can be shown, in ascending order: those that are stored, and the loaded one.
/// @param stored  in ascending order
/// @param loaded  0 where it is not known
std::vector<int> YearsToShow(std::vector<int> stored, int loaded);

/// The stored years before the one that is shown.
std::vector<int> YearsBefore(std::vector<int> stored, int shown);

/// The year to compare with: the chosen one where it is among those before, otherwise the last of
/// them. @return 0 where there is none
int ComparedYear(const std::vector<int>& before, int chosen);

/// What is remembered of a choice: 0 for the last of the years, so that the next year is compared
/// with the one before it again.
int RememberedChoice(const std::vector<int>& before, int chosen);

}  // namespace quorvane

#include "screens/empire_statistics.h"

#include <cmath>

#include "model/rounding.h"

namespace quorvane {
namespace {

// How many decimals an average shows; whole numbers are rounded down instead.
struct Average {
  PlayerField Total;
  int Decimals;
};
constexpr std::array<Average, kAverageCount> kAverages = {{{PlayerField::TotalPopulation, 0},
                                                           {PlayerField::TotalMines, 0},
                                                           {PlayerField::TotalFactories, 0},
                                                           {PlayerField::TotalResources, 0},
                                                           {PlayerField::TotalIron, 3},
                                                           {PlayerField::TotalBora, 3},
                                                           {PlayerField::TotalGerm, 3}}};

// A limit of a range. A minimum lies between the low end of its scale and the range's maximum, a
// maximum between the range's minimum and the high end.
struct RangeLimit {
  PlayerField Field;
  std::string_view Prompt;
  std::string_view Hint;
  double ScaleEnd;
};
constexpr std::string_view kMinimumHint = "\r\n\r\n(Enter Decimals using a dot . )";
constexpr std::string_view kMaximumHint = "\r\n\r\n((Enter Decimals using a dot . ))";
constexpr std::array<RangeLimit, 6> kRangeLimits = {
    {{PlayerField::GravMin, "Enter New Minimum Gravity Value for ", kMinimumHint, 0.12},
     {PlayerField::GravMax, "Enter New Maximum Gravity Value for ", kMaximumHint, 8},
     {PlayerField::TempMin, "Enter New Minimum Temperature Value for ", "", -200},
     {PlayerField::TempMax, "Enter New Maximum Temperature Value for ", "", 200},
     {PlayerField::RadMin, "Enter New Minimum Radiation Value for ", "", 0},
     {PlayerField::RadMax, "Enter New Maximum Radiation Value for ", "", 100}}};

std::size_t IndexOf(PlayerField limit) {
  return static_cast<std::size_t>(limit) - static_cast<std::size_t>(PlayerField::GravMin);
}

// Minimum and maximum of a kind stand side by side; each kind has one immunity.
bool IsMinimum(PlayerField limit) { return IndexOf(limit) % 2 == 0; }
double OtherEnd(const PlayerRecord& player, PlayerField limit) {
  const auto field = static_cast<std::size_t>(limit);
  return player.Field(IsMinimum(limit) ? field + 1 : field - 1).Number();
}

}  // namespace

std::array<std::string, kAverageCount> AverageTexts(const PlayerRecord& player) {
  std::array<std::string, kAverageCount> texts;
  const double planets = player[PlayerField::PlanetsOwned].Number();
  if (planets <= 0) return texts;
  for (std::size_t i = 0; i < kAverages.size(); ++i) {
    const auto& [total, decimals] = kAverages[i];
    const double average = player[total].Number() / planets;
    texts[i] = NumberText(decimals == 0 ? std::floor(average) : RoundToDecimals(average, decimals));
  }
  return texts;
}

std::string RangeCaption(const PlayerRecord& player, PlayerField limit) {
  if (player.Immunity(IndexOf(limit) / 2).ReadsAs(1)) return std::string(kImmuneCaption);
  return FieldText(player[limit]);
}

std::string RangePrompt(const PlayerRecord& player, PlayerField limit) {
  const RangeLimit& row = kRangeLimits.at(IndexOf(limit));
  return std::string(row.Prompt).append(player.Name()).append(row.Hint);
}

bool SetRangeLimit(PlayerRecord& player, PlayerField limit, std::string_view answer) {
  constexpr int kDecimals = 2;
  const double value = RoundToDecimals(NumericValue(answer), kDecimals);
  const double scaleEnd = kRangeLimits.at(IndexOf(limit)).ScaleEnd;
  const double lowest = IsMinimum(limit) ? scaleEnd : OtherEnd(player, limit);
  const double highest = IsMinimum(limit) ? OtherEnd(player, limit) : scaleEnd;
  if (value < lowest || value > highest) return false;
  player[limit] = value;
  return true;
}

}  // namespace quorvane

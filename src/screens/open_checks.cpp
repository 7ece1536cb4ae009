#include "screens/open_checks.h"

#include <cmath>

#include "files/files.h"
#include "model/field_value.h"
#include "model/rounding.h"

namespace quorvane {
namespace {

const OpenProblem kNoProblem;

OpenProblem CheckSoi(double soi) {
  if (soi < kSmallestSoiSetting) return {"Minimum SOI must be 50ly", OpenRemedy::UseSmallestSoi};
  if (soi > kLargestSoiSetting) return {"Maximum SOI must be 500ly", OpenRemedy::UseLargestSoi};
  return kNoProblem;
}

bool IsGone(const ReportFileSlot& slot) { return !slot.Path.empty() && !FindFile(slot.Path); }

OpenProblem CheckReports(const GameChoice& choice) {
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    if (IsGone(choice.ReportFiles[row])) {
      return {"Some files have been deleted/renamed. Try again", OpenRemedy::FindReportsAgain};
    }
  }
  double included = 0;
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    const double value = NumericValue(choice.ReportFiles[row].Included);
    if (value == 0 && static_cast<int>(row) == choice.MyRaceRow) {
      return {"You have not included the datafile you have selected as your race",
              OpenRemedy::FindReportsAgain};
    }
    included += value;
  }
  if (included == 0) return {"No planet files selected"};
  return kNoProblem;
}

OpenProblem CheckYears(const OpenInput& input) {
  const double gameYear = NumericValue(input.GameYear);
  double sum = 0;
  std::optional<int> firstLater;
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    const double year = NumericValue(input.Years[row]);
    sum += year;
    if (!firstLater && year > gameYear) firstLater = static_cast<int>(row);
  }
  if (sum > 0 && gameYear == 0) {
    return {.Message = "You have entered Years for player files but not for the Game",
            .YearRow = 0};
  }
  if (!firstLater) return kNoProblem;
  // A year before 0 is wrong itself: reports without a year are later.
  return {.Message = "One or more game files has a Year higher then the Game Year",
          .YearRow = gameYear < 0 ? 0 : firstLater};
}

}  // namespace

bool IsSoiTooLarge(const std::string& text) {
  return !text.empty() && NumericValue(text) > kLargestSoiSetting;
}

std::string ToggledIncluded(const std::string& included) {
  return NumberTextWithLeadingBlank(std::fabs(NumericValue(included) - 1));
}

OpenProblem AcceptOpenInput(GameChoice& choice, const OpenInput& input) {
  const double soi = NumericValue(input.Soi);
  OpenProblem problem = CheckSoi(soi);
  if (!problem.Message.empty()) return problem;
  choice.SoiSetting = ToWhole16(soi);
  problem = CheckReports(choice);
  if (problem.Message.empty()) problem = CheckYears(input);
  if (!problem.Message.empty()) return problem;
  for (std::size_t row = 1; row <= kMaxPlayers; ++row) {
    const bool isTyped = NumericValue(input.Years[row]) != 0;
    choice.ReportFiles[row].Year = isTyped ? input.Years[row] : input.GameYear;
  }
  choice.GameYear = ToWhole32(NumericValue(input.GameYear));
  return kNoProblem;
}

}  // namespace quorvane

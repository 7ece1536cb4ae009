#pragma once

#include <optional>
#include <string>

#include "formats/dialog_files.h"
#include "model/game_choice.h"

namespace quorvane {

/// What the open dialog's text boxes hold.
struct OpenInput {
  std::string Soi;
  std::string GameYear;
  RowYears Years;
};

/// What the dialog does about input that cannot be loaded, beside showing the message.
enum class OpenRemedy {
  None,
  UseSmallestSoi,
  UseLargestSoi,
  FindReportsAgain,
};

/// Why input cannot be loaded.
struct OpenProblem {
  std::string Message;
  OpenRemedy Remedy = OpenRemedy::None;
  /// Whose year has to be corrected, if any: a report's, by its row, or the game's, 0.
  std::optional<int> YearRow = std::nullopt;

  bool operator==(const OpenProblem&) const = default;
};

/// Whether a text typed as sphere of influence is too large already while it is typed.
bool IsSoiTooLarge(const std::string& text);

/// What a click on a report's check box makes of its `Included`: 1 and 0 change places; the text is
/// a number with a leading blank.
std::string ToggledIncluded(const std::string& included);

/// Checks the choice and the input in the order in which the user reads them; the first problem is
/// given back. Without a problem (an empty message) the choice is complete: it holds the sphere of
/// influence, the game year and every report's year.
OpenProblem AcceptOpenInput(GameChoice& choice, const OpenInput& input);

}  // namespace quorvane

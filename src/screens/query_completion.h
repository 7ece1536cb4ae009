#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "model/game_session.h"

namespace quorvane {

/// What a search that is being typed may go on with.
struct QueryCompletion {
  /// The part that an entry takes the place of, in bytes: the word before the cursor.
  std::size_t Begin = 0;
  std::size_t Length = 0;
  /// At most `kMostCompletions`, none of them the word as it stands.
  std::vector<std::string> Entries;
};
inline constexpr std::size_t kMostCompletions = 12;

/// Completes the word before the cursor: values, flags and names of planets; behind `owner:`,
/// `base:`, `hab(`, `near(` and `unknown(` what can stand there, from no letter on. Names that need
/// quotes have them.
/// @param cursor  in bytes; it ends the text
QueryCompletion CompleteQuery(std::string_view text, std::size_t cursor,
                              const GameSession& session);

}  // namespace quorvane

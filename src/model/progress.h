#pragma once

#include <functional>

namespace quorvane {

/// Shows how far a long step is: a value and its maximum. An empty one shows nothing.
using ShowProgress = std::function<void(int value, int maximum)>;

}  // namespace quorvane

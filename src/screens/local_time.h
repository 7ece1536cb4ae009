#pragma once

#include <cstdint>
#include <string>

namespace quorvane {

/// A moment in the user's own time, "2026-11-23 14:02"; empty for one that no calendar has.
std::string LocalTimeText(std::int64_t millisecondsSince1970);

}  // namespace quorvane

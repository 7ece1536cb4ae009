#include "screens/local_time.h"

#include <array>
#include <ctime>

namespace quorvane {

std::string LocalTimeText(std::int64_t millisecondsSince1970) {
  const auto moment = static_cast<std::time_t>(millisecondsSince1970 / 1000);
  const std::tm* const parts = std::localtime(&moment);
  if (parts == nullptr) return "";
  std::array<char, 32> text;
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", parts)};
}

}  // namespace quorvane

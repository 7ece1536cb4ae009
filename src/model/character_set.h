#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace quorvane {

/// A set of single bytes to look for. Reading reports is mostly looking for the next separator; one
/// look into a table for each byte is many times faster than the standard search for any of several
/// characters.
class CharacterSet {
 public:
  explicit constexpr CharacterSet(std::string_view characters) {
    for (const char c : characters) isMember_[static_cast<unsigned char>(c)] = true;
  }

  constexpr bool Contains(char c) const { return isMember_[static_cast<unsigned char>(c)]; }
  /// Where the first member stands in a text; the text's length when there is none.
  constexpr std::size_t FindIn(std::string_view text) const {
    std::size_t at = 0;
    while (at < text.size() && !Contains(text[at])) ++at;
    return at;
  }

 private:
  std::array<bool, 256> isMember_ = {};
};

}  // namespace quorvane

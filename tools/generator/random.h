#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvane::generator {

/// A source of random numbers that gives the same row for the same seed on every system: the
/// standard library's distributions differ between libraries, so the ranges are made here.
class Random {
 public:
  /// @param purpose  what the numbers are for; every purpose has a row of its own, so that drawing
  ///                 more numbers for one of them does not change the others
  Random(std::uint64_t seed, std::string_view purpose);

  /// A whole number low … high, both included.
  int Between(int low, int high);
  /// True in so many of a hundred cases.
  bool Chance(int percent) { return Between(1, 100) <= percent; }
  template <typename List>
  const auto& OneOf(const List& list) {
    return list[static_cast<std::size_t>(Between(0, static_cast<int>(std::size(list)) - 1))];
  }
  template <typename Item>
  void Shuffle(std::vector<Item>& items) {
    for (std::size_t i = items.size(); i > 1; --i) {
      std::swap(items[i - 1], items[static_cast<std::size_t>(Between(0, static_cast<int>(i) - 1))]);
    }
  }

 private:
  std::mt19937_64 engine_;
};

}  // namespace quorvane::generator

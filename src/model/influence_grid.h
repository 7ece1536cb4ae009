#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvane {

/// Who holds a point of space, and how firmly.
struct InfluencePoint {
  std::int16_t Holder = 0;    // player number; 0: nobody
  std::int16_t Strength = 0;  // 0 … 100

  bool operator==(const InfluencePoint&) const = default;
};

/// The grid of influence points over the universe, 0 … `Size()` in both directions.
class InfluenceGrid {
 public:
  InfluenceGrid() = default;
  /// (size + 1) x (size + 1) points that nobody holds.
  explicit InfluenceGrid(int size)
      : size_(size),
        points_(static_cast<std::size_t>(size + 1) * static_cast<std::size_t>(size + 1)) {}

  /// Becomes (size + 1) x (size + 1) points that nobody holds, in the memory that it has.
  void Reset(int size) {
    size_ = size;
    const auto side = static_cast<std::size_t>(size) + 1;
    points_.assign(side * side, {});
  }

  /// The highest index in either direction; -1 for a grid without points.
  int Size() const { return size_; }
  InfluencePoint& At(int gx, int gy) { return points_[IndexOf(gx, gy)]; }
  const InfluencePoint& At(int gx, int gy) const { return points_[IndexOf(gx, gy)]; }

  bool operator==(const InfluenceGrid&) const = default;

 private:
  std::size_t IndexOf(int gx, int gy) const {
    return static_cast<std::size_t>(gx) * static_cast<std::size_t>(size_ + 1) +
           static_cast<std::size_t>(gy);
  }

  int size_ = -1;
  std::vector<InfluencePoint> points_;  // column by column, as the computation fills them
};

}  // namespace quorvane

#pragma once

#include <cstddef>
#include <unordered_map>
#include <utility>

namespace quorvane {

/// Keeps values that were asked for lately, within so many bytes. New values, and older ones that
/// are asked for, go to the recent half; when that is full it becomes the older half, and what
/// nobody asked for since the last time is forgotten.
template <typename Key, typename Value>
class RecentCache {
 public:
  explicit RecentCache(std::size_t mostBytes) : mostBytes_(mostBytes) {}

  /// @return a value that stays until the next call; nullptr: the key has none
  const Value* Find(const Key& key) {
    const auto known = recent_.find(key);
    if (known != recent_.end()) return &known->second.Kept;
    auto before = older_.extract(key);
    if (before.empty()) return nullptr;
    MakeRoom(before.mapped().Bytes);
    return &recent_.insert(std::move(before)).position->second.Kept;
  }

  /// For a key that has no value.
  /// @return the value, which stays until the next call
  const Value& Add(const Key& key, Value value, std::size_t bytes) {
    MakeRoom(bytes);
    return recent_.try_emplace(key, Entry{std::move(value), bytes}).first->second.Kept;
  }

  void Clear() {
    recent_.clear();
    older_.clear();
    recentBytes_ = 0;
  }

 private:
  struct Entry {
    Value Kept;
    std::size_t Bytes;
  };

  void MakeRoom(std::size_t bytes) {
    if (recentBytes_ + bytes > mostBytes_ / 2) {
      older_ = std::exchange(recent_, {});
      recentBytes_ = 0;
    }
    recentBytes_ += bytes;
  }

  std::size_t mostBytes_;
  std::unordered_map<Key, Entry> recent_;
  std::unordered_map<Key, Entry> older_;
  std::size_t recentBytes_ = 0;
};

}  // namespace quorvane

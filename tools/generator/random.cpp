#include "generator/random.h"

namespace quorvane::generator {
namespace {

// FNV-1a over the purpose, begun with the seed.
std::uint64_t Mixed(std::uint64_t seed, std::string_view purpose) {
  std::uint64_t hash = 14695981039346656037U ^ (seed * 0x9E3779B97F4A7C15U);
  for (const char c : purpose) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  return hash;
}

}  // namespace

Random::Random(std::uint64_t seed, std::string_view purpose) : engine_(Mixed(seed, purpose)) {}

int Random::Between(int low, int high) {
  const auto choices = static_cast<std::uint64_t>(high - low) + 1;
  return low + static_cast<int>(engine_() % choices);
}

}  // namespace quorvane::generator

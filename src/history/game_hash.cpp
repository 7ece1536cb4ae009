#include "history/game_hash.h"

#include <cstdint>
#include <string_view>

namespace quorvane {
namespace {

// FNV-1a, 64 bits: the same on every machine, which std::hash is not.
class Fnv1a {
 public:
  void Take(std::string_view text) {
    for (const char each : text) {
      constexpr std::uint64_t kPrime = 0x100000001B3;
      hash_ = (hash_ ^ static_cast<unsigned char>(each)) * kPrime;
    }
  }
  std::uint64_t Hash() const { return hash_; }

 private:
  std::uint64_t hash_ = 0xCBF29CE484222325;
};

}  // namespace

std::string GameHash(const GameSession& session) {
  constexpr PlanetField kMapFields[] = {PlanetField::Number, PlanetField::X, PlanetField::Y,
                                        PlanetField::Name};
  Fnv1a hash;
  for (const PlanetRecord& planet : session.Planets()) {
    for (const PlanetField field : kMapFields) {
      hash.Take(FieldText(planet[field]));
      hash.Take(std::string_view("\t"));
    }
  }
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (int shift = 60; shift >= 0; shift -= 4) text += kDigits[(hash.Hash() >> shift) & 15];
  return text;
}

}  // namespace quorvane

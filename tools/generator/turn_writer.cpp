#include "generator/turn_writer.h"

#include "generator/random.h"
#include "generator/universe.h"

namespace quorvane::generator {
namespace {

constexpr int kFileHeaderKind = 8;
constexpr int kFileHeaderSize = 16;
constexpr int kGameVersion = 0x2A64;

// Every number of the game is little-endian.
void AppendPair(std::string& bytes, int value) {
  bytes += static_cast<char>(value & 0xFF);
  bytes += static_cast<char>(value >> 8 & 0xFF);
}

void AppendAny(std::string& bytes, Random& random, int count) {
  for (; count > 0; --count) bytes += static_cast<char>(random.Between(0, 0xFF));
}

}  // namespace

std::string TurnFileBytes(std::uint64_t seed, std::string_view extension, int year) {
  Random game(seed, "game number");
  Random rest(seed, "turn" + std::string(extension) + std::to_string(year));
  std::string bytes;
  // A block begins with its kind in the upper 6 bits and the size of its content in the lower 10.
  AppendPair(bytes, kFileHeaderKind << 10 | kFileHeaderSize);
  bytes += "J3J3";
  AppendAny(bytes, game, 4);
  AppendPair(bytes, kGameVersion);
  AppendPair(bytes, year - kFirstYear);
  AppendAny(bytes, rest, 4);  // player, salt of the encryption, flags
  AppendAny(bytes, rest, rest.Between(200, 900));
  return bytes;
}

}  // namespace quorvane::generator

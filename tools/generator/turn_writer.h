#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvane::generator {

/// The bytes of a turn file or of the host's file: the one block that the game does not encrypt,
/// 18 bytes that tell game and turn, and some hundred bytes that stand for the encrypted rest.
/// @param seed       which game
/// @param extension  whose file, ".m1" for instance
std::string TurnFileBytes(std::uint64_t seed, std::string_view extension, int year);

}  // namespace quorvane::generator

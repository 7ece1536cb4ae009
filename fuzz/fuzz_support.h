#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "model/game_session.h"

namespace quorvane::fuzz {

/// The input as the program would keep the text of a file.
std::string DecodedText(const std::uint8_t* data, std::size_t size);

/// Stops the run where something is not as it must be; `what` goes to the log.
void Require(bool isTrue, std::string_view what);

/// A folder that all inputs share, in the folder for temporary files.
const std::filesystem::path& Folder();

/// Writes a file of the folder; an empty text means no such file.
void PlaceFile(std::string_view name, std::string_view bytes);

/// What holds for the planets and players of every session, whatever it was read from.
void RequireSoundTables(const GameSession& session);

}  // namespace quorvane::fuzz

#include "formats/turn_file.h"

#include "files/files.h"
#include "formats/game_files.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

constexpr int kFirstYear = 2400;
// The block's kind, 8, and its 16 bytes of content, in one number of 2 bytes.
constexpr std::string_view kBlockHeader = "\x10\x20";
constexpr std::string_view kSignature = "J3J3";
// Behind the signature: the game's number, 4 bytes, and the version, 2 bytes.
constexpr std::size_t kTurnAt = 12;

}  // namespace

std::optional<int> TurnYear(std::string_view block) {
  if (block.size() < kTurnBlockSize || !block.starts_with(kBlockHeader) ||
      !block.substr(kBlockHeader.size()).starts_with(kSignature)) {
    return std::nullopt;
  }
  const int low = static_cast<unsigned char>(block[kTurnAt]);
  const int high = static_cast<unsigned char>(block[kTurnAt + 1]);
  return kFirstYear + low + 256 * high;
}

std::optional<int> ReadTurnYear(const fs::path& file) {
  return TurnYear(ReadBeginning(file, kTurnBlockSize));
}

fs::path TurnFileName(const GameChoice& choice, int row) {
  return GameFile(choice.MapFilePath, ".M" + std::to_string(row)).filename();
}

fs::path HostFileName(const GameChoice& choice) {
  return GameFile(choice.MapFilePath, ".HST").filename();
}

}  // namespace quorvane

#include "fuzz_support.h"

#include <cstdlib>
#include <fstream>
#include <iostream>

#include "model/text.h"

namespace quorvane::fuzz {

namespace fs = std::filesystem;

std::string DecodedText(const std::uint8_t* data, std::size_t size) {
  return DecodeText(std::string(reinterpret_cast<const char*>(data), size));
}

void Require(bool isTrue, std::string_view what) {
  if (isTrue) return;
  std::cerr << "Not as it must be: " << what << std::endl;
  std::abort();
}

const fs::path& Folder() {
  static const fs::path kFolder = [] {
    fs::path folder = fs::temp_directory_path() / "quorvane-fuzz";
    fs::create_directories(folder);
    return folder;
  }();
  return kFolder;
}

void PlaceFile(std::string_view name, std::string_view bytes) {
  const fs::path path = Folder() / name;
  if (bytes.empty()) {
    fs::remove(path);
  } else {
    std::ofstream(path, std::ios::binary) << bytes;
  }
}

void RequireSoundTables(const GameSession& session) {
  Require(session.PlayerCount >= 0 && session.PlayerCount <= kMaxPlayers, "number of players");
  for (int number = 1; number <= session.PlayerCount; ++number) {
    Require(!session.Player(number).Name().empty(), "a player's name");
    Require(session.FindPlayerByName(session.Player(number).Name()) == number, "names differ");
    Require(session.ColourOf(number) != nullptr, "everybody has a colour");
  }
  for (int number = 1; number <= session.PlanetCount; ++number) {
    const PlanetRecord& planet = session.Planet(number);
    const int owner = planet.OwnerIndex();
    Require(owner >= 0 && owner <= session.PlayerCount, "number of the owner");
    Require(owner == 0 || session.Player(owner).Name() == planet.Owner(), "name of the owner");
    Require(planet.SoiRadius() <= session.SoiSetting, "sphere of influence");
  }
}

}  // namespace quorvane::fuzz

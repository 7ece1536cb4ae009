// A history in which bytes are changed and the end is cut off, as the input says, opens, is read
// and is stored into without a crash; when it is moved aside, it is not harmed.
#include <fstream>
#include <iterator>

#include "fuzz_support.h"
#include "history/game_hash.h"
#include "screens/stored_session.h"

namespace quorvane::fuzz {
namespace {

constexpr const char* kName = "history.sqlite";

GameSession SmallGame() {
  GameSession session;
  session.GameYear = 2450;
  session.MeasureUniverse(1400);
  session.CreatePlanetTable(6);
  for (int number = 1; number <= session.PlanetCount; ++number) {
    PlanetRecord& planet = session.Planet(number);
    planet[PlanetField::Number] = number;
    planet[PlanetField::X] = 40 * number;
    planet[PlanetField::Y] = 30 * number;
    planet[PlanetField::Name] = "Planet " + std::to_string(number);
    planet[PlanetField::Owner] = number < 5 ? "Drask" : "Vantari";
    planet[PlanetField::OwnerIndex] = number < 5 ? 1 : 2;
    planet[PlanetField::SoiRadius] = 20;
    planet[PlanetField::HabValue] = 45.0;
  }
  session.PlayerCount = 2;
  session.Player(1)[PlayerField::Name] = "Drask";
  session.Player(2)[PlayerField::Name] = "Vantari";
  session.DrawingLayer.push_back({.Text = "here"});
  return session;
}

std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// The history that every input begins with.
const std::string& Whole() {
  static const std::string bytes = [] {
    const std::filesystem::path file = Folder() / kName;
    std::filesystem::remove(file);
    {
      Result<History> history = History::Open(file);
      Require(history && history->Store(SmallGame(), 0), "a new history");
    }
    return BytesOf(file);
  }();
  return bytes;
}

// Three bytes of input change one byte of the file; two that are left over are its new length.
std::string Damaged(std::string_view input) {
  std::string bytes = Whole();
  const auto number = [](std::string_view two) {
    return static_cast<std::size_t>(static_cast<unsigned char>(two[0])) << 8 |
           static_cast<unsigned char>(two[1]);
  };
  for (; input.size() >= 3; input.remove_prefix(3)) {
    bytes[number(input) % bytes.size()] = input[2];
  }
  if (input.size() == 2) bytes.resize(number(input) % bytes.size());
  return bytes;
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvane;
  const std::string damaged =
      fuzz::Damaged(std::string_view(reinterpret_cast<const char*>(data), size));
  const std::filesystem::path file = fuzz::Folder() / fuzz::kName;
  const std::filesystem::path aside = fuzz::Folder() / (std::string(fuzz::kName) + ".damaged");
  for (const char* suffix : {"", "-wal", "-shm", "-journal"}) {
    for (std::filesystem::path old : {file, aside}) std::filesystem::remove(old += suffix);
  }
  fuzz::PlaceFile(fuzz::kName, damaged);
  const GameSession session = fuzz::SmallGame();
  const std::string game = GameHash(session);
  Result<History> history = History::Open(file);
  if (!history) return 0;
  if (std::filesystem::exists(aside)) {
    fuzz::Require(fuzz::BytesOf(aside) == damaged, "the file that was moved aside");
  }
  static_cast<void>(history->Years(game));
  static_cast<void>(history->RaceYears(game));
  if (const auto read = history->ReadYear(game, session.GameYear)) {
    for (const PlanetRecord& planet : read->Planets()) {
      fuzz::Require(planet.OwnerIndex() >= 0 && planet.OwnerIndex() <= read->PlayerCount, "owner");
      fuzz::Require(planet.SoiRadius() <= read->SoiSetting, "sphere of influence");
    }
  }
  static_cast<void>(history->Store(session, 1));
  return 0;
}

// How long it takes to store a year of the largest game, and to have it back as a whole session, in
// a history of a hundred years; and how large that history is.

#include <filesystem>
#include <utility>

#include "game_on_disk.h"
#include "history/game_hash.h"
#include "loading/load_game.h"
#include "ratio_reporter.h"
#include "screens/stored_session.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

constexpr int kFirstYear = 2400;
constexpr int kYears = 100;

// The years are those of one game, so that no two are alike.
class HundredYears {
 public:
  HundredYears() {
    Result<GameSession> loaded = LoadGame(game_.Choice(100), "", {});
    Session = std::move(*loaded);
    for (Session.GameYear = kFirstYear; Session.GameYear < kFirstYear + kYears;
         ++Session.GameYear) {
      for (PlanetRecord& planet : Session.Planets()) {
        planet[PlanetField::Population] = planet.Population() + Session.GameYear;
      }
      if (!Years->Store(Session, 0)) std::abort();
    }
    Session.GameYear = kFirstYear;
  }

  fs::path File() const { return game_.Choice(100).MapDirectory / "history.sqlite"; }

 private:
  GameOnDisk game_{kHugeShape};

 public:
  GameSession Session;
  Result<History> Years = History::Open(File());
};

HundredYears& Game() {
  static HundredYears game;
  return game;
}

void StoreAYear(benchmark::State& state) {
  HundredYears& game = Game();
  for (auto _ : state) {
    if (!game.Years->Store(game.Session, 0)) return state.SkipWithError("nothing was stored");
  }
  std::uintmax_t size = 0;
  for (const char* suffix : {"", "-wal"}) {
    fs::path file = game.File();
    file += suffix;
    if (fs::exists(file)) size += fs::file_size(file);
  }
  state.counters["MB of 100 years"] = static_cast<double>(size) / 1e6;
}

void ReadAYear(benchmark::State& state) {
  HundredYears& game = Game();
  const std::string hash = GameHash(game.Session);
  int year = 0;
  GameSession shown;
  for (auto _ : state) {
    year = (year + 37) % kYears;  // not the one that the disk has at hand
    auto read = SessionOfYear(*game.Years, hash, kFirstYear + year, game.Session, std::move(shown));
    if (!read) return state.SkipWithError(read.Message().c_str());
    shown = std::move(*read);
  }
}

void ReadTheCurves(benchmark::State& state) {
  HundredYears& game = Game();
  const std::string hash = GameHash(game.Session);
  for (auto _ : state) {
    const auto read = game.Years->RaceYears(hash);
    if (!read || read->empty()) return state.SkipWithError("no curves");
  }
}

void OpenAndCheck(benchmark::State& state) {
  const HundredYears& game = Game();
  for (auto _ : state) {
    const auto opened = History::Open(game.File());
    if (!opened) return state.SkipWithError(opened.Message().c_str());
  }
}

void RegisterAll() {
  constexpr double kStoreTarget = 40;
  constexpr double kReadTarget = 15;
  Register("fast/store a year, 940 planets", StoreAYear, kStoreTarget);
  Register("fast/read a year, with influence", ReadAYear, kReadTarget);
  Register("fast/curves of 100 years, 16 races", ReadTheCurves);
  Register("fast/open and check 100 years", OpenAndCheck);
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  quorvane::RegisterAll();
  return quorvane::RunRatioBenchmarks(argc, argv);
}

#include "loading/game_file_stamps.h"

#include <algorithm>
#include <chrono>
#include <system_error>

#include "files/files.h"
#include "formats/game_files.h"
#include "formats/turn_file.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

std::int64_t MillisecondsSince1970(fs::file_time_type time) {
  const auto system = std::chrono::file_clock::to_sys(time);
  return std::chrono::duration_cast<std::chrono::milliseconds>(system.time_since_epoch()).count();
}

// Lists the folder once and stamps those of its files that are asked for.
class FolderStamper {
 public:
  FolderStamper(const fs::path& mapFile, const std::function<bool()>& isStopped)
      : isStopped_(isStopped),
        folder_(mapFile.parent_path()),
        names_(FilesNamedLike(folder_, GameFile(mapFile, ".").filename(), "")) {}

  void Stamp(GameFileKind kind, int row, const fs::path& wanted) {
    const std::optional<fs::path> name = NameAmong(names_, wanted);
    if (!name || (isStopped_ && isStopped_())) return;
    const fs::path file = folder_ / *name;
    std::error_code sizeError;
    std::error_code timeError;
    GameFileStamp stamp = {.Kind = kind, .Row = row, .Name = *name};
    stamp.Size = fs::file_size(file, sizeError);
    stamp.Time = MillisecondsSince1970(fs::last_write_time(file, timeError));
    if (sizeError || timeError) return;  // gone in the meantime
    const bool tellsYear = kind == GameFileKind::Turn || kind == GameFileKind::Host;
    if (tellsYear) stamp.Year = ReadTurnYear(file);
    Stamps.push_back(stamp);
  }

  std::vector<GameFileStamp> Stamps;

 private:
  const std::function<bool()>& isStopped_;
  fs::path folder_;
  std::vector<fs::path> names_;
};

}  // namespace

std::vector<GameFileStamp> StampGameFiles(const fs::path& mapFile,
                                          const std::function<bool()>& isStopped) {
  const GameChoice game = {.MapFilePath = mapFile};
  FolderStamper folder(mapFile, isStopped);
  folder.Stamp(GameFileKind::Map, 0, mapFile.filename());
  for (int row = 1; row <= kMaxPlayers; ++row) {
    folder.Stamp(GameFileKind::Report, row, ReportFileName(game, row));
  }
  folder.Stamp(GameFileKind::OldReport, 0, OldReportFileName(game));
  for (int row = 1; row <= kMaxPlayers; ++row) {
    folder.Stamp(GameFileKind::Turn, row, TurnFileName(game, row));
  }
  folder.Stamp(GameFileKind::Host, 0, HostFileName(game));
  return folder.Stamps;
}

const GameFileStamp* FindStamp(const std::vector<GameFileStamp>& stamps, GameFileKind kind,
                               int row) {
  const auto found = std::ranges::find_if(
      stamps, [&](const GameFileStamp& stamp) { return stamp.Kind == kind && stamp.Row == row; });
  return found != stamps.end() ? &*found : nullptr;
}

std::optional<YearOffer> OfferYear(const std::vector<GameFileStamp>& stamps,
                                   const GameChoice& choice) {
  const GameFileStamp* best = nullptr;
  const auto rank = [&](const GameFileStamp& stamp) {
    if (stamp.Kind == GameFileKind::Host) return 1;
    const bool isOwn = choice.ReportStyle == kNewReportStyle && stamp.Row == choice.MyRaceRow;
    return isOwn ? 2 : 0;
  };
  for (const GameFileStamp& stamp : stamps) {
    if (!stamp.Year) continue;
    const bool isBetter = best == nullptr || rank(stamp) > rank(*best) ||
                          (rank(stamp) == rank(*best) && *stamp.Year > *best->Year);
    if (isBetter) best = &stamp;
  }
  if (best == nullptr) return std::nullopt;
  return YearOffer{.Year = *best->Year, .File = best->Name};
}

}  // namespace quorvane

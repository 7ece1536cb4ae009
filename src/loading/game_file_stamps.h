#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "model/game_choice.h"

namespace quorvane {

/// What a file beside the map is to its game.
enum class GameFileKind { Map, Report, OldReport, Turn, Host };

/// A file of a game as it lies on the disk, without its content: enough to see that it is another
/// one than before.
struct GameFileStamp {
  GameFileKind Kind = GameFileKind::Map;
  int Row = 0;                 // of a report or turn file: its player, 1 … 16
  std::filesystem::path Name;  // as it is written on the disk
  std::uintmax_t Size = 0;
  std::int64_t Time = 0;    // of the last change: milliseconds since 1970
  std::optional<int> Year;  // what a turn file or the host's file tells

  bool operator==(const GameFileStamp&) const = default;
};

/// The files of a game that are there: the map, its reports of both styles, its turn files and the
/// host's, found ignoring case. The folder is listed once, and of turn files the first block is
/// read.
/// @param isStopped  asked before each file, which may lie behind a slow network: true gives up,
///                   and what was found until then is all
std::vector<GameFileStamp> StampGameFiles(const std::filesystem::path& mapFile,
                                          const std::function<bool()>& isStopped = {});

/// The stamp of a game's file among others; nullptr where there is no such file.
/// @param row  of a report or turn file; 0 for the other kinds
const GameFileStamp* FindStamp(const std::vector<GameFileStamp>& stamps, GameFileKind kind,
                               int row);

/// A year of the game, and the file that tells it.
struct YearOffer {
  int Year = 0;
  std::filesystem::path File;  // its name

  bool operator==(const YearOffer&) const = default;
};

/// The year of the game as its own files tell it: the turn file of the user's own race where the
/// reports are per player, otherwise the host's file, otherwise the latest of all turn files.
std::optional<YearOffer> OfferYear(const std::vector<GameFileStamp>& stamps,
                                   const GameChoice& choice);

}  // namespace quorvane

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "generator/game_generator.h"
#include "model/result.h"

namespace quorvane::generator {

/// What the command line of quorvane-make-game asks for.
struct MakeGameOptions {
  GameShape Shape;
  int Years = 0;  // so many years, each in a folder of its own; 0: one game, in the folder itself
  std::filesystem::path MapFile;  // empty: a new universe
  std::filesystem::path Folder;
  std::string BaseName;
  std::string Help;  // empty unless that text is all that is wanted
};

/// Reads the arguments behind the program's name. Fails with a sentence for options that are
/// unknown, lack their value or do not go together, and for a shape that no game can have.
Result<MakeGameOptions> ParseMakeGameOptions(const std::vector<std::string>& arguments);

}  // namespace quorvane::generator

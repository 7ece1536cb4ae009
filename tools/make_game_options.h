#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "generator/game_generator.h"
#include "model/result.h"

namespace quorvane::generator {

/// What the command line of quorvane-make-game asks for.
struct MakeGameOptions {
  GameShape Shape;
  std::filesystem::path MapFile;  // empty: a new universe
  std::filesystem::path Folder;
  std::string BaseName;
  bool WantsHelp = false;
};

extern const std::string_view kMakeGameHelp;

/// Reads the arguments behind the program's name. Fails with a sentence for an option that is
/// unknown or lacks its value, and for a shape that no game can have.
Result<MakeGameOptions> ParseMakeGameOptions(const std::vector<std::string>& arguments);

}  // namespace quorvane::generator

#include "loading/map_picture_file.h"

#include <algorithm>
#include <string>

#include "model/field_value.h"
#include "platform/files/files.h"

namespace quorvane {

std::filesystem::path MapPictureFile(const GameChoice& game) {
  constexpr std::size_t kExtension = 4;
  std::string name = TextFromPath(game.MapFilePath);
  name.resize(name.size() - std::min(kExtension, name.size()));
  if (game.GameYear < 1) return PathFromText(name + " Universe Map.bmp");
  const std::string year = NumberTextWithLeadingBlank(game.GameYear);
  return PathFromText(name + " Universe Map" + year + ".bmp");
}

}  // namespace quorvane

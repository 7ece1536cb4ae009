#include "formats/map_picture_file.h"

#include <string>

#include "loading/report_finder.h"
#include "model/field_value.h"

namespace quorvane {

std::filesystem::path MapPictureFile(const GameChoice& game) {
  const std::string year = game.GameYear < 1 ? "" : NumberTextWithLeadingBlank(game.GameYear);
  return GameFile(game.MapFilePath, " Universe Map" + year + ".bmp");
}

}  // namespace quorvane

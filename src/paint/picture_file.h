#pragma once

#include <QImage>
#include <filesystem>

#include "model/result.h"

namespace quorvane {

/// Writes a picture, replacing a file of that name whole; the old file stays when that fails.
/// @param format  as Qt names it; a Windows bitmap where none is given
Result<void> SavePicture(const std::filesystem::path& file, const QImage& picture,
                         const char* format = "bmp");

}  // namespace quorvane

#pragma once

#include <QImage>
#include <filesystem>

#include "model/result.h"

namespace quorvane {

/// Writes a picture as a Windows bitmap, replacing a file of that name whole; the old file stays
/// when that fails.
Result<void> SavePicture(const std::filesystem::path& file, const QImage& picture);

}  // namespace quorvane

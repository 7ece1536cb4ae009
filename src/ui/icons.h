#pragma once

#include <QIcon>

namespace quorvane {

/// One of the program's own icons by its file name without ending.
QIcon ThemedIcon(const char* name);

/// The icon of overlay button 0 … 11, to be shown at `side` pixels.
QIcon OverlayIcon(int button, int side);

}  // namespace quorvane

#pragma once

class QApplication;

namespace quorvane {

/// Gives the program its look: calm dark windows around the black map, on every desktop the same.
void ApplyTheme(QApplication& application);

}  // namespace quorvane

#pragma once

#include <QRgb>
#include <vector>

#include "map/drawing_surface.h"

namespace quorvane {

/// The rows of pixels that the square dots of a grid show, drawn column by column from the left and
/// downwards, each over those before: the last dot over a pixel that has a colour is seen.
class DotGrid {
 public:
  /// @param scaleX, scaleY  pixels to a logical unit
  DotGrid(const PointGrid& grid, double scaleX, double scaleY, int diameter, int width, int height);

  /// Puts a row of the grid over a row of pixels, 0 … height - 1; quickest from the top down.
  void Draw(int y, QRgb* pixels);

 private:
  // Which lines of the grid, first … last, have dots over a pixel.
  struct Lines {
    int First = 0;
    int Last = -1;

    bool operator==(const Lines&) const = default;
  };

  static std::vector<Lines> LinesOver(const std::vector<double>& places, double scale, int diameter,
                                      int pixels);
  QRgb At(int column, int row) const {
    return colours_[grid_.Numbers[static_cast<std::size_t>(column) * grid_.Rows.size() +
                                  static_cast<std::size_t>(row)]];
  }
  QRgb TopColour(Lines columns, Lines rows) const;
  void ShowLastRow(int row);

  const PointGrid& grid_;
  std::vector<QRgb> colours_;  // 0 for no dot
  std::vector<Lines> columnsOver_;
  std::vector<Lines> rowsOver_;
  Lines shown_;
  std::vector<QRgb> pixels_;         // what `shown_` looks like, 0 where nothing is
  std::vector<std::size_t> hidden_;  // pixels where the last dot has no colour
};

}  // namespace quorvane

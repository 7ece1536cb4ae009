#include "paint/dot_grid.h"

#include <algorithm>
#include <cmath>

#include "paint/colours.h"

namespace quorvane {

DotGrid::DotGrid(const PointGrid& grid, double scaleX, double scaleY, int diameter, int width,
                 int height)
    : grid_(grid),
      columnsOver_(LinesOver(grid.Columns, scaleX, diameter, width)),
      rowsOver_(LinesOver(grid.Rows, scaleY, diameter, height)),
      pixels_(static_cast<std::size_t>(width)) {
  for (const Colour colour : grid.Palette) colours_.push_back(RgbOf(colour));
  colours_.front() = 0;
}

std::vector<DotGrid::Lines> DotGrid::LinesOver(const std::vector<double>& places, double scale,
                                               int diameter, int pixels) {
  std::vector<Lines> over(static_cast<std::size_t>(pixels));
  std::vector<int> starts;  // the first pixel of each line's dots
  for (const double place : places) {
    const double start = std::floor(place * scale - (diameter - 1) / 2.0);
    starts.push_back(static_cast<int>(std::clamp<double>(start, -diameter, pixels)));
  }
  Lines lines;
  for (int pixel = 0; Lines & here : over) {
    const auto startOf = [&](int line) { return starts[static_cast<std::size_t>(line)]; };
    const int count = static_cast<int>(starts.size());
    while (lines.Last + 1 < count && startOf(lines.Last + 1) <= pixel) ++lines.Last;
    while (lines.First < count && startOf(lines.First) <= pixel - diameter) ++lines.First;
    here = lines;
    ++pixel;
  }
  return over;
}

QRgb DotGrid::TopColour(Lines columns, Lines rows) const {
  for (int column = columns.Last; column >= columns.First; --column) {
    for (int row = rows.Last; row >= rows.First; --row) {
      if (const QRgb colour = At(column, row); colour != 0) return colour;
    }
  }
  return 0;
}

void DotGrid::ShowLastRow(int row) {
  hidden_.clear();
  int column = -1;
  QRgb colour = 0;
  for (std::size_t x = 0; x < pixels_.size(); ++x) {
    const Lines over = columnsOver_[x];
    if (over.First > over.Last) {
      pixels_[x] = 0;
      continue;
    }
    if (over.Last != column) {
      column = over.Last;
      colour = At(column, row);
    }
    pixels_[x] = colour;
    if (colour == 0) hidden_.push_back(x);
  }
}

void DotGrid::Draw(int y, QRgb* pixels) {
  const Lines rows = rowsOver_[static_cast<std::size_t>(y)];
  if (rows.First > rows.Last) return;
  if (rows != shown_) {
    if (rows.Last != shown_.Last) ShowLastRow(rows.Last);
    for (const std::size_t x : hidden_) pixels_[x] = TopColour(columnsOver_[x], rows);
    shown_ = rows;
  }
  for (const QRgb colour : pixels_) {
    *pixels = colour != 0 ? colour : *pixels;
    ++pixels;
  }
}

}  // namespace quorvane

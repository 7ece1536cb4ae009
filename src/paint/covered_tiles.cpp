#include "paint/covered_tiles.h"

#include <algorithm>
#include <cstddef>

namespace quorvane {
namespace {

constexpr int kTile = 8;  // pixels

int TilesOver(int pixels) { return (pixels + kTile - 1) / kTile; }

}  // namespace

CoveredTiles::CoveredTiles(const QRgb* pixels, QSize picture)
    : pixels_(pixels),
      picture_(picture),
      columns_(TilesOver(picture.width())),
      rows_(TilesOver(picture.height())),
      covered_(static_cast<std::size_t>(columns_ * rows_)),
      freeTiles_(static_cast<std::size_t>((columns_ + 1) * (rows_ + 1))),
      worthLooking_(columns_ * rows_ / 2) {
  for (int corner = 0; int& count : freeTiles_) {
    count = (corner / (columns_ + 1)) * (corner % (columns_ + 1));
    ++corner;
  }
}

bool CoveredTiles::Hide(const PixelBox& box) {
  if (work_ > worthLooking_) LookAgain();
  const auto [left, top, right, bottom] = CutToPicture(box);
  if (left > right || top > bottom) return true;
  const int* const above = freeTiles_.data() + std::ptrdiff_t{top / kTile} * (columns_ + 1);
  const int* const below = freeTiles_.data() + std::ptrdiff_t{bottom / kTile + 1} * (columns_ + 1);
  const int before = left / kTile;
  const int behind = right / kTile + 1;
  return below[behind] - below[before] - above[behind] + above[before] == 0;
}

PixelBox CoveredTiles::SeenPart(const PixelBox& box) {
  PixelBox seen = CutToPicture(box);
  while (seen.Top <= seen.Bottom && Hide({seen.Left, seen.Top, seen.Right, seen.Top})) ++seen.Top;
  while (seen.Top <= seen.Bottom && Hide({seen.Left, seen.Bottom, seen.Right, seen.Bottom})) {
    --seen.Bottom;
  }
  while (seen.Left <= seen.Right && Hide({seen.Left, seen.Top, seen.Left, seen.Bottom})) {
    ++seen.Left;
  }
  while (seen.Left <= seen.Right && Hide({seen.Right, seen.Top, seen.Right, seen.Bottom})) {
    --seen.Right;
  }
  return seen;
}

PixelBox CoveredTiles::CutToPicture(const PixelBox& box) const {
  return {std::max(box.Left, 0), std::max(box.Top, 0), std::min(box.Right, picture_.width() - 1),
          std::min(box.Bottom, picture_.height() - 1)};
}

void CoveredTiles::LookAgain() {
  work_ = 0;
  std::size_t tile = 0;
  auto corner = freeTiles_.begin() + 1;  // to the right of the tile and above it
  for (int row = 0; row < rows_; ++row) {
    int freeInRow = 0;
    for (int column = 0; column < columns_; ++column) {
      // What is covered stays so.
      if (!covered_[tile]) covered_[tile] = IsCovered(column, row);
      if (!covered_[tile]) ++freeInRow;
      corner[columns_ + 1] = *corner + freeInRow;
      ++corner;
      ++tile;
    }
    ++corner;
  }
}

bool CoveredTiles::IsCovered(int column, int row) const {
  const int left = column * kTile;
  const int width = std::min(kTile, picture_.width() - left);
  const int bottom = std::min((row + 1) * kTile, picture_.height());
  for (int y = row * kTile; y < bottom; ++y) {
    const QRgb* const first = pixels_ + static_cast<qsizetype>(y) * picture_.width() + left;
    if (std::find(first, first + width, kFreePixel) != first + width) return false;
  }
  return true;
}

}  // namespace quorvane

#pragma once

#include <QRgb>
#include <QSize>
#include <vector>

namespace quorvane {

/// A rectangle of pixels, both corners included.
struct PixelBox {
  int Left = 0;
  int Top = 0;
  int Right = -1;
  int Bottom = -1;
};

/// A pixel that nothing was drawn into yet, in a picture that is drawn from the top down.
inline constexpr QRgb kFreePixel = 0;

/// Which parts of a picture that is drawn from the top down have no free pixel left, so that what
/// comes now cannot be seen there. Tells it by small square tiles, which are looked at again when
/// so much was drawn that this is worth its time.
class CoveredTiles {
 public:
  /// @param pixels of the picture, row by row: all free, and there as long as this is
  CoveredTiles(const QRgb* pixels, QSize picture);

  /// Whether nothing of a box can be seen, as it is covered or lies outside the picture. What was
  /// covered lately may not count yet.
  bool Hide(const PixelBox& box);

  /// A box, cut to the picture and without the rows and columns at its edges that are hidden.
  PixelBox SeenPart(const PixelBox& box);

  /// Tells of drawing that could not be left out.
  /// @param amount about as many times 32 pixels
  void CountWork(int amount) { work_ += amount; }

 private:
  PixelBox CutToPicture(const PixelBox& box) const;
  void LookAgain();
  bool IsCovered(int column, int row) const;

  const QRgb* pixels_;
  QSize picture_;
  int columns_;
  int rows_;
  std::vector<bool> covered_;
  // How many tiles with free pixels lie above and to the left of each corner of the tiles.
  std::vector<int> freeTiles_;
  int work_ = 0;
  int worthLooking_;
};

}  // namespace quorvane

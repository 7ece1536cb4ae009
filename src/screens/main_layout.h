#pragma once

#include <array>
#include <optional>

namespace quorvane {

/// A rectangle of the main window's client area, in twips.
struct TwipRect {
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;

  int Right() const { return Left + Width; }
  int Bottom() const { return Top + Height; }
  bool operator==(const TwipRect&) const = default;
};

inline constexpr int kLegendRows = 16;
/// From one row of the legend to the next, in twips: less than a swatch is high.
inline constexpr int kLegendRowHeight = 300;

/// Where the parts of the main window lie that follow its size.
struct MainLayout {
  TwipRect Universe;
  TwipRect Detail;
  TwipRect XYCoord;
  TwipRect ThePlanet;
  TwipRect ProgressBar;
  std::array<TwipRect, kLegendRows> Race;
  std::array<TwipRect, kLegendRows> RaceC;
};

/// Lays out the main window for its outer height and width in twips: the map as large a square as
/// the height allows, the details panel at its right, lined up with its bottom, the status line
/// below, the legend in two columns against the right edge.
/// @return nothing for a window so small that its previous layout stays
std::optional<MainLayout> LayOutMain(int height, int width);

/// Where overlay button 0 … 11 lies, whatever the window's size.
TwipRect OverlayButtonRect(int button);
/// Where the race chooser lies, whatever the window's size.
TwipRect RaceChooserRect();

}  // namespace quorvane

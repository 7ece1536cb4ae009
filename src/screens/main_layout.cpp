#include "screens/main_layout.h"

#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr int kSmallestHeight = 5000;
constexpr int kSmallestWidth = 3000;
constexpr int kMapTop = 560;
constexpr int kAroundMap = 1585;  // what the window's height has beside the map
constexpr int kDetailWidth = 4515;
constexpr int kDetailHeight = 3705;
constexpr int kStatusHeight = 285;
constexpr int kRowsPerColumn = kLegendRows / 2;

TwipRect NameRect(int row, int left) {
  return {.Left = left,
          .Top = 900 + kLegendRowHeight * (row % kRowsPerColumn),
          .Width = 1545,
          .Height = 255};
}

TwipRect SwatchRect(int row, int left) {
  return {.Left = left,
          .Top = 840 + kLegendRowHeight * (row % kRowsPerColumn),
          .Width = 645,
          .Height = 330};
}

void LayOutStatusLine(MainLayout& layout, int top) {
  const int mapWidth = layout.Universe.Width;
  layout.XYCoord = {
      .Left = 0, .Top = top, .Width = ToWhole32(mapWidth / 5.0), .Height = kStatusHeight};
  layout.ThePlanet = {.Left = layout.XYCoord.Width + 50,
                      .Top = top,
                      .Width = ToWhole32(mapWidth / 3.3),
                      .Height = kStatusHeight};
  layout.ProgressBar = {.Left = layout.ThePlanet.Width + layout.XYCoord.Width + 100,
                        .Top = top,
                        .Width = ToWhole32(mapWidth / 2.05),
                        .Height = kStatusHeight};
}

}  // namespace

std::optional<MainLayout> LayOutMain(int height, int width) {
  if (height <= kSmallestHeight || width <= kSmallestWidth) return std::nullopt;
  MainLayout layout;
  const int side = height - kAroundMap;
  layout.Universe = {.Left = 0, .Top = kMapTop, .Width = side, .Height = side};
  layout.Detail = {.Left = side + 75,
                   .Top = kMapTop + side - kDetailHeight,
                   .Width = kDetailWidth,
                   .Height = kDetailHeight};
  LayOutStatusLine(layout, height - 1020);
  for (int row = 0; row < kLegendRows; ++row) {
    const auto index = static_cast<std::size_t>(row);
    const bool isFirstColumn = row < kRowsPerColumn;
    layout.Race[index] = NameRect(row, width - (isFirstColumn ? 4560 : 2325));
    layout.RaceC[index] = SwatchRect(row, width - (isFirstColumn ? 2985 : 765));
  }
  return layout;
}

TwipRect OverlayButtonRect(int button) {
  constexpr int kSide = 550;
  switch (button) {
    case 10:
      return {.Left = 5565, .Top = 0, .Width = kSide, .Height = kSide};
    case 11:
      return {.Left = 6180, .Top = 0, .Width = 1875, .Height = kSide};
    default:
      return {.Left = kSide * button, .Top = 0, .Width = kSide, .Height = kSide};
  }
}

TwipRect RaceChooserRect() { return {.Left = 8160, .Top = 90, .Width = 3900, .Height = 375}; }

}  // namespace quorvane

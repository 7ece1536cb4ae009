#include "screens/game_memory.h"

namespace quorvane {

std::optional<MapView> ViewOf(const ShownState::Window& window, const MapView& full) {
  // A zoom box may have been drawn over an edge of the universe.
  const int width = window.XMax - window.XMin;
  const int last = full.UniverseWidth();
  const bool isPart = width > 0 && width <= last && window.XMin >= 0 && window.XMin < last &&
                      window.YMin >= 0 && window.YMin < last && window.YMax > window.YMin &&
                      window.YMax - window.YMin <= width + 1;
  if (!isPart) return std::nullopt;
  MapView view = full;
  view.ShowWindow(window.XMin, window.YMin, width);
  view.ViewYMax = window.YMax;  // each edge of a zoom box is rounded for itself
  return view;
}

}  // namespace quorvane

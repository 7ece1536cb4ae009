#pragma once

namespace quorvane {

/// How the user wants overlays to be drawn.
struct MapOptions {
  /// A dark line around the letters of planet names, so that a name can be read in its owner's
  /// colour on its owner's territory.
  bool OutlineNames = false;
  /// No name that would overlap one that matters more.
  bool FewerNames = false;
  /// While a planet is selected, only the stargate links that begin or end there.
  bool GatesOfSelectedOnly = false;

  bool operator==(const MapOptions&) const = default;
};

}  // namespace quorvane

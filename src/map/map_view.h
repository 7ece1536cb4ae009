#pragma once

namespace quorvane {

/// A place in the game's own coordinates, in light years; larger Y is further north.
struct GamePoint {
  double X = 0;
  double Y = 0;

  bool operator==(const GamePoint&) const = default;
};

/// A place in stored coordinates, in light years: both axes start near 0, Y grows downwards.
struct StoredPoint {
  double X = 0;
  double Y = 0;

  bool operator==(const StoredPoint&) const = default;
};

/// A place on the map picture, in its logical units.
struct SurfacePoint {
  double X = 0;
  double Y = 0;

  bool operator==(const SurfacePoint&) const = default;
};

/// Width and height of the map picture in logical units.
inline constexpr int kSurfaceUnits = 10020;
/// The part of it that the universe, or the zoomed window, fills.
inline constexpr double kMapUnits = 10000;

/// Which window of the universe the map shows, and at what scale.
struct MapView {
  /// The universe's far edge in game coordinates; 0 while no game is loaded.
  int UniverseExtent = 0;
  // The visible window in stored coordinates.
  int ViewXMin = 0;
  int ViewXMax = 0;
  int ViewYMin = 0;
  int ViewYMax = 0;
  /// Surface units per light year.
  double MapScale = 0;

  /// Shows the whole universe: the window 0 … extent, at the scale that lets extent - 1000 light
  /// years fill the map. With no game (extent 0) the scale stays 0.
  void ShowAll(int universeExtent);
  /// Shows a square window with its top left corner at the given stored point. `width` is in light
  /// years and above 0.
  void ShowWindow(int xMin, int yMin, int width);

  /// The width of the universe in light years, which the map shows from edge to edge at full view;
  /// 0 while no game is loaded.
  int UniverseWidth() const;
  /// How many light years the map shows from edge to edge.
  int WidthShown() const { return IsFull() ? UniverseWidth() : ViewXMax - ViewXMin; }

  /// Whether the window is the whole universe.
  bool IsFull() const { return ViewXMax - ViewXMin == UniverseExtent; }
  /// Whether a stored position lies strictly inside the window.
  bool Contains(int x, int y) const { return ContainsX(x) && ContainsY(y); }
  bool ContainsX(int x) const { return x > ViewXMin && x < ViewXMax; }
  bool ContainsY(int y) const { return y > ViewYMin && y < ViewYMax; }

  /// The stored position that lies at a point of the picture; meaningful for a scale above 0.
  StoredPoint ToStored(SurfacePoint point) const {
    return {point.X / MapScale + ViewXMin, point.Y / MapScale + ViewYMin};
  }
  /// Where a stored position is drawn.
  SurfacePoint ToSurface(StoredPoint point) const {
    return {(point.X - ViewXMin) * MapScale, (point.Y - ViewYMin) * MapScale};
  }
  /// The game coordinates of a point of the picture, whole light years; meaningful for a scale
  /// above 0.
  GamePoint ToGame(SurfacePoint point) const;

  /// How many times the universe is wider than the window, without the fraction: 1 at full view.
  int ZoomFactor() const;
  /// The size of planet marks: 1 at full view, growing with the zoom.
  int DotSize() const;

  bool operator==(const MapView&) const = default;
};

}  // namespace quorvane

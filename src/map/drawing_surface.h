#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include "map/map_view.h"
#include "model/race_colours.h"

namespace quorvane {

/// How a pen's colour meets what is already there.
enum class DrawMode {
  Copy,   // replaces it
  Merge,  // bitwise OR of both colours
};

enum class DrawStyle {
  Solid,
  NoOutline,
};

/// The pen that every following operation draws with.
struct Pen {
  DrawMode Mode = DrawMode::Copy;
  DrawStyle Style = DrawStyle::Solid;
  /// Whether circles are filled with the fill colour.
  bool Filled = false;
  /// In pixels of an ordinary screen, at least 1; the side of a point.
  int Width = 1;
};

/// Where one of many circles lies.
struct DiscPlace {
  SurfacePoint Centre;
  double Radius = 0;
};

/// Points where columns and rows cross.
struct PointGrid {
  // Where these lie, none before the one that precedes it.
  std::vector<double> Columns;
  std::vector<double> Rows;
  /// The first colour stands for no point and is not seen.
  std::vector<Colour> Palette = {{}};
  /// A number into the palette for each crossing, column by column.
  std::vector<std::uint16_t> Numbers;
};

/// A finished picture of a surface, to be given back to it or to its twin later.
class SurfaceImage {
 public:
  virtual ~SurfaceImage() = default;
};

/// What the map picture can do: a square picture of `kSurfaceUnits` logical units a side, with a
/// background picture and a drawing layer above it. Positions and radii are in logical units, text
/// sizes in points. Colours come out exactly as given, shapes have hard edges, and what lies
/// outside is clipped.
class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;

  /// Erases the drawing layer down to the background picture.
  virtual void Clear() = 0;
  /// Shows a picture as background and nothing above it; nullptr gives the plain background.
  virtual void SetBackground(std::shared_ptr<const SurfaceImage> image) = 0;
  /// A copy of all that the surface shows.
  virtual std::shared_ptr<const SurfaceImage> Image() const = 0;

  virtual void SetPen(const Pen& pen) = 0;
  virtual Pen CurrentPen() const = 0;
  virtual void SetFillColour(Colour colour) = 0;
  virtual void SetForeColour(Colour colour) = 0;
  /// In points, above 0.
  virtual void SetFontSize(double points) = 0;

  /// Whether the drawing has been given up, and nothing more will be seen of it.
  virtual bool IsStopped() const { return false; }

  /// Turns the order of drawing round: until `EndTopDown`, what is drawn goes below all that was
  /// drawn since. What is covered already costs next to nothing then, however often it is drawn.
  /// In between, only shapes and texts may be drawn, and these in copy mode.
  /// @param drawings about how many are to come
  /// @return false, and nothing changes, for a surface that cannot do so, or when it does not pay
  virtual bool BeginTopDown(std::size_t /*drawings*/) { return false; }
  virtual void EndTopDown() {}

  /// A filled square of the pen's width, so that neighbouring points can close an area.
  virtual void Point(SurfacePoint at, Colour colour) = 0;
  /// Points column by column, each over those before.
  virtual void Points(const PointGrid& grid) {
    auto number = grid.Numbers.begin();
    for (const double x : grid.Columns) {
      for (const double y : grid.Rows) {
        if (*number != 0) Point({x, y}, grid.Palette[*number]);
        ++number;
      }
    }
  }
  virtual void Line(SurfacePoint from, SurfacePoint to, Colour colour) = 0;
  /// The same, telling whether it pays to draw the line from its other end as well.
  /// @return true when that has no pixel that could be seen once this is drawn above it
  virtual bool LineHidesItsReverse(SurfacePoint from, SurfacePoint to, Colour colour) {
    Line(from, to, colour);
    return false;
  }
  /// An outline in the colour, filled as the pen and the fill colour say.
  virtual void Circle(SurfacePoint centre, double radius, Colour colour) = 0;
  /// The same for many circles whose inside has the colour as well; it is the fill colour then.
  virtual void Discs(std::span<const DiscPlace> discs, Colour colour) {
    SetFillColour(colour);
    for (const DiscPlace& disc : discs) Circle(disc.Centre, disc.Radius, colour);
  }
  /// Text in the fore colour, its top left corner at the position.
  virtual void Print(SurfacePoint topLeft, std::string_view text) = 0;
  /// All pixels that `Print` would give a letter, and those around them, as far as a pixel of an
  /// ordinary screen is wide.
  virtual void PrintOutline(SurfacePoint topLeft, std::string_view text, Colour colour) = 0;
  /// How wide `Print` would make a text, and how high any text, in logical units.
  virtual double TextWidth(std::string_view text) const = 0;
  virtual double TextHeight() const = 0;

  /// The surface's own width in twips (1/1440 inch, 15 to a pixel of an ordinary screen); pen
  /// widths follow from it.
  virtual int WidthInTwips() const = 0;
  /// The least pen width whose points leave nothing open between them when they lie this far apart,
  /// in logical units, in rows and columns.
  virtual int WidthToCover(double distance) const = 0;
};

}  // namespace quorvane

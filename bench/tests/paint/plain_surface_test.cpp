// The map picture beside its plain twin, which asks every pixel whether it belongs to a shape.

#include "reference/plain_surface.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "map/map_shapes.h"
#include "map/overlays.h"
#include "paint/picture_surface.h"

namespace quorvane {
namespace {

constexpr QSize kSize = {60, 45};
constexpr QSizeF kUnits = {120, 90};

// Both surfaces, and random drawings that are made on both. Many reach beyond an edge, and many
// places lie exactly on pixel borders and centres.
class Twins {
 public:
  explicit Twins(double ratio) : fast_(kSize, ratio, kUnits), plain_(kSize, ratio, kUnits) {}

  void ChooseRandomPen() {
    const Pen pen = {.Mode = IsOneIn(2) ? DrawMode::Copy : DrawMode::Merge,
                     .Style = IsOneIn(3) ? DrawStyle::NoOutline : DrawStyle::Solid,
                     .Filled = IsOneIn(2),
                     .Width = IsOneIn(5) ? 17 : Between(1, 4)};
    const Colour fill = RandomColour();
    Draw([&](DrawingSurface& surface) {
      surface.SetPen(pen);
      surface.SetFillColour(fill);
    });
  }
  void DrawPoint() {
    const SurfacePoint at = RandomPlace();
    Draw([&, colour = RandomColour()](DrawingSurface& surface) { surface.Point(at, colour); });
    DrawPointGrid();
    const double distance = Between(0, 9000) / 100.0;
    EXPECT_EQ(fast_.WidthToCover(distance), plain_.WidthToCover(distance)) << distance;
  }
  void DrawPointGrid() {
    PointGrid grid = {.Palette = {{}, RandomColour(), RandomColour()}};
    for (double x = -9; x < 125; x += Between(1, 60) / 7.0) grid.Columns.push_back(x);
    for (double y = 4; y < 95; y += Between(1, 60) / 7.0) grid.Rows.push_back(y);
    for (std::size_t left = grid.Columns.size() * grid.Rows.size(); left > 0; --left) {
      grid.Numbers.push_back(static_cast<std::uint16_t>(IsOneIn(3) ? Between(1, 2) : 0));
    }
    Draw([&](DrawingSurface& surface) { surface.Points(grid); });
  }
  void DrawLine() {
    const SurfacePoint from = RandomPlace();
    SurfacePoint to = RandomPlace();
    if (IsOneIn(3)) to = {from.X + Between(-8, 8), from.Y + Between(-8, 8)};
    if (IsOneIn(9)) to.X *= 1000;
    Draw([&, colour = RandomColour()](DrawingSurface& surface) { surface.Line(from, to, colour); });
  }
  void DrawCircle() {
    const SurfacePoint centre = RandomPlace();
    const double radius = IsOneIn(2) ? Between(0, 16) / 4.0 : Between(0, 2500) / 49.0;
    Draw([&, colour = RandomColour()](DrawingSurface& surface) {
      surface.Circle(centre, radius, colour);
    });
  }
  // Together they often cover whole rows, and some lie inside others.
  void DrawDiscs() {
    std::vector<DiscPlace> discs(std::size_t{1} + dice_() % 30);
    for (DiscPlace& disc : discs) disc = {RandomPlace(), Between(0, 1500) / 49.0};
    Draw([&, colour = RandomColour()](DrawingSurface& surface) { surface.Discs(discs, colour); });
  }

  // Characters are kept one by one, so how they follow each other must not matter.
  void DrawText() {
    std::string text;
    for (int length = Between(0, 12); length > 0; --length) {
      text += static_cast<char>(Between(' ', '~'));
    }
    if (IsOneIn(9)) text += "\u00c5\u00ad\u00fc";
    const double points = Between(1, 47);  // outlines of larger ones depend on the place
    const SurfacePoint at = {Between(-40, 110) + 0.0, Between(-40, 90) + 0.0};
    const bool isCleared = IsOneIn(20);
    const bool isOutlined = IsOneIn(2);
    Draw([&, colour = RandomColour()](DrawingSurface& surface) {
      if (isCleared) surface.Clear();
      surface.SetFontSize(points);
      if (isOutlined) surface.PrintOutline(at, text, colour);
      surface.Print(at, text);
    });
    EXPECT_EQ(fast_.TextWidth(text), plain_.TextWidth(text)) << text;
    EXPECT_EQ(fast_.TextHeight(), plain_.TextHeight()) << points;
  }

  bool AreAlike() const { return fast_.Picture() == plain_.Picture(); }

 private:
  template <typename Call>
  void Draw(const Call& call) {
    call(fast_);
    call(plain_);
  }

  int Between(int low, int high) {
    return low + static_cast<int>(dice_() % static_cast<std::uint32_t>(high - low + 1));
  }
  bool IsOneIn(int chances) { return Between(1, chances) == 1; }
  SurfacePoint RandomPlace() {
    const double grid = IsOneIn(2) ? 1 : 7.3;
    return {Between(-60, 180) / grid, Between(-60, 150) / grid};
  }
  Colour RandomColour() { return {Between(0, 255), Between(0, 255), Between(0, 255)}; }

  PictureSurface fast_;
  reference::PlainSurface plain_;
  std::mt19937 dice_{1};
};

TEST(PictureSurface, DrawsThePixelsOfItsPlainTwin) {
  const std::tuple<const char*, void (Twins::*)()> shapes[] = {{"points", &Twins::DrawPoint},
                                                               {"lines", &Twins::DrawLine},
                                                               {"circles", &Twins::DrawCircle},
                                                               {"discs", &Twins::DrawDiscs},
                                                               {"texts", &Twins::DrawText}};
  for (const auto& [what, draw] : shapes) {
    for (const double ratio : {1.0, 1.25, 2.0}) {
      Twins twins(ratio);
      for (int i = 0; i < 1200; ++i) {
        if (i % 5 == 0) twins.ChooseRandomPen();
        (twins.*draw)();
        ASSERT_TRUE(twins.AreAlike()) << what << ", drawing " << i << " at ratio " << ratio;
      }
    }
  }
}

TEST(PictureText, LooksAsIfItWereLaidOutEachTime) {
  PictureSurface fast(kSize, 2, kUnits);
  reference::PlainSurface plain(kSize, 2, kUnits);
  const auto print = [](DrawingSurface& surface, double points, const char* text) {
    surface.SetFontSize(points);
    surface.SetForeColour({200, 255, 10});
    surface.Print({-3.23, 7.7 * points - 50.3}, text);
    return surface.TextWidth(text);
  };
  for (const double points : {6.0, 8.25, 6.0, 300.0}) {
    for (const char* text : {"Hamlet AV", "Hamlet AV", "", " 45%\t4\n5 ", "\u03c0\u4e2d\u05d0"}) {
      EXPECT_EQ(print(fast, points, text), print(plain, points, text)) << text;
      EXPECT_TRUE(fast.Picture() == plain.Picture()) << text << " in " << points << " points";
    }
  }
}

// Whether the fast surface and the plain one look the same behind a drawing.
template <typename Call>
bool LookAlike(QSize size, double ratio, const Call& draw) {
  PictureSurface fast(size, ratio);
  reference::PlainSurface plain(size, ratio);
  draw(fast);
  draw(plain);
  return fast.Picture() == plain.Picture();
}

// A layer so long that it is drawn from the top down, and covers most of itself.
TEST(DrawDrawingLayer, LooksTheSameFromTheTopDown) {
  std::mt19937 dice(3);
  const auto below = [&dice](int limit) { return static_cast<int>(dice() % std::uint32_t(limit)); };
  constexpr DrawingKind kKinds[] = {DrawingKind::Line, DrawingKind::Circle, DrawingKind::Text};
  for (const double ratio : {0.75, 1.0, 2.0}) {
    std::vector<DrawingRecord> layer(2000);
    const int size = 1 + below(300);
    for (DrawingRecord& record : layer) {
      record = {.Kind = kKinds[below(3)],
                .X = 1000 + below(400),
                .Y = 1000 + below(400),
                .X2 = 900 + below(600),
                .Y2 = 900 + below(600),
                .Radius = below(2) * below(size),
                .Text = std::string(std::size_t{5}, static_cast<char>('!' + below(94))),
                .Size = 1.0 + below(20),
                .ColourNumber = 1 + below(7)};
    }
    for (std::size_t i = 0; i < layer.size(); i += 4) layer[i].Text += "\u00c5\u00ad\u0163";
    for (std::size_t i = 0; i < layer.size(); i += 9) layer[i].Text += "\u0416";
    MapView view;
    view.ShowAll(1400);
    const auto draw = [&](DrawingSurface& surface) { DrawDrawingLayer(layer, view, surface); };
    EXPECT_TRUE(LookAlike({150, 110}, ratio, draw)) << "at ratio " << ratio;
  }
}

// Many links are the same from both ends, lie partly outside, or end between two pixels.
TEST(DrawStargates, LooksTheSameFromTheTopDown) {
  std::mt19937 dice(1);
  const auto below = [&dice](int limit) { return static_cast<int>(dice() % std::uint32_t(limit)); };
  for (int round = 0; round < 24; ++round) {
    const int grid = round % 2 == 0 ? 1 : 20;
    GameSession game;
    game.CreatePlanetTable(50);
    for (int number = 1; number <= 50; ++number) {
      PlanetRecord& planet = game.Planet(number);
      planet[PlanetField::X] = grid * below(500 / grid);
      planet[PlanetField::Y] = grid * below(500 / grid);
      planet[PlanetField::GateRange] = 20 + below(round % 3 == 0 ? 600 : 100);
    }
    MapView view;
    view.ShowAll(1501);
    if (round % 5 == 0) view.ShowWindow(100, 150, 250);
    const double ratio = 1 + 0.25 * (round % 6);
    const auto draw = [&](DrawingSurface& surface) {
      DrawStargates(game, view, surface, round % 4 != 0);
    };
    EXPECT_TRUE(LookAlike({167, 167}, ratio, draw)) << "round " << round << ", ratio " << ratio;
  }
}

}  // namespace
}  // namespace quorvane

// How long the map takes to answer the user on a huge game: a whole redraw, a step of zooming and
// panning, the complete network of stargates and drawn layers, each beside a plain version of the
// same.

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QImage>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "game_on_disk.h"
#include "loading/load_game.h"
#include "map/overlay_stack.h"
#include "paint/picture_surface.h"
#include "ratio_reporter.h"
#include "reference/plain_surface.h"

namespace quorvane {
namespace {

constexpr QSize kMapSize = {700, 700};
constexpr QSize kLargeMapSize = {1000, 1000};
constexpr int kGates = 240;

// The options that a first start has.
constexpr MapOptions kAtFirst = {.OutlineNames = true};

// A square part of the universe, in light years.
struct Window {
  int X = 0;
  int Y = 0;
  int Width = 0;
};

using Windows = std::vector<Window>;

// A game with its switches, and the two surfaces that it is drawn on.
template <typename Surface>
class Map {
 public:
  Map(const GameSession& session, const OverlaySwitches& switches, double ratio,
      QSize size = kMapSize)
      : session_(session),
        state_(FirstMapState(session)),
        switches_(switches),
        universe_(size, ratio),
        universe2_(size, ratio) {}

  void Redraw() {
    DrawOverlayStack(
        {session_, state_, switches_, universe_, universe2_, {}, session_.DrawingLayer, kAtFirst});
  }
  void RedrawWindow(const Window& window) {
    state_.View.ShowWindow(window.X, window.Y, window.Width);
    Redraw();
  }
  const QImage& Picture() const { return universe_.Picture(); }

 private:
  GameSession session_;
  MapState state_;
  OverlaySwitches switches_;
  Surface universe_;
  Surface universe2_;
};

// Everything but the stargates.
OverlaySwitches EverythingOn(const GameSession& session) {
  OverlaySwitches switches;
  for (const OverlayTexts& overlay : kOverlayTable) switches.Set(overlay.Kind, true);
  for (const OverlayKind off :
       {OverlayKind::ClearMap, OverlayKind::ZoomIn, OverlayKind::SafeStargateDistances,
        OverlayKind::CompleteStargateNetwork}) {
    switches.Set(off, false);
  }
  switches.RaceName = session.MyRaceName;
  return switches;
}

OverlaySwitches OnlyOn(OverlayKind overlay) {
  OverlaySwitches switches;
  switches.Set(overlay, true);
  return switches;
}

// The same game with so many stargates all over the map, each of which reaches all others.
GameSession WithGatesEverywhere(GameSession session) {
  for (int number = 1; number <= session.PlanetCount; ++number) {
    session.Planet(number)[PlanetField::GateRange] = 0;
  }
  for (int gate = 0; gate < kGates; ++gate) {
    const int number = 1 + gate * session.PlanetCount / kGates;
    session.Planet(number)[PlanetField::GateRange] = kUnlimitedGate;
  }
  return session;
}

// A game of so many planets all over 2000 light years, each with a stargate of an ordinary range.
GameSession WithOrdinaryGates(int count) {
  GameSession session;
  session.UniverseExtent = 3000;
  session.CreatePlanetTable(count);
  std::mt19937 dice(1);
  for (int number = 1; number <= count; ++number) {
    PlanetRecord& planet = session.Planet(number);
    planet[PlanetField::X] = static_cast<double>(dice() % 2000);
    planet[PlanetField::Y] = static_cast<double>(dice() % 2000);
    planet[PlanetField::GateRange] = 300;
  }
  return session;
}

// Which records a drawing layer has.
enum class Drawings { Texts, Lines, Circles };

// A game with a drawing layer of so many bytes all over the map. No two texts are alike, and they
// come in 60 sizes.
GameSession WithDrawings(Drawings kind, std::size_t bytes) {
  GameSession session;
  session.UniverseExtent = 3000;
  session.CreatePlanetTable(1);
  std::mt19937 dice(1);
  const auto below = [&dice](int limit) { return static_cast<int>(dice() % std::uint32_t(limit)); };
  for (std::size_t written = 0; written < bytes;) {
    DrawingRecord record = {.X = 1000 + below(2000),
                            .Y = 1000 + below(2000),
                            .X2 = 1000 + below(2000),
                            .Y2 = 1000 + below(2000),
                            .Radius = 100 + below(900),
                            .ColourNumber = 1 + below(7)};
    written += 25;  // of a line
    if (kind == Drawings::Circles) {
      record.Kind = DrawingKind::Circle;
      written -= 6;
    } else if (kind == Drawings::Texts) {
      record.Kind = DrawingKind::Text;
      for (int length = 4 + below(24); length > 0; --length) {
        record.Text += static_cast<char>('A' + below(58));
      }
      record.Size = 6 + 0.65 * below(60);
      written += record.Text.size() - 6;
    }
    session.DrawingLayer.push_back(record);
  }
  return session;
}

// @return false when the two surfaces do not show the same
bool RegisterRedraw(const std::string& name, const GameSession& session,
                    const OverlaySwitches& switches, double targetMilliseconds, double ratio = 1,
                    QSize size = kMapSize) {
  const auto fast = std::make_shared<Map<PictureSurface>>(session, switches, ratio, size);
  const auto plain = std::make_shared<Map<reference::PlainSurface>>(session, switches, ratio, size);
  fast->Redraw();
  plain->Redraw();
  RegisterStep(
      "fast/" + name, [fast] { fast->Redraw(); }, targetMilliseconds);
  RegisterStep("plain/" + name, [plain] { plain->Redraw(); });
  return fast->Picture() == plain->Picture();
}

// What the mouse wheel shows one after the other when it is turned in and out again.
Windows WheelNotches() {
  Windows windows;
  for (const int width : {1600, 1280, 1024, 819, 655, 819, 1024, 1280}) {
    windows.push_back({(2000 - width) / 2, (2000 - width) / 2, width});
  }
  return windows;
}

// The time of one step is told, while all the windows take turns.
// @return false when the two surfaces do not show the same in one of the windows
bool RegisterWindows(const std::string& name, const GameSession& session, const Windows& windows,
                     double targetMilliseconds, double ratio) {
  OverlaySwitches switches = EverythingOn(session);
  switches.Set(OverlayKind::ZoomIn, true);
  const auto fast = std::make_shared<Map<PictureSurface>>(session, switches, ratio, kLargeMapSize);
  const auto plain =
      std::make_shared<Map<reference::PlainSurface>>(session, switches, ratio, kLargeMapSize);
  for (const Window& window : windows) {
    fast->RedrawWindow(window);
    plain->RedrawWindow(window);
    if (fast->Picture() != plain->Picture()) return false;
  }
  const auto stepOf = [&windows](auto map) {
    return [map, windows, next = std::size_t{0}]() mutable {
      map->RedrawWindow(windows[next++ % windows.size()]);
    };
  };
  RegisterStep("fast/" + name, stepOf(fast), targetMilliseconds);
  RegisterStep("plain/" + name, stepOf(plain));
  return true;
}

bool RegisterMoves(const GameSession& session) {
  const Windows notches = WheelNotches();
  const Windows pan = {{360, 360, 1280}, {373, 360, 1280}};
  return RegisterWindows("one wheel notch", session, notches, 8, 1) &&
         RegisterWindows("one wheel notch, double density", session, notches, 16, 2) &&
         RegisterWindows("one pan step", session, pan, 8, 1) &&
         RegisterWindows("one pan step, double density", session, pan, 16, 2);
}

// For what would take a plain version minutes.
void RegisterLongLayer(const std::string& name, Drawings kind, double ratio) {
  const auto map = std::make_shared<Map<PictureSurface>>(WithDrawings(kind, 8'000'000),
                                                         OnlyOn(OverlayKind::QvlDrawing), ratio);
  RegisterStep(
      "fast/8 MB of " + name, [map] { map->Redraw(); }, 1500);
}

bool RegisterAll(const GameSession& session) {
  const GameSession gates = WithGatesEverywhere(session);
  const OverlaySwitches network = OnlyOn(OverlayKind::CompleteStargateNetwork);
  const OverlaySwitches names = OnlyOn(OverlayKind::NamesColoured);
  const OverlaySwitches safe = OnlyOn(OverlayKind::SafeStargateDistances);
  const OverlaySwitches drawing = OnlyOn(OverlayKind::QvlDrawing);
  RegisterLongLayer("drawn texts", Drawings::Texts, 1);
  RegisterLongLayer("drawn lines, double density", Drawings::Lines, 2);
  RegisterLongLayer("drawn circles, double density", Drawings::Circles, 2);
  return RegisterRedraw("full redraw", session, EverythingOn(session), 25) &&
         RegisterMoves(session) &&
         RegisterRedraw("outlined names", session, names, 3, 1, kLargeMapSize) &&
         RegisterRedraw("outlined names, double density", session, names, 3, 2, kLargeMapSize) &&
         RegisterRedraw("240 stargates, all links", gates, network, 80) &&
         RegisterRedraw("240 stargates, double density", gates, network, 80, 2) &&
         RegisterRedraw("4000 stargates of 300 light years", WithOrdinaryGates(4000), safe, 500) &&
         RegisterRedraw("100 KB of drawn texts", WithDrawings(Drawings::Texts, 100'000), drawing,
                        20);
}

}  // namespace
}  // namespace quorvane

int main(int argc, char** argv) {
  using namespace quorvane;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  generator::GameShape shape = kHugeShape;
  shape.HasCompanions = true;  // among them a drawing
  const Result<GameSession> session = LoadGame(GameOnDisk(shape).Choice(100), "", {});
  if (!session || !RegisterAll(*session)) {
    std::puts(session ? "The plain version gives another result." : session.Message().c_str());
    return 1;
  }
  return RunRatioBenchmarks(argc, argv);
}

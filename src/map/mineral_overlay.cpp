#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "map/discs.h"
#include "map/map_key.h"
#include "map/overlays.h"
#include "map/palette.h"
#include "map/planets_in_view.h"
#include "model/rounding.h"
#include "rules/scores.h"

namespace quorvane {
namespace {

void DrawConcentration(const GameSession& session, const MapView& view, DrawingSurface& surface,
                       PlanetField mineral, Colour colour) {
  Pen pen = kDiscPen;
  pen.Mode = surface.CurrentPen().Mode;
  surface.SetPen(pen);
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const int concentration = ToWhole16(planet[mineral].Number());
    if (concentration == 0 && !planet.IsExplored()) {
      DrawUnexploredDisc(surface, at);
    } else {
      DrawDisc(surface, at, concentration, colour);
    }
  }
}

struct Concentrations {
  Concentrations(double ironium, double boranium, double germanium)
      : Ironium(ironium), Boranium(boranium), Germanium(germanium) {}
  explicit Concentrations(const PlanetRecord& planet)
      : Ironium(planet[PlanetField::IronMC].Number()),
        Boranium(planet[PlanetField::BoraMC].Number()),
        Germanium(planet[PlanetField::GermMC].Number()) {}

  // Reports state all three or none.
  bool AreKnown() const { return Boranium != 0; }

  double Ironium;
  double Boranium;
  double Germanium;
};

double AverageRadius(const Concentrations& minerals) {
  return RoundHalfEven((minerals.Boranium + minerals.Germanium + minerals.Ironium) / 3);
}

void DrawAverage(DrawingSurface& surface, SurfacePoint at, const Concentrations& minerals) {
  const Colour mixed = RoundedColour(TimesHundredths(minerals.Germanium, 255),
                                     TimesHundredths(minerals.Boranium, 255),
                                     TimesHundredths(minerals.Ironium, 255));
  DrawDisc(surface, at, AverageRadius(minerals), mixed);
}

constexpr double kFull = 255;
constexpr double kGoodValue = 25;

// A class of what planets are worth for settling.
struct SettlingClass {
  double Radius;
  Colour (*ColourOf)(double value);
  const char* Words;
  double Example;
};
constexpr SettlingClass kGood = {
    125,
    [](double value) { return RoundedColour(TimesHundredths(value - kGoodValue, 255), kFull, 0); },
    "green to yellow, large: well worth settling", 40};
constexpr SettlingClass kFair = {
    100, [](double value) { return RoundedColour(kFull, TimesHundredths(value, 510) + 128, 0); },
    "orange to yellow: worth something", 10};
// 5.66 and no 45th of 255: a value of -28 is a blue of 158, not of 159.
constexpr SettlingClass kWorthless = {
    50,
    [](double value) { return RoundedColour(kFull, 0, TimesHundredths(std::fabs(value), 566)); },
    "red to magenta, small: worth nothing", -10};

const SettlingClass& SettlingClassOf(double value) {
  if (value >= kGoodValue) return kGood;
  return value > 0 ? kFair : kWorthless;
}

void DrawSettlingValue(DrawingSurface& surface, SurfacePoint at, double value) {
  const SettlingClass& settling = SettlingClassOf(value);
  DrawDisc(surface, at, settling.Radius, settling.ColourOf(value));
}

std::vector<KeyLine> ConcentrationKey(Colour colour, std::string words) {
  constexpr double kRich = 90;
  const auto draw = [colour](DrawingSurface& surface, SurfacePoint at) {
    surface.SetPen(kDiscPen);
    DrawDisc(surface, at, kRich, colour);
  };
  return {{std::move(words) + ", the wider the richer", draw, kRich}, UnexploredKeyLine()};
}

// Even a planet with a report may have none of them.
KeyLine UnknownMineralsKeyLine() {
  KeyLine line = UnexploredKeyLine();
  line.Words = "dull: minerals not known";
  return line;
}

}  // namespace

void DrawIroniumConcentration(const GameSession& session, const MapView& view,
                              DrawingSurface& surface) {
  DrawConcentration(session, view, surface, PlanetField::IronMC, kIroniumColour);
}

void DrawBoraniumConcentration(const GameSession& session, const MapView& view,
                               DrawingSurface& surface) {
  DrawConcentration(session, view, surface, PlanetField::BoraMC, kBoraniumColour);
}

void DrawGermaniumConcentration(const GameSession& session, const MapView& view,
                                DrawingSurface& surface) {
  DrawConcentration(session, view, surface, PlanetField::GermMC, kGermaniumColour);
}

void DrawAverageMineralConcentration(const GameSession& session, const MapView& view,
                                     DrawingSurface& surface) {
  surface.SetPen(kDiscPen);
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    const Concentrations minerals(planet);
    if (minerals.AreKnown()) {
      DrawAverage(surface, at, minerals);
    } else {
      DrawUnexploredDisc(surface, at);
    }
  }
}

void DrawEmpireExpansion(const GameSession& session, const MapView& view, DrawingSurface& surface) {
  surface.SetPen(kDiscPen);
  for (const auto& [planet, at] : PlanetsInView(session, view)) {
    if (Concentrations(planet).AreKnown()) {
      DrawSettlingValue(surface, at, RoundHalfEven(ExpansionValue(planet)));
    } else {
      DrawUnexploredDisc(surface, at);
    }
  }
}

std::vector<KeyLine> IroniumKey(const KeyAsked&) {
  return ConcentrationKey(kIroniumColour, "blue: ironium");
}

std::vector<KeyLine> BoraniumKey(const KeyAsked&) {
  return ConcentrationKey(kBoraniumColour, "green: boranium");
}

std::vector<KeyLine> GermaniumKey(const KeyAsked&) {
  return ConcentrationKey(kGermaniumColour, "yellow: germanium");
}

std::vector<KeyLine> AverageMineralKey(const KeyAsked&) {
  constexpr double kMuch = 100;
  constexpr double kLittle = 20;
  const std::pair<const char*, Concentrations> mixtures[] = {
      {"blue: mostly ironium", {kMuch, kLittle, kLittle}},
      {"green: mostly boranium", {kLittle, kMuch, kLittle}},
      {"red: mostly germanium", {kLittle, kLittle, kMuch}},
      {"white: rich in all, the wider the richer", {kMuch, kMuch, kMuch}}};
  std::vector<KeyLine> lines;
  for (const auto& [words, minerals] : mixtures) {
    const auto draw = [minerals = minerals](DrawingSurface& surface, SurfacePoint at) {
      surface.SetPen(kDiscPen);
      DrawAverage(surface, at, minerals);
    };
    lines.push_back({words, draw, AverageRadius(minerals)});
  }
  lines.push_back(UnknownMineralsKeyLine());
  return lines;
}

std::vector<KeyLine> ExpansionKey(const KeyAsked&) {
  std::vector<KeyLine> lines;
  for (const SettlingClass* each : {&kGood, &kFair, &kWorthless}) {
    const auto draw = [each](DrawingSurface& surface, SurfacePoint at) {
      surface.SetPen(kDiscPen);
      DrawSettlingValue(surface, at, each->Example);
    };
    lines.push_back({each->Words, draw, each->Radius});
  }
  lines.push_back(UnknownMineralsKeyLine());
  return lines;
}

}  // namespace quorvane

#include <cmath>

#include "map/discs.h"
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

void DrawAverage(DrawingSurface& surface, SurfacePoint at, const Concentrations& minerals) {
  const double average = (minerals.Boranium + minerals.Germanium + minerals.Ironium) / 3;
  const Colour mixed = RoundedColour(TimesHundredths(minerals.Germanium, 255),
                                     TimesHundredths(minerals.Boranium, 255),
                                     TimesHundredths(minerals.Ironium, 255));
  DrawDisc(surface, at, RoundHalfEven(average), mixed);
}

void DrawSettlingValue(DrawingSurface& surface, SurfacePoint at, double value) {
  constexpr double kGoodValue = 25;
  constexpr double kFull = 255;
  if (value >= kGoodValue) {
    DrawDisc(surface, at, 125, RoundedColour(TimesHundredths(value - kGoodValue, 255), kFull, 0));
  } else if (value > 0) {
    DrawDisc(surface, at, 100, RoundedColour(kFull, TimesHundredths(value, 510) + 128, 0));
  } else {
    // 5.66 and no 45th of 255: a value of -28 is a blue of 158, not of 159.
    DrawDisc(surface, at, 50, RoundedColour(kFull, 0, TimesHundredths(std::fabs(value), 566)));
  }
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

}  // namespace quorvane

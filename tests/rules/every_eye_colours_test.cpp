#include "rules/every_eye_colours.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "rules/colour_slots.h"
#include "support/game_builder.h"

namespace quorvane {
namespace {

using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

// How an eye without one kind of cones sees linear red, green and blue (Machado and others, 2009,
// severity 1), after normal sight.
constexpr Matrix kEyes[] = {{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
                            {{{0.152286, 1.052583, -0.204868},
                              {0.114503, 0.786281, 0.099216},
                              {-0.003882, -0.048116, 1.051998}}},
                            {{{0.367322, 0.860646, -0.227968},
                              {0.280085, 0.672501, 0.047413},
                              {-0.011820, 0.042940, 0.968881}}},
                            {{{1.255528, -0.076749, -0.178779},
                              {-0.078411, 0.930809, 0.147602},
                              {0.004733, 0.691367, 0.303900}}}};
constexpr Matrix kXyzOfRgb = {{{0.4124564, 0.3575761, 0.1804375},
                               {0.2126729, 0.7151522, 0.0721750},
                               {0.0193339, 0.1191920, 0.9503041}}};
constexpr Triple kDaylight = {0.95047, 1, 1.08883};

Triple Times(const Matrix& matrix, const Triple& column) {
  Triple product = {};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) product[i] += matrix[i][j] * column[j];
  }
  return product;
}

double Linear(int component) {
  const double value = component / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

// CIE 1976 L*a*b*.
Triple Lab(Colour colour, const Matrix& eye) {
  Triple seen = Times(eye, {Linear(colour.Red), Linear(colour.Green), Linear(colour.Blue)});
  for (double& component : seen) component = std::clamp(component, 0.0, 1.0);
  Triple xyz = Times(kXyzOfRgb, seen);
  for (std::size_t i = 0; i < 3; ++i) {
    const double part = xyz[i] / kDaylight[i];
    xyz[i] = part > 216.0 / 24389 ? std::cbrt(part) : (24389.0 / 27 * part + 16) / 116;
  }
  return {116 * xyz[1] - 16, 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
}

// The least distance to any eye.
double Distance(Colour left, Colour right) {
  double least = 1000;
  for (const Matrix& eye : kEyes) {
    const Triple a = Lab(left, eye);
    const Triple b = Lab(right, eye);
    least = std::min(least, std::hypot(a[0] - b[0], a[1] - b[1], a[2] - b[2]));
  }
  return least;
}

double LeastDistance(std::span<const Colour> colours) {
  double least = 1000;
  for (std::size_t i = 0; i < colours.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      least = std::min(least, Distance(colours[i], colours[j]));
    }
  }
  return least;
}

TEST(EveryEyeColours, StayApartForEveryEye) {
  EXPECT_GE(LeastDistance(std::span(kEveryEyeColours).first(8)), 28.4);
  EXPECT_GE(LeastDistance(kEveryEyeColours), 20.5);
  EXPECT_LT(LeastDistance(kDefaultRaceColours), 10) << "what they are for";
  constexpr Colour kUnexplored = {80, 60, 60};
  for (const Colour colour : kEveryEyeColours) {
    EXPECT_TRUE(IsRaceColour(colour));
    EXPECT_GE(Distance(colour, {255, 255, 255}), 21);
    EXPECT_GE(Distance(colour, {0, 0, 0}), 52);
    EXPECT_GE(Distance(colour, kUnexplored), 24);
  }
}

TEST(EveryEyeColours, BeginWithThePlayersWhicheverSlotsTheyHave) {
  GameSession session = GameBuilder()
                            .Player("A")
                            .WithPlayerField(PlayerField::ColourSlot, 12)
                            .Player("B")
                            .WithPlayerField(PlayerField::ColourSlot, 3)
                            .Player("C")
                            .WithPlayerField(PlayerField::ColourSlot, 0)
                            .Build();
  UseRaceColours(session, kEveryEyeColours);
  EXPECT_EQ(session.RaceColours[2], kEveryEyeColours[0]);
  EXPECT_EQ(session.RaceColours[11], kEveryEyeColours[1]);
  EXPECT_TRUE(std::ranges::is_permutation(session.RaceColours, kEveryEyeColours));
}

}  // namespace
}  // namespace quorvane

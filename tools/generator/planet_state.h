#pragma once

#include <string>

#include "generator/universe.h"

namespace quorvane::generator {

/// What a planet is like in one year.
struct PlanetState {
  const Race* Owner = nullptr;  // nullptr: nobody lives there, and only the environment is set
  Environment Current = {};
  int Population = 0;
  int Capacity = 0;  // the population that the planet can feed
  std::string Starbase;
  int Mines = 0;
  int Factories = 0;
  int DefenceHundredths = 0;  // coverage in hundredths of a percent
  Minerals Stored = {};
  Minerals MiningRates = {};
  int Resources = 0;
  Scanner PlanetScanner;
  Gate Stargate;
};

/// The planet in that year, the same whoever asks.
PlanetState StateIn(const Universe& universe, const Planet& planet, int year);

}  // namespace quorvane::generator

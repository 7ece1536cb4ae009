#pragma once

#include <string_view>

#include "model/field_value.h"

namespace quorvane {

/// What a planet's sphere of influence follows from.
struct SphereInputs {
  double Population = 0;
  /// Starbase design name as reported; "None": no starbase.
  std::string_view Starbase;
  /// Defence coverage as reported: a percentage with its sign, or "Unknown".
  std::string_view Defence;
  /// The largest radius of any planet, in light years.
  int SoiSetting = 100;
};

/// The radius of a planet's sphere of influence in whole light years: 1 per 10,000 colonists at a
/// setting of 100, at least 10, less without a starbase and with weak or unknown defences, at most
/// the setting. A planet without colonists has none (0).
int SphereRadius(const SphereInputs& inputs);

/// The population that stands for a starbase without colonists, so that it radiates influence all
/// the same; it follows the starbase's design name.
int StarbasePopulation(std::string_view starbase);

}  // namespace quorvane

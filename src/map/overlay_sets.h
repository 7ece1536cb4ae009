#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "map/overlay_kind.h"
#include "model/result.h"

namespace quorvane {

/// How many sets there can be: each has a digit.
inline constexpr std::size_t kMostOverlaySets = 9;

/// The overlays that together answer a question. Clear Map and the zoom are never among them, nor
/// is a race.
struct OverlaySet {
  std::string Name;
  OverlaySwitches Switches;

  bool operator==(const OverlaySet&) const = default;
};

/// The sets that every user begins with.
std::vector<OverlaySet> FirstOverlaySets();

/// The overlays that are on, by the names of their menu items with blanks between them: how they
/// are kept in a file.
std::string OverlaysText(const OverlaySwitches& switches);
/// The overlays of such a text; other names in it are passed over.
OverlaySwitches OverlaysFromText(std::string_view text);

/// What the switches become when a set is chosen: its overlays alone are on, and the zoom and the
/// race stay as they are.
/// @param hasNewReports  the old-style report knows no values after terraforming and no complete
///                       stargate network
OverlaySwitches SwitchesFor(const OverlaySet& set, const OverlaySwitches& current,
                            bool hasNewReports);
/// Whether exactly the overlays of a set are on, of those that there can be.
bool IsShown(const OverlaySet& set, const OverlaySwitches& current, bool hasNewReports);

/// Keeps the overlays that are on as a set, in place of one of the same name, letter case aside.
/// Fails without a name, without overlays, and where there are nine others.
Result<void> SaveAsSet(std::vector<OverlaySet>& sets, std::string_view name,
                       const OverlaySwitches& switches);

}  // namespace quorvane

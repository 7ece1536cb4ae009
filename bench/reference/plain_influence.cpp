#include "reference/plain_influence.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "model/rounding.h"

namespace quorvane::reference {
namespace {

struct Entry {
  std::int16_t X;
  std::int16_t Y;
  std::int16_t Radius;
  std::int16_t Owner;
};

using Sums = std::array<std::int32_t, kMaxPlayers + 1>;

std::vector<Entry> ListEntries(const GameSession& session) {
  std::vector<Entry> entries;
  for (int i = 1; i <= session.PlanetCount; ++i) {
    const PlanetRecord& planet = session.Planet(i);
    const auto whole = [&](PlanetField field) { return ToWhole16(planet[field].Number()); };
    const Entry entry = {whole(PlanetField::X), whole(PlanetField::Y),
                         whole(PlanetField::SoiRadius), whole(PlanetField::OwnerIndex)};
    if (entry.Radius > 0 && entry.Owner > 0) entries.push_back(entry);
  }
  return entries;
}

// Adds one planet's influence at distance d inside its reach to its owner's sum.
void AddInfluence(std::int32_t& sum, int soiSetting, int radius, int d) {
  if (d <= soiSetting) {
    sum += soiSetting * radius / d;
    return;
  }
  const double setting = soiSetting;
  const double fading = (-setting / 25 * (d - soiSetting) + (setting + 2)) / setting * radius;
  sum = static_cast<std::int32_t>(std::nearbyint(fading + sum));
}

// Sums all influences at a place; whether any planet reaches it.
bool SumAt(int wx, int wy, const std::vector<Entry>& entries, int soiSetting, Sums& sums) {
  const int reach = soiSetting + 25;
  const double reachSquared = static_cast<double>(reach) * reach;
  bool isReached = false;
  for (const Entry& entry : entries) {
    if (entry.X < wx - reach || entry.X > wx + reach) continue;
    if (entry.Y < wy - reach || entry.Y > wy + reach) continue;
    const double dy = entry.Y - wy;
    const double dx = entry.X - wx;
    const double squared = std::nearbyint(dy * dy + dx * dx + 1);
    if (reachSquared < squared) continue;
    const int d = static_cast<int>(std::nearbyint(std::sqrt(squared)));
    AddInfluence(sums.at(static_cast<std::size_t>(entry.Owner)), soiSetting, entry.Radius, d);
    isReached = true;
  }
  return isReached;
}

InfluencePoint ChooseHolder(Sums& sums, int playerCount) {
  std::int32_t best = 0;
  int holder = 0;
  for (int player = 1; player <= playerCount; ++player) {
    const std::int32_t sum = std::min(sums.at(static_cast<std::size_t>(player)), 32767);
    if (sum > best) {
      best = sum;
      holder = player;
    }
  }
  sums.fill(0);
  return {static_cast<std::int16_t>(holder), static_cast<std::int16_t>(std::min(best, 100))};
}

}  // namespace

void PlainComputeInfluence(GameSession& session) {
  const std::vector<Entry> entries = ListEntries(session);
  session.CreateInfluenceGrid(session.GridSize);
  Sums sums = {};
  for (int gx = 0; gx <= session.GridSize; ++gx) {
    for (int gy = 0; gy <= session.GridSize; ++gy) {
      const int wx = ToWhole32(gx * session.GridCellSize);
      const int wy = ToWhole32(gy * session.GridCellSize);
      if (!SumAt(wx, wy, entries, session.SoiSetting, sums)) continue;
      const InfluencePoint point = ChooseHolder(sums, session.PlayerCount);
      session.InfluenceGrid.At(gx, gy) = point;
      FieldValue& territory = session.Player(point.Holder)[PlayerField::Territory];
      territory = static_cast<int>(territory.Number()) + 1;
    }
  }
}

}  // namespace quorvane::reference

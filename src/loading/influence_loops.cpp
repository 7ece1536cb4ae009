#include "loading/influence_loops.h"

// Wider vectors are for Linux alone: what MinGW builds for Windows keeps the stack aligned to 16
// bytes, and instructions that rely on 32 stop the program.
#if defined(__x86_64__) && defined(__linux__)
#define QUORVANE_HAS_WIDE_VECTORS
#endif

namespace quorvane {
namespace {

// Nearest and farthest distance in one direction, in a form that becomes vector instructions.
[[gnu::always_inline]] inline float Nearest(float first, float last, float position) {
  const float before = first - position;
  const float behind = position - last;
  const float outside = before > behind ? before : behind;
  return outside > 0 ? outside : 0;
}

[[gnu::always_inline]] inline float Farthest(float first, float last, float position) {
  const float toFirst = position - first;
  const float toLast = last - position;
  return toFirst > toLast ? toFirst : toLast;
}

[[gnu::always_inline]] inline float Squared(float dx, float dy) { return dx * dx + dy * dy + 1; }

[[gnu::always_inline]] inline void BoundTiles(InfluenceRule rule, const NearPlanet& planet,
                                              const float* first, const float* last, int count,
                                              int* __restrict atLeast, int* __restrict atMost) {
  const ShareTerms terms = TermsOf(rule, planet.Planet);
  const ShareTerms roundedDown = RoundedDown(terms);
  const float y = planet.Planet.Y;
  const float nearestX = planet.NearestX;
  const float farthestX = planet.FarthestX;
  for (int tile = 0; tile < count; ++tile) {
    const float nearestY = Nearest(first[tile], last[tile], y);
    const float farthestY = Farthest(first[tile], last[tile], y);
    atMost[tile] += ShareAt(rule, terms, Squared(nearestX, nearestY));
    atLeast[tile] += ShareAt(rule, roundedDown, Squared(farthestX, farthestY));
  }
}

[[gnu::always_inline]] inline void BoundStrip(const InfluenceRule& rule,
                                              std::span<const NearPlanet> planets,
                                              const StripBounds& bounds) {
  for (const NearPlanet& planet : planets) {
    const int first = planet.FirstTile / kTileBlock * kTileBlock;
    const int count = (planet.LastTile / kTileBlock + 1) * kTileBlock - first;
    const std::size_t row = static_cast<std::size_t>(planet.Planet.Owner) * bounds.TileCount;
    int* const atLeast = bounds.AtLeast + row + first;
    int* const atMost = bounds.AtMost + row + first;
    if (planet.Planet.Kind != ShareKind::Unusual) {
      BoundTiles(rule, planet, bounds.First + first, bounds.Last + first, count, atLeast, atMost);
    } else {
      for (int tile = 0; tile < count; ++tile) atMost[tile] += kLargestInfluence;
    }
  }
}

[[gnu::always_inline]] inline void BoundShares(const InfluenceRule& rule,
                                               std::span<const RadiatingPlanet> planets,
                                               const TilePlaces& places, int* __restrict atLeast,
                                               int* __restrict atMost) {
  const InfluenceRule ownRule = rule;
  const LightYears columns = places.Columns;
  const LightYears rows = places.Rows;
  const RadiatingPlanet* const first = planets.data();
  const std::size_t count = planets.size();
  for (std::size_t i = 0; i < count; ++i) {
    const RadiatingPlanet planet = first[i];
    const ShareTerms terms = TermsOf(ownRule, planet);
    const float nearest = Squared(Nearest(columns.First, columns.Last, planet.X),
                                  Nearest(rows.First, rows.Last, planet.Y));
    const float farthest = Squared(Farthest(columns.First, columns.Last, planet.X),
                                   Farthest(rows.First, rows.Last, planet.Y));
    atMost[i] = ShareAt(ownRule, terms, nearest);
    atLeast[i] = ShareAt(ownRule, RoundedDown(terms), farthest);
  }
}

// Calls `add` with each point's sum and its squared distance from the planet.
template <typename Add>
[[gnu::always_inline]] inline void AddAtPoints(const TilePlaces& places, RadiatingPlanet planet,
                                               int* __restrict sums, Add add) {
  const float* const x = places.X.data();
  const float* const y = places.Y.data();
  for (std::size_t i = 0; i < kTilePoints; ++i) {
    sums[i] = add(sums[i], Squared(x[i] - planet.X, y[i] - planet.Y));
  }
}

[[gnu::always_inline]] inline void AddSimple(InfluenceRule rule, const TilePlaces& places,
                                             RadiatingPlanet planet, int* sums) {
  const ShareTerms terms = TermsOf(rule, planet);
  AddAtPoints(places, planet, sums,
              [=](int sum, float squared) { return sum + ShareAt(rule, terms, squared); });
}

[[gnu::always_inline]] inline void AddInSphere(InfluenceRule rule, const TilePlaces& places,
                                               RadiatingPlanet planet, int* sums) {
  const ShareTerms terms = TermsOf(rule, planet);
  AddAtPoints(places, planet, sums,
              [=](int sum, float squared) { return sum + ShareInSphere(terms, squared); });
}

// The sum that a half is added to becomes even.
[[gnu::always_inline]] inline void AddHalves(InfluenceRule rule, const TilePlaces& places,
                                             RadiatingPlanet planet, int* sums) {
  const ShareTerms terms = TermsOf(rule, planet);
  AddAtPoints(places, planet, sums, [=](int sum, float squared) {
    const int roundedUp = sum + ShareAt(rule, terms, squared);
    return roundedUp - (roundedUp & HalfAt(rule, terms, squared));
  });
}

void AddLiterally(const InfluenceRule& rule, const TilePlaces& places,
                  const RadiatingPlanet& planet, int* sums) {
  for (std::size_t i = 0; i < kTilePoints; ++i) {
    const double dx = places.X[i] - planet.X;
    const double dy = places.Y[i] - planet.Y;
    sums[i] = AddShareLiterally(sums[i], rule, planet, dx * dx + dy * dy + 1);
  }
}

[[gnu::always_inline]] inline void AddConstant(int constant, int* sums) {
  for (std::size_t i = 0; i < kTilePoints; ++i) sums[i] += constant;
}

// Adds a planet by the quickest way that gives its shares in this tile.
// @param constant  shares of the same owner that wait to be added
[[gnu::always_inline]] inline void AddPlanet(const InfluenceRule& rule, const TilePlaces& places,
                                             const RadiatingPlanet& planet, int& constant,
                                             int* sums) {
  const float farthest = Squared(Farthest(places.Columns.First, places.Columns.Last, planet.X),
                                 Farthest(places.Rows.First, places.Rows.Last, planet.Y));
  if (planet.Kind != ShareKind::Unusual && DistanceOf(farthest) <= rule.Sphere) {
    return AddInSphere(rule, places, planet, sums);
  }
  if (planet.Kind == ShareKind::Simple) return AddSimple(rule, places, planet, sums);
  // Here the order counts: what stands before has to be in the sum.
  AddConstant(constant, sums);
  constant = 0;
  if (planet.Kind == ShareKind::Halves) return AddHalves(rule, places, planet, sums);
  AddLiterally(rule, places, planet, sums);
}

// Most shares of small or distant planets are the same all over a tile; they are added as one
// number in the end.
[[gnu::always_inline]] inline void SumShares(const InfluenceRule& rule,
                                             std::span<const RadiatingPlanet> planets,
                                             const TilePlaces& places, const int* atLeast,
                                             const int* atMost, TileSums& sums) {
  int constants[kMaxPlayers + 1] = {};
  for (std::size_t i = 0; i < planets.size(); ++i) {
    const RadiatingPlanet& planet = planets[i];
    int& constant = constants[planet.Owner];
    if (atLeast[i] == atMost[i] && planet.Kind != ShareKind::Unusual) {
      constant += atLeast[i];
    } else {
      AddPlanet(rule, places, planet, constant,
                sums[static_cast<std::size_t>(planet.Owner)].At.data());
    }
  }
  for (std::size_t player = 1; player <= kMaxPlayers; ++player) {
    if (constants[player] != 0) AddConstant(constants[player], sums[player].At.data());
  }
}

[[gnu::always_inline]] inline void FindLargest(const TileSums& sums, std::uint32_t players,
                                               TileNumbers& largest, TileNumbers& holders) {
  largest = {};
  holders = {};
  for (int player = 1; player <= kMaxPlayers; ++player) {
    if ((players >> player & 1U) == 0) continue;
    const std::array<int, kTilePoints>& own = sums[static_cast<std::size_t>(player)].At;
    for (std::size_t i = 0; i < kTilePoints; ++i) {
      const int sum = own[i] < kLargestInfluence ? own[i] : kLargestInfluence;
      const bool isLarger = sum > largest.At[i];
      holders.At[i] = isLarger ? player : holders.At[i];
      largest.At[i] = isLarger ? sum : largest.At[i];
    }
  }
}

[[gnu::always_inline]] inline void MarkReached(const InfluenceRule& rule,
                                               std::span<const RadiatingPlanet> planets,
                                               const TilePlaces& places, TileNumbers& isReached) {
  const float reachSquared = rule.ReachSquared;
  for (const RadiatingPlanet& planet : planets) {
    AddAtPoints(places, planet, isReached.At.data(),
                [=](int mark, float squared) { return mark | (squared <= reachSquared ? -1 : 0); });
  }
}

#ifdef QUORVANE_HAS_WIDE_VECTORS

// A loop compiled once more, for the vectors of 256 bits that most processors have.
template <auto Loop>
struct Wide;
template <typename... Arguments, void (*Loop)(Arguments...)>
struct Wide<Loop> {
  [[gnu::target("avx2")]] static void Run(Arguments... arguments) { Loop(arguments...); }
};

constexpr InfluenceLoops kWideLoops = {Wide<&BoundStrip>::Run, Wide<&BoundShares>::Run,
                                       Wide<&SumShares>::Run, Wide<&FindLargest>::Run,
                                       Wide<&MarkReached>::Run};

#endif

constexpr InfluenceLoops kNarrowLoops = {&BoundStrip, &BoundShares, &SumShares, &FindLargest,
                                         &MarkReached};

}  // namespace

const InfluenceLoops& NarrowInfluenceLoops() { return kNarrowLoops; }

const InfluenceLoops& WidestInfluenceLoops() {
#ifdef QUORVANE_HAS_WIDE_VECTORS
  if (__builtin_cpu_supports("avx2")) return kWideLoops;
#endif
  return kNarrowLoops;
}

}  // namespace quorvane

#include "influence/influence_loops.h"

// Wider vectors are for Linux alone: what MinGW builds for Windows keeps the stack aligned to 16
// bytes, and instructions that rely on more stop the program.
#if defined(__x86_64__) && defined(__linux__)
#define QUORVANE_HAS_WIDE_VECTORS
#endif

namespace quorvane {
namespace {

// The loops are short and their bodies have no branches, so that the compiler makes vectors of
// them. What is written to gets parameters of its own, which promise that nothing else lies there.

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

[[gnu::always_inline]] inline void BoundTiles(InfluenceRule rule, const PlanetInReach& planet,
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
                                              std::span<const PlanetInReach> planets,
                                              const StripBounds& bounds) {
  for (const PlanetInReach& planet : planets) {
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

[[gnu::always_inline]] inline void BoundEach(InfluenceRule rule, LightYears columns,
                                             LightYears rows, std::size_t count,
                                             const RadiatingPlanet* __restrict planets,
                                             int* __restrict atLeast, int* __restrict atMost) {
  for (std::size_t i = 0; i < count; ++i) {
    const RadiatingPlanet planet = planets[i];
    const ShareTerms terms = TermsOf(rule, planet);
    const float nearest = Squared(Nearest(columns.First, columns.Last, planet.X),
                                  Nearest(rows.First, rows.Last, planet.Y));
    const float farthest = Squared(Farthest(columns.First, columns.Last, planet.X),
                                   Farthest(rows.First, rows.Last, planet.Y));
    atLeast[i] = ShareAt(rule, RoundedDown(terms), farthest);
    atMost[i] = ShareAt(rule, terms, nearest);
  }
}

// The first two circles at which each share falls, for the planets whose share takes few values.
[[gnu::always_inline]] inline void FindSteps(InfluenceRule rule, std::size_t count,
                                             const RadiatingPlanet* __restrict planets,
                                             const int* __restrict atLeast,
                                             float* __restrict firstStep,
                                             float* __restrict secondStep) {
  for (std::size_t i = 0; i < count; ++i) {
    const ShareTerms terms = TermsOf(rule, planets[i]);
    firstStep[i] = FarthestSquared(rule, terms, atLeast[i] + 1);
    secondStep[i] = FarthestSquared(rule, terms, atLeast[i] + 2);
  }
}

[[gnu::always_inline]] inline void BoundShares(const InfluenceRule& rule,
                                               std::span<const RadiatingPlanet> planets,
                                               const TilePlaces& places,
                                               const ShareBounds& bounds) {
  BoundEach(rule, places.Columns, places.Rows, planets.size(), planets.data(), bounds.AtLeast,
            bounds.AtMost);
  FindSteps(rule, planets.size(), planets.data(), bounds.AtLeast, bounds.FirstStep,
            bounds.SecondStep);
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

[[gnu::always_inline]] inline bool IsInSphere(const InfluenceRule& rule, const TilePlaces& places,
                                              const RadiatingPlanet& planet) {
  const float farthest = Squared(Farthest(places.Columns.First, places.Columns.Last, planet.X),
                                 Farthest(places.Rows.First, places.Rows.Last, planet.Y));
  return DistanceOf(farthest) <= rule.Sphere;
}

// Adds each planet by the quickest way that gives its shares in this tile.
[[gnu::always_inline]] inline void SumShares(const InfluenceRule& rule,
                                             std::span<const RadiatingPlanet> planets,
                                             const TilePlaces& places, TileSums& allSums) {
  for (const RadiatingPlanet& planet : planets) {
    int* const sums = allSums[static_cast<std::size_t>(planet.Owner)].At.data();
    if (planet.Kind != ShareKind::Unusual && IsInSphere(rule, places, planet)) {
      AddInSphere(rule, places, planet, sums);
    } else if (planet.Kind == ShareKind::Simple) {
      AddSimple(rule, places, planet, sums);
    } else if (planet.Kind == ShareKind::Halves) {
      AddHalves(rule, places, planet, sums);
    } else {
      AddLiterally(rule, places, planet, sums);
    }
  }
}

[[gnu::always_inline]] inline void SumSteps(std::span<const ShareStep> steps,
                                            const TilePlaces& places, TileSums& allSums) {
  for (const ShareStep& step : steps) {
    const float farthest = step.FarthestSquared;
    AddAtPoints(places, {.X = step.X, .Y = step.Y},
                allSums[static_cast<std::size_t>(step.Owner)].At.data(),
                [=](int sum, float squared) { return sum + (squared <= farthest ? 1 : 0); });
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

// Each loop is compiled once for every width of vectors. The attribute goes to a function around
// it, so that nothing else of the program is built for processors that the user may not have.
template <auto Loop>
struct Bits128;
template <typename... Arguments, void (*Loop)(Arguments...)>
struct Bits128<Loop> {
  static void Run(Arguments... arguments) { Loop(arguments...); }
};

template <template <auto> class Width>
constexpr InfluenceLoops kLoops = {.BoundStrip = Width<&BoundStrip>::Run,
                                   .BoundShares = Width<&BoundShares>::Run,
                                   .SumSteps = Width<&SumSteps>::Run,
                                   .SumShares = Width<&SumShares>::Run,
                                   .FindLargest = Width<&FindLargest>::Run,
                                   .MarkReached = Width<&MarkReached>::Run};

#ifdef QUORVANE_HAS_WIDE_VECTORS

template <auto Loop>
struct Bits256;
template <typename... Arguments, void (*Loop)(Arguments...)>
struct Bits256<Loop> {
  [[gnu::target("avx2")]] static void Run(Arguments... arguments) { Loop(arguments...); }
};

template <auto Loop>
struct Bits512;
template <typename... Arguments, void (*Loop)(Arguments...)>
struct Bits512<Loop> {
  [[gnu::target("avx512f,avx512vl,avx512bw,avx512dq")]] static void Run(Arguments... arguments) {
    Loop(arguments...);
  }
};

bool HasBits512() {
  return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
         __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq");
}

#endif

}  // namespace

const InfluenceLoops& LoopsFor(InfluenceVectors vectors) {
#ifdef QUORVANE_HAS_WIDE_VECTORS
  if (vectors >= InfluenceVectors::Bits512 && HasBits512()) return kLoops<Bits512>;
  if (vectors >= InfluenceVectors::Bits256 && __builtin_cpu_supports("avx2")) {
    return kLoops<Bits256>;
  }
#endif
  static_cast<void>(vectors);
  return kLoops<Bits128>;
}

}  // namespace quorvane

#include "generator/planet_names.h"

#include <cstddef>
#include <set>
#include <string_view>

namespace quorvane::generator {
namespace {

constexpr std::size_t kLongestName = 18;

// Names that a careless reader would take for numbers, and the two marks that names may carry.
constexpr std::string_view kAwkwardNames[] = {
    "007",    "90210", "Widow's Lamp", "Ever-After",     "409",
    "3M TA3", "1E5",   "2D6",          "60 Minutes Out", "O'Dell's Landing"};

constexpr std::string_view kWords[] = {
    "Amberfall",   "Anvilhead",   "Ashmere",      "Barrowdeep",   "Bellwether",  "Bitterroot",
    "Blackwater",  "Bramblegate", "Brightmoor",   "Candlewick",   "Cloudrest",   "Coldharbour",
    "Copperhead",  "Crosswind",   "Dovecote",     "Driftwood",    "Duskwater",   "Eastmarch",
    "Emberlight",  "Fallowfield", "Farwatch",     "Featherbed",   "Foxglove",    "Frostmark",
    "Gallowglass", "Glasswing",   "Greywether",   "Halfmoon",     "Hammerstone", "Hearthstone",
    "Hollowell",   "Honeycomb",   "Inkwell",      "Ironbark",     "Ivory Gate",  "Jessamine",
    "Kingfisher",  "Lacework",    "Lamplight",    "Lantern Hill", "Larkspur",    "Lodestone",
    "Longshadow",  "Marrowbone",  "Millrace",     "Mistral",      "Moonwort",    "Mossback",
    "Needlepoint", "Nettlecombe", "Nightjar",     "Oakenshaw",    "Old Harrow",  "Palisade",
    "Peregrine",   "Quarryside",  "Quicksilver",  "Ravelin",      "Redoubt",     "Riverbend",
    "Rookery",     "Rushlight",   "Saltmarsh",    "Sandpiper",    "Silverbirch", "Sparrowhawk",
    "Spindrift",   "Starling",    "Stillwater",   "Summerfield",  "Tanglewood",  "Thimble",
    "Thornbury",   "Tidewater",   "Tinderbox",    "Trellis",      "Umberland",   "Undertow",
    "Wainscot",    "Westering",   "Whetstone",    "Whitecap",     "Windfall",    "Winterbourne",
    "Wolfram",     "Yarrow",      "Yellowhammer", "Zephyr's Hold"};

constexpr std::string_view kBeginnings[] = {
    "Al",  "Bel", "Cal", "Dar", "El",   "Fen", "Gar",  "Hal", "Is",  "Jor", "Kel",
    "Lor", "Mar", "Nor", "Or",  "Pel",  "Quo", "Ros",  "Sar", "Tal", "Ul",  "Var",
    "Wen", "Xan", "Yr",  "Zan", "Bran", "Dru", "Thra", "Ska", "Gla", "Ei",  "Ou"};
constexpr std::string_view kMiddles[] = {"a", "e",   "i",   "o",   "an",  "ed", "ir",
                                         "o", "und", "ath", "eth", "ist", "a",  "el"};
constexpr std::string_view kEndings[] = {"dar",  "ra",  "neth", "mir", "vos", "lia", "gan",  "thys",
                                         "dune", "lon", "phia", "rax", "sk",  "tor", "wyn",  "bris",
                                         "mede", "nis", "gard", "cor", "zul", "ria", "than", "pol"};

constexpr std::string_view kPlaces[] = {"Prime", "Minor", "Gate", "Reach", "Deep", "Drift"};
constexpr std::string_view kHoldings[] = {"Hold", "Rest", "Watch", "Haven", "Crossing", "Folly"};

std::string Coined(Random& random) {
  std::string name(random.OneOf(kBeginnings));
  name.append(random.OneOf(kMiddles));
  return name.append(random.OneOf(kEndings));
}

std::string AnyName(Random& random) {
  const int style = random.Between(1, 100);
  if (style <= 40) return std::string(random.OneOf(kWords));
  std::string coined = Coined(random);
  if (style <= 80) return coined;
  if (style <= 86) return coined + " " + std::string(random.OneOf(kPlaces));
  if (style <= 91) return coined + "'s " + std::string(random.OneOf(kHoldings));
  if (style <= 96) return coined + "-" + std::to_string(random.Between(2, 99));
  return std::to_string(random.Between(1, 9999));
}

}  // namespace

std::vector<std::string> MakePlanetNames(int count, Random& random) {
  std::vector<std::string> names;
  std::set<std::string> taken;
  const auto take = [&](const std::string& name) {
    if (name.size() <= kLongestName && taken.insert(name).second) names.push_back(name);
  };
  const auto wanted = static_cast<std::size_t>(count);
  for (const std::string_view name : kAwkwardNames) {
    if (names.size() < wanted) take(std::string(name));
  }
  while (names.size() < wanted) take(AnyName(random));
  random.Shuffle(names);
  return names;
}

}  // namespace quorvane::generator

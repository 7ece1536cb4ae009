#include "make_game_options.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <system_error>

#include "files/files.h"

namespace quorvane::generator {

const std::string_view kMakeGameHelp =
    R"(Usage: quorvane-make-game [OPTION]...
Makes a complete game: a map and planet reports. The same options always give
the same files.

  --seed N           which of all games (1)
  --size LIGHTYEARS  side of the universe, 400 to 3200 (800)
  --planets N        number of planets (130)
  --players N        number of players, 1 to 16 (8)
  --reports N        players 1 to N have exported a report (5 at most)
  --style new|old    new: a report for every player; old: a single one (new)
  --year N           game year, 2401 to 3000 (2450)
  --age-spread N     years by which the other players' reports may be older (6)
  --own N            the player whose game it is (1)
  --map FILE         make reports for this map instead of a new universe
  --companions       write the files that Quorvane keeps beside a game, too
  --out FOLDER       where to (this folder; with --map, the map's folder)
  --name BASE        name of the files (demo; with --map, the map's name)
  --help             show this text
)";

namespace {

// What was given; the rest follows from it once all options are known.
struct Given {
  GameShape Shape;
  std::optional<int> ReportCount;
  std::optional<std::string> MapFile, Folder, BaseName;
  bool HasUniverse = false;
  bool WantsHelp = false;
};

template <typename Number>
Result<void> ReadNumber(std::string_view text, Number& number) {
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error == std::errc() && stop == end) return {};
  return Failure{" needs a whole number, not \"" + std::string(text) + "\"."};
}

Result<void> ReadStyle(std::string_view text, int& style) {
  if (text != "new" && text != "old") {
    return Failure{" is new or old, not \"" + std::string(text) + "\"."};
  }
  style = text == "new" ? kNewReportStyle : kOldReportStyle;
  return {};
}

Result<void> KeepText(std::string_view text, std::optional<std::string>& kept) {
  if (text.empty()) return Failure{" needs a text."};
  kept = text;
  return {};
}

struct Option {
  std::string_view Name;
  Result<void> (*Read)(Given& given, std::string_view value);
};

constexpr Option kOptions[] = {
    {"--seed", [](Given& given, auto value) { return ReadNumber(value, given.Shape.Seed); }},
    {"--size",
     [](Given& given, auto value) {
       given.HasUniverse = true;
       return ReadNumber(value, given.Shape.Side);
     }},
    {"--planets",
     [](Given& given, auto value) {
       given.HasUniverse = true;
       return ReadNumber(value, given.Shape.PlanetCount);
     }},
    {"--players",
     [](Given& given, auto value) { return ReadNumber(value, given.Shape.PlayerCount); }},
    {"--reports",
     [](Given& given, auto value) { return ReadNumber(value, given.ReportCount.emplace()); }},
    {"--style", [](Given& given, auto value) { return ReadStyle(value, given.Shape.Style); }},
    {"--year", [](Given& given, auto value) { return ReadNumber(value, given.Shape.Year); }},
    {"--age-spread",
     [](Given& given, auto value) { return ReadNumber(value, given.Shape.AgeSpread); }},
    {"--own", [](Given& given, auto value) { return ReadNumber(value, given.Shape.OwnSlot); }},
    {"--map", [](Given& given, auto value) { return KeepText(value, given.MapFile); }},
    {"--out", [](Given& given, auto value) { return KeepText(value, given.Folder); }},
    {"--name", [](Given& given, auto value) { return KeepText(value, given.BaseName); }}};

Result<Given> ReadArguments(const std::vector<std::string>& arguments) {
  Given given;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& name = arguments[i];
    if (name == "--help") {
      given.WantsHelp = true;
      return given;
    }
    if (name == "--companions") {
      given.Shape.HasCompanions = true;
      continue;
    }
    const auto* option = std::ranges::find(kOptions, name, &Option::Name);
    if (option == std::end(kOptions)) return Failure{"There is no option " + name + "."};
    if (++i == arguments.size()) return Failure{name + " needs a value."};
    const Result<void> read = option->Read(given, arguments[i]);
    if (!read) return Failure{name + read.Message()};
  }
  return given;
}

}  // namespace

Result<MakeGameOptions> ParseMakeGameOptions(const std::vector<std::string>& arguments) {
  const Result<Given> given = ReadArguments(arguments);
  if (!given) return Failure{given.Message()};
  if (given->ReportCount && given->Shape.Style == kOldReportStyle) {
    return Failure{"An old-style game has one report: --reports does not go with it."};
  }
  if (given->MapFile && given->HasUniverse) {
    return Failure{
        "The map says how large the universe is: --size and --planets do not go with it."};
  }
  MakeGameOptions options;
  options.WantsHelp = given->WantsHelp;
  options.Shape = given->Shape;
  options.Shape.ReportCount =
      given->ReportCount.value_or(std::min(options.Shape.ReportCount, options.Shape.PlayerCount));
  if (const Result<void> possible = CheckShape(options.Shape); !possible) {
    return Failure{possible.Message()};
  }
  options.MapFile = PathFromText(given->MapFile.value_or(""));
  const std::string folder = TextFromPath(options.MapFile.parent_path());
  options.Folder = PathFromText(given->Folder.value_or(folder.empty() ? "." : folder));
  const bool isNewUniverse = options.MapFile.empty();
  options.BaseName =
      given->BaseName.value_or(isNewUniverse ? "demo" : TextFromPath(options.MapFile.stem()));
  return options;
}

}  // namespace quorvane::generator

#include "make_game_options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

#include "files/files.h"

namespace quorvane::generator {
namespace {

// The options of the program, each with the place where its value goes.
class CommandLine {
 public:
  CommandLine() {
    app_.set_help_flag("--help", "show this text");
    app_.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    Number("--seed", shape_.Seed, "which of all games");
    CLI::Option* size = Number("--size", shape_.Side, "side of the universe, 400 to 3200");
    CLI::Option* planets = Number("--planets", shape_.PlanetCount, "number of planets");
    Number("--players", shape_.PlayerCount, "number of players, 1 to 16");
    reports_ = Number("--reports", reportCount_, "players 1 to N have exported a report")
                   ->default_str("5 at most");
    app_.add_option("--style", style_, "new: a report for every player; old: a single one")
        ->check(CLI::IsMember({"new", "old"}))
        ->capture_default_str();
    Number("--year", shape_.Year, "game year, 2401 to 3000");
    years_ = Number("--years", yearCount_,
                    "make N years of a growing game, each in a folder of its own: 2450, 2451, ...; "
                    "all reports are of their year unless --age-spread is given")
                 ->default_str("one year, in the folder itself");
    ageSpread_ =
        Number("--age-spread", shape_.AgeSpread, "years by which the others' reports may be older");
    Number("--own", shape_.OwnSlot, "the player whose game it is");
    // The map says how large the universe is.
    Text("--map", map_, "", "FILE", "make reports for this map instead of a new universe")
        ->excludes(size)
        ->excludes(planets)
        ->excludes(years_);
    app_.add_flag("--war", shape_.IsWar,
                  "the years of --years are a war: planets change hands, races die out, and "
                  "reports are missing");
    app_.add_flag("--companions", shape_.HasCompanions,
                  "write the files that Quorvane keeps beside a game, too");
    app_.add_flag("--turn-files", shape_.HasTurnFiles,
                  "write a turn file for every player and the host's, too: true in their first 18 "
                  "bytes, any bytes behind");
    Text("--out", folder_, "this folder; with --map, the map's folder", "FOLDER", "where to");
    Text("--name", baseName_, "demo; with --map, the map's name", "BASE", "name of the files");
  }

  Result<MakeGameOptions> Read(const std::vector<std::string>& arguments) {
    try {
      app_.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
      return MakeGameOptions{.Help = app_.help()};
    } catch (const CLI::ParseError& error) {
      return Failure{error.what() + std::string(".")};
    }
    if (style_ == "old" && reports_->count() > 0) {
      return Failure{"An old-style game has one report: --reports does not go with it."};
    }
    return Combined();
  }

 private:
  // Whole and decimal; the library itself would take 010 for eight and -1 for a large seed.
  template <typename Value>
  CLI::Option* Number(const char* name, Value& value, const char* help) {
    const auto read = [&value](const CLI::results_t& given) {
      const std::string& text = given.back();
      const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), value);
      return error == std::errc() && stop == text.data() + text.size();
    };
    const std::string without = std::to_string(value);
    return app_.add_option(name, read, help)->type_name("N")->default_str(without);
  }

  CLI::Option* Text(const char* name, std::string& text, const char* without, const char* type,
                    const char* help) {
    const auto check = [](const std::string& given) {
      return given.empty() ? std::string("a text is needed") : std::string();
    };
    return app_.add_option(name, text, help)->check(check)->type_name(type)->default_str(without);
  }

  // What was not given follows from the rest.
  Result<MakeGameOptions> Combined() {
    shape_.Style = style_ == "old" ? kOldReportStyle : kNewReportStyle;
    shape_.ReportCount =
        reports_->count() > 0 ? reportCount_ : std::min(shape_.ReportCount, shape_.PlayerCount);
    if (years_->count() > 0 && ageSpread_->count() == 0) shape_.AgeSpread = 0;
    if (const Result<void> possible = CheckShape(shape_); !possible) {
      return possible.Error();
    }
    if (years_->count() > 0 && (yearCount_ < 1 || yearCount_ > MostYears(shape_))) {
      return Failure{"The number of years is " + std::to_string(yearCount_) + ", it must be 1 to " +
                     std::to_string(MostYears(shape_)) + "."};
    }
    MakeGameOptions options{.Shape = shape_, .Years = yearCount_, .MapFile = PathFromText(map_)};
    const std::filesystem::path beside = options.MapFile.parent_path();
    options.Folder = folder_.empty() ? beside : PathFromText(folder_);
    if (options.Folder.empty()) options.Folder = ".";
    options.BaseName = baseName_;
    if (baseName_.empty())
      options.BaseName = map_.empty() ? "demo" : TextFromPath(options.MapFile.stem());
    return options;
  }

  CLI::App app_{
      "Makes a complete game: a map and planet reports. The same options always give\n"
      "the same files.",
      "quorvane-make-game"};
  GameShape shape_;
  int reportCount_ = 0;
  int yearCount_ = 0;
  std::string style_ = "new";
  std::string map_, folder_, baseName_;
  const CLI::Option* reports_ = nullptr;
  CLI::Option* years_ = nullptr;
  const CLI::Option* ageSpread_ = nullptr;
};

}  // namespace

Result<MakeGameOptions> ParseMakeGameOptions(const std::vector<std::string>& arguments) {
  return CommandLine().Read(arguments);
}

}  // namespace quorvane::generator

#include "support/growing_game_folder.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

constexpr std::string_view kBaseName = "Demo";

const std::vector<generator::GeneratedGame>& Years() {
  static const auto kGames = generator::GenerateYears({.Seed = 5,
                                                       .Side = 400,
                                                       .PlanetCount = 60,
                                                       .PlayerCount = 4,
                                                       .ReportCount = 4,
                                                       .Year = 2450,
                                                       .AgeSpread = 0,
                                                       .HasTurnFiles = true},
                                                      21);
  return kGames;
}

}  // namespace

GrowingGameFolder::GrowingGameFolder() { WriteAllFiles(); }

const generator::GeneratedGame& GrowingGameFolder::Game() const { return Years().at(turn_); }

void GrowingGameFolder::WriteFiles(std::initializer_list<std::string_view> names) const {
  for (const std::string_view name : names) {
    const std::string* content = Game().Content(name.substr(kBaseName.size()));
    if (content == nullptr) {
      ADD_FAILURE() << name << " is no file of the game";
    } else {
      Write(name, *content);
    }
  }
}

void GrowingGameFolder::WriteNextYear() {
  BeginNextYear();
  WriteAllFiles();
}

void GrowingGameFolder::WriteAllFiles() const {
  for (const generator::GeneratedFile& file : Game().Files) {
    Write(std::string(kBaseName) + file.Extension, file.Content);
  }
}

}  // namespace quorvane

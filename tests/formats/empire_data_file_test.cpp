#include "formats/empire_data_file.h"

#include <gtest/gtest.h>

#include "support/game_builder.h"

namespace quorvane {
namespace {

GameSession TwoRaces() { return GameBuilder().Player("Humanoid").Player("Rabbitoid, Inc").Build(); }

// Every stored field of theirs holds something that only it holds.
GameSession TwoFilledRaces() {
  GameSession session = TwoRaces();
  for (int number = 1; number <= 2; ++number) {
    PlayerRecord& player = session.Player(number);
    for (std::size_t field = 8; field <= 37; ++field) {
      if (field < 14 || field > 18) player.Field(field) = 100 * number + static_cast<int>(field);
    }
    player[PlayerField::PrimaryTrait] = "JoaT";
    player[PlayerField::NotesText] = "two\r\nlines, a comma";
  }
  return session;
}

TEST(EmpireData, ComesBackAsItWasSaved) {
  GameSession saved = TwoFilledRaces();
  saved.Player(2)[PlayerField::RadImmune] = FieldValue();
  GameSession loaded = TwoRaces();
  ApplyEmpireData(*EmpireDataText(saved), loaded);
  EXPECT_EQ(loaded.PlayerTable, saved.PlayerTable);
}

TEST(EmpireData, SaysWhoseTextTheFileCannotKeep) {
  GameSession session = TwoRaces();
  session.Player(2)[PlayerField::NotesText] = "They call us\n\"the herd\", still";
  EXPECT_EQ(EmpireDataText(session).Message(),
            "Nothing was saved. Rabbitoid, Inc: A double quote cannot be saved, please remove it "
            "from: \"the herd\", still");
}

TEST(EmpireData, LeavesOutRacesWhoseNamesTheFileCannotKeepAndNamesThem) {
  GameSession saved = TwoFilledRaces();
  GameSession loaded = TwoRaces();
  EXPECT_EQ(SavedRacesMessage("Saved", saved), "Saved");
  saved.Player(1)[PlayerField::Name] = "The \"Herd\"";
  saved.Player(1)[PlayerField::NotesText] = "\"";
  ApplyEmpireData(*EmpireDataText(saved), loaded);
  EXPECT_TRUE(loaded.Player(1)[PlayerField::GravMin].IsEmpty());
  EXPECT_EQ(loaded.Player(2), saved.Player(2));
  EXPECT_EQ(SavedRacesMessage("Saved", saved),
            "Saved\n\nLeft out, because a double quote in a name cannot be saved: The \"Herd\"");
}

TEST(EmpireData, GoesToTheLastPlayerOfItsNameUnlessCutShort) {
  GameSession saved = TwoFilledRaces();
  saved.Player(1)[PlayerField::Name] = "Somebody else";
  const std::string text = *EmpireDataText(saved);
  GameSession loaded = TwoRaces();
  loaded.Player(1)[PlayerField::Name] = loaded.Player(2).Name();
  ApplyEmpireData(text, loaded);
  EXPECT_TRUE(loaded.Player(1)[PlayerField::GravMin].IsEmpty());
  EXPECT_EQ(loaded.Player(2)[PlayerField::GravMin], FieldValue(208));

  for (std::size_t length = 0; length + 30 < text.size(); ++length) {
    GameSession cut = TwoRaces();
    ApplyEmpireData(text.substr(0, length), cut);
    EXPECT_TRUE(cut.Player(2)[PlayerField::GravMin].IsEmpty()) << length << " bytes";
  }
}

}  // namespace
}  // namespace quorvane

#include "formats/empire_data_file.h"

#include <array>
#include <cstddef>

#include "files/files.h"
#include "model/data_items.h"
#include "model/text.h"

namespace quorvane {
namespace {

// The fields behind the name, in the order of the file: six range limits, then immunities, traits
// and notes. The fields between them are computed anew by every load.
constexpr std::array<std::size_t, 25> kStoredFields = {8,  9,  10, 11, 12, 13, 19, 20, 21,
                                                       22, 23, 24, 25, 26, 27, 28, 29, 30,
                                                       31, 32, 33, 34, 35, 36, 37};

PlayerRecord* LastPlayerNamed(GameSession& session, std::string_view name) {
  for (int player = session.PlayerCount; player > 0; --player) {
    if (session.Player(player).Name() == name) return &session.Player(player);
  }
  return nullptr;
}

Result<std::string> RecordText(const PlayerRecord& player) {
  DataItemWriter writer;
  writer.Text(player.Name()).EndRecord();
  for (const std::size_t field : kStoredFields) writer.Field(player.Field(field)).EndRecord();
  return writer.Finish();
}

}  // namespace

void ApplyEmpireData(std::string_view text, GameSession& session) {
  DataItemReader reader(text);
  while (!reader.AtEnd()) {
    const std::string name = reader.ReadText();
    std::array<FieldValue, kStoredFields.size()> items;
    for (FieldValue& item : items) {
      if (reader.IsExhausted()) return;  // a record cut short: what it says is not known whole
      item = reader.ReadField();
    }
    PlayerRecord* player = LastPlayerNamed(session, name);
    for (std::size_t i = 0; player != nullptr && i < items.size(); ++i) {
      player->Field(kStoredFields.at(i)) = items.at(i);
    }
  }
}

Result<std::string> EmpireDataText(const GameSession& session) {
  std::string text;
  for (const PlayerRecord& player : session.Players()) {
    if (!IsItemText(player.Name())) continue;
    const Result<std::string> record = RecordText(player);
    if (!record) return Failure{"Nothing was saved. " + player.Name() + ": " + record.Message()};
    text += *record;
  }
  return text;
}

std::string SavedRacesMessage(std::string saved, const GameSession& session) {
  std::string names;
  for (const PlayerRecord& player : session.Players()) {
    const std::string& name = player.Name();
    if (!IsItemText(name)) names += (names.empty() ? "" : ", ") + Excerpt(name);
  }
  if (names.empty()) return saved;
  return saved + "\n\nLeft out, because a double quote in a name cannot be saved: " + names;
}

Result<void> ReadEmpireDataFile(GameSession& session) {
  const Result<std::string> text = ReadOptionalTextFile(session.EmpireDataFilePath);
  if (!text) return text.Error();
  ApplyEmpireData(*text, session);
  return {};
}

Result<void> WriteEmpireDataFile(const GameSession& session) {
  return SaveText(session.EmpireDataFilePath, EmpireDataText(session));
}

}  // namespace quorvane

#include "formats/race_colour_file.h"

#include <algorithm>
#include <array>
#include <optional>

#include "files/files.h"
#include "model/data_items.h"

namespace quorvane {
namespace {

struct ColourRecord {
  std::string Name;
  int Slot = 0;
  Colour SlotColour;
};

std::optional<int> ReadWithin(DataItemReader& reader, int lowest, int highest) {
  const std::optional<double> number = WholeTextNumber(reader.ReadNumberText());
  if (!number || *number < lowest || *number > highest) return std::nullopt;
  return static_cast<int>(*number);
}

// Reads a record whole, so that the next one starts where it should even if this one is unusable.
std::optional<ColourRecord> ReadRecord(DataItemReader& reader) {
  ColourRecord record{.Name = reader.ReadText()};
  const auto slot = ReadWithin(reader, 1, static_cast<int>(kColourSlots));
  const auto red = ReadWithin(reader, 0, 255);
  const auto green = ReadWithin(reader, 0, 255);
  const auto blue = ReadWithin(reader, 0, 255);
  if (!slot || !red || !green || !blue) return std::nullopt;
  record.Slot = *slot;
  record.SlotColour = {*red, *green, *blue};
  return record;
}

using SlotMarks = std::array<bool, kColourSlots + 1>;

SlotMarks SlotsHeld(const GameSession& session) {
  SlotMarks isHeld = {};
  for (const PlayerRecord& player : session.Players()) {
    isHeld.at(static_cast<std::size_t>(player.ColourSlot())) = true;
  }
  return isHeld;
}

int LowestFree(const SlotMarks& isUsed) {
  const auto free = std::find(isUsed.begin() + 1, isUsed.end(), false);
  return free != isUsed.end() ? static_cast<int>(free - isUsed.begin()) : 0;
}

// Players without a slot get the lowest free one. In a file that names a race twice, a slot that
// the race gave up counts as used, until no other is left.
void FillFreeSlots(GameSession& session, SlotMarks isUsed) {
  for (PlayerRecord& player : session.Players()) {
    FieldValue& slot = player[PlayerField::ColourSlot];
    if (slot.Number() != 0) continue;
    if (LowestFree(isUsed) == 0) isUsed = SlotsHeld(session);
    slot = LowestFree(isUsed);
    isUsed.at(static_cast<std::size_t>(slot.Number())) = true;
  }
}

}  // namespace

void ApplyRaceColours(std::string_view text, GameSession& session) {
  for (int player = 1; player <= kMaxPlayers; ++player) {
    session.Player(player)[PlayerField::ColourSlot] = 0;
  }
  SlotMarks isUsed = {};
  DataItemReader reader(text);
  while (!reader.AtEnd()) {
    const std::optional<ColourRecord> record = ReadRecord(reader);
    if (!record) continue;
    const auto slot = static_cast<std::size_t>(record->Slot);
    session.RaceColours.at(slot - 1) = record->SlotColour;
    if (const int player = session.FindPlayerByName(record->Name); player > 0) {
      session.Player(player)[PlayerField::ColourSlot] = record->Slot;
      isUsed.at(slot) = true;
    }
  }
  FillFreeSlots(session, isUsed);
}

Result<std::string> RaceColoursText(const GameSession& session) {
  DataItemWriter writer;
  for (int number = 1; number <= session.PlayerCount; ++number) {
    const PlayerRecord& player = session.Player(number);
    const Colour* colour = session.ColourOf(number);
    if (colour == nullptr || !IsItemText(player.Name())) continue;
    writer.Text(player.Name()).Number(player.ColourSlot());
    writer.Number(colour->Red).Number(colour->Green).Number(colour->Blue).EndRecord();
  }
  return writer.Finish();
}

Result<void> ReadRaceColourFile(GameSession& session) {
  if (!FindFile(session.RaceColourFilePath)) return {};
  const Result<std::string> text = ReadOptionalTextFile(session.RaceColourFilePath);
  if (!text) return text.Error();
  ApplyRaceColours(*text, session);
  return {};
}

Result<void> WriteRaceColourFile(const GameSession& session) {
  return SaveText(session.RaceColourFilePath, RaceColoursText(session));
}

}  // namespace quorvane

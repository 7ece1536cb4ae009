#include "generator/companion_writer.h"

#include <algorithm>
#include <cstddef>

#include "generator/planet_state.h"
#include "model/data_items.h"
#include "model/game_choice.h"
#include "model/race_colours.h"

namespace quorvane::generator {
namespace {

constexpr Colour kColours[kMaxPlayers] = {
    {90, 180, 255},  {255, 165, 50},  {60, 215, 140},  {245, 95, 95},
    {190, 130, 255}, {245, 225, 90},  {255, 140, 200}, {130, 215, 60},
    {90, 120, 255},  {255, 195, 145}, {60, 210, 220},  {205, 80, 170},
    {175, 190, 110}, {185, 205, 255}, {215, 115, 50},  {150, 255, 205}};

constexpr const char* kNotes[] = {"Trades reports with us every other year.",
                                  "Treaty since 2431: no gates within 100 ly of the border.",
                                  "Probably at war with a neighbour. Watch the rim.",
                                  "Known from scouts only. Ranges are a guess.",
                                  "Builds freighters, hardly any warships so far."};

// The drawing tools' colours by number.
enum class Pen { White = 1, Red, Green, Blue, Yellow, Cyan, Magenta };

// Every text here comes from this generator's own lists, none of which holds a double quote.
std::string Finished(const DataItemWriter& writer) { return *writer.Finish(); }

std::string Joined(const std::string& first, const std::vector<int>& numbers, Pen pen) {
  std::string record = first;
  for (const int number : numbers) record.append(",").append(std::to_string(number));
  return record + "," + std::to_string(static_cast<int>(pen)) + "\r\n";
}

std::string Line(const Planet& from, const Planet& to, Pen pen) {
  return Joined("L", {from.X, from.Y, to.X, to.Y}, pen);
}

std::string Circle(const Planet& around, int radius, Pen pen) {
  return Joined("C", {around.X, around.Y, radius}, pen);
}

std::string Label(const Planet& beside, const std::string& text, int size, Pen pen) {
  const std::string place = std::to_string(beside.X + 12) + "," + std::to_string(beside.Y + 12);
  return Joined("T," + place + "," + text, {size}, pen);
}

std::vector<const Planet*> OwnGates(const Universe& universe, int ownRace) {
  std::vector<const Planet*> gates;
  for (const Planet& planet : universe.Planets) {
    const bool isOwn = planet.OwnerIn(universe.Year) == ownRace;
    if (isOwn && StateIn(universe, planet, universe.Year).Stargate.Range != 0) {
      gates.push_back(&planet);
    }
  }
  return gates;
}

// The planets that the own race lost or took since the last few years: that is where the front is.
std::vector<const Planet*> Battlefields(const Universe& universe, int ownRace) {
  std::vector<const Planet*> fields;
  for (const Planet& planet : universe.Planets) {
    const bool isFoughtOver = std::ranges::any_of(
        planet.History, [&](const Tenure& tenure) { return tenure.Race == ownRace; });
    if (isFoughtOver && planet.History.size() > 1) fields.push_back(&planet);
  }
  return fields;
}

}  // namespace

std::string YearsText(const std::vector<int>& reportYears) {
  DataItemWriter writer;
  for (std::size_t row = 0; row < kMaxPlayers; ++row) {
    const bool hasReport = row < reportYears.size();
    writer.Text(hasReport ? std::to_string(reportYears[row]) : "").EndRecord();
  }
  return Finished(writer);
}

std::string RememberedRaceText(int ownSlot) {
  DataItemWriter writer;
  writer.Number(ownSlot).EndRecord();
  return Finished(writer);
}

std::string RaceColoursText(const Universe& universe) {
  DataItemWriter writer;
  for (std::size_t i = 0; i < universe.Races.size(); ++i) {
    const Colour& colour = kColours[i];
    writer.Text(universe.Races[i].Name).Number(static_cast<double>(i + 1));
    writer.Number(colour.Red).Number(colour.Green).Number(colour.Blue).EndRecord();
  }
  return Finished(writer);
}

std::string EmpireDataText(const Universe& universe, int ownRace) {
  DataItemWriter writer;
  const auto number = [&](double value) { writer.Number(value).EndRecord(); };
  for (std::size_t i = 0; i < universe.Races.size(); ++i) {
    const Race& race = universe.Races[i];
    const auto& [gravity, temperature, radiation] = race.Ranges;
    writer.Text(race.Name).EndRecord();
    number(HundredthsOfG(gravity.Low) / 100.0);
    number(HundredthsOfG(gravity.High) / 100.0);
    number(Degrees(temperature.Low));
    number(Degrees(temperature.High));
    number(radiation.Low);
    number(radiation.High);
    for (const HabRange& range : race.Ranges) number(range.IsImmune ? 1 : 0);
    writer.Text(race.PrimaryTrait).EndRecord();
    for (const bool trait : race.LesserTraits) number(trait ? 1 : 0);
    const bool isOwn = static_cast<int>(i) == ownRace;
    writer.Text(isOwn ? "That is us." : kNotes[i % std::size(kNotes)]).EndRecord();
  }
  return Finished(writer);
}

std::string DrawingText(const Universe& universe, int ownRace) {
  std::string text;
  for (const Planet& planet : universe.Planets) {
    if (!planet.IsHomeWorld) continue;
    const int race = planet.History.front().Race;
    const Pen pen = race == ownRace ? Pen::Green : Pen::Cyan;
    text += Circle(planet, 30, pen);
    text += Label(planet, universe.Races[static_cast<std::size_t>(race)].Name, 10, pen);
  }
  const std::vector<const Planet*> gates = OwnGates(universe, ownRace);
  for (std::size_t i = 1; i < gates.size(); ++i) {
    text += Line(*gates[i - 1], *gates[i], Pen::Yellow);
  }
  for (const Planet* field : Battlefields(universe, ownRace)) {
    text += Circle(*field, 15, Pen::Red);
    const Tenure& latest = field->History.back();
    const std::string event = latest.Race < 0 ? "left " : "taken ";
    text += Label(*field, event + std::to_string(latest.Year), 8, Pen::Red);
  }
  return text;
}

}  // namespace quorvane::generator

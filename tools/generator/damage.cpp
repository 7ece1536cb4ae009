#include "generator/damage.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace quorvane::generator {
namespace {

// What players' tools, other versions of the game and broken disks put into a field, between bars.
constexpr std::string_view kOddFields =
    "|0|-1| 0|-1 |  -1|-1x|Unknown|None|2|0.5|120|-3|x|3 years|1e2|&H10|45%|-0|999|1e9|-1e300|1e400"
    "|\"|a,b|\"q\"|12.%|-5%|-500%|97.92%|Space Dock|Death Star|Orbital Fort|250001|250 "
    "|Uninhabited";
// Name, owner, starbase, age, population, defences, mining, resources and gate.
constexpr std::size_t kDecidingFields[] = {0, 1, 2, 3, 4, 9, 13, 15, 19, 33, 34};

struct OddField {
  std::size_t Field = 0;
  std::string_view Text;
};

// Odd content that only shows when two fields have it.
constexpr std::array<OddField, 2> kOddPairs[] = {
    {{{2, "Death Star"}, {4, "0"}}}, {{{2, "Starter Colony"}, {4, "0"}}},
    {{{2, "Space Dock"}, {4, "0"}}}, {{{2, "Ultra Station"}, {4, " 0"}}},
    {{{4, "9000"}, {9, "-5%"}}},     {{{4, "9000"}, {9, "-90%"}}},
    {{{1, ""}, {9, "-400%"}}},       {{{33, "-1"}, {34, "-1"}}},
    {{{33, "-1x"}, {34, "-1 kT"}}},  {{{33, "20000"}, {34, "Unknown"}}},
    {{{3, "0.5"}, {19, "0"}}},       {{{3, "Unknown"}, {5, "-0%"}}}};
constexpr std::string_view kOddBytes[] = {"\t", "\t\t\t", ",",    "\"",   "%",        " ",
                                          "\r", "\n",     "\n\n", "\xBA", "\xC3\xA9", "-"};
constexpr std::string_view kOddHeadings[] = {"Planet,",    "\"Planet\tName\"", "",
                                             "\"a, b\",c", "  Planet",         "A,B,C,D"};
std::vector<std::string> SplitAt(std::string_view text, char separator) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == separator) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

std::string Join(const std::vector<std::string>& parts, std::string_view separator) {
  std::string text = parts.front();
  for (std::size_t i = 1; i < parts.size(); ++i) text.append(separator).append(parts[i]);
  return text;
}

// A line that is too short for the field becomes long enough.
void SetField(std::string& line, const OddField& odd) {
  std::vector<std::string> fields = SplitAt(line, '\t');
  fields.resize(std::max(fields.size(), odd.Field + 2));
  fields[odd.Field] = odd.Text;
  line = Join(fields, "\t");
}

void DamageLine(std::vector<std::string>& lines, std::size_t at, Random& random) {
  static const std::vector<std::string> oddFields = SplitAt(kOddFields, '|');
  std::string& line = lines[at];
  const auto place = static_cast<std::size_t>(random.Between(0, static_cast<int>(line.size())));
  switch (random.Between(0, 9)) {
    case 0:
      line.resize(place);
      break;
    case 1:
      line.insert(place, random.OneOf(kOddBytes));
      break;
    case 2:
      lines.push_back(line);
      break;
    case 3:
      line.append(static_cast<std::size_t>(random.Between(1, 20)), '\t').append("7\t8%");
      break;
    case 4:
      line = " " + random.OneOf(lines);
      break;
    case 5:
      if (place < line.size()) line[place] = static_cast<char>(random.Between(1, 255));
      break;
    case 6:
      line.insert(place, random.Chance(50) ? ",\"" : "\r\n\"").insert(0, "\"");
      break;
    case 7:
      for (const OddField& odd : random.OneOf(kOddPairs)) SetField(line, odd);
      break;
    default:
      SetField(line, {random.OneOf(kDecidingFields), random.OneOf(oddFields)});
  }
}

}  // namespace

std::string DamagedReport(const std::string& report, int percent, Random& random) {
  std::vector<std::string> lines = SplitAt(report, '\n');
  for (std::string& line : lines) {
    if (line.ends_with('\r')) line.pop_back();
  }
  lines.pop_back();
  if (random.Chance(percent)) {
    lines.front() = std::string(random.OneOf(kOddHeadings)) + lines.back();
    lines.pop_back();
  }
  for (std::size_t at = lines.size(); at-- > 1;) {
    while (random.Chance(percent)) DamageLine(lines, at, random);
  }
  constexpr std::string_view kLineEnds[] = {"\r\n", "\n"};
  const std::string text = Join(lines, random.OneOf(kLineEnds));
  return random.Chance(80) ? text + "\r\n" : text;
}

std::string WithOddNames(const std::string& map, Random& random) {
  std::vector<std::string> lines = SplitAt(map, '\n');
  constexpr std::string_view kOddNames[] = {"Unknown", "\" \"", "007"};
  std::string lastName = "None";
  for (std::size_t at = 1; at + 1 < lines.size(); ++at) {
    std::vector<std::string> fields = SplitAt(lines[at], '\t');
    std::string& name = fields.back();
    name.pop_back();  // CR
    if (random.Chance(5)) name = lastName;
    lastName = name;
    if (random.Chance(5)) name = "\"  " + name + " \"";
    if (random.Chance(5)) name = random.OneOf(kOddNames);
    lines[at] = Join(fields, "\t") + "\r";
  }
  return Join(lines, "\n");
}

}  // namespace quorvane::generator

#include "generator/report_row.h"

#include <span>
#include <string_view>

namespace quorvane::generator {
namespace {

constexpr std::string_view kHeadings[kNewColumns] = {
    "Planet Name",      "Owner",     "Starbase Type", "Report Age", "Population", "Value",
    "Production Queue", "Mines",     "Factories",     "Def %",      "S Iron",     "S Bora",
    "S Germ",           "Iron MR",   "Bora MR",       "Germ MR",    "Iron MC",    "Bora MC",
    "Germ MC",          "Resources", "Grav",          "Temp",       "Rad",        "GravOrig",
    "TempOrig",         "RadOrig",   "Terra",         "Cap",        "Scan",       "Pen",
    "Driver",           "Warp",      "Route",         "GateRange",  "GateMass",   "PctDmg"};

template <typename Text>
std::string Joined(std::span<const Text> fields) {
  std::string line;
  for (const Text& field : fields) {
    if (&field != fields.data()) line += '\t';
    line += field;
  }
  return line + "\r\n";
}

}  // namespace

std::string ReportRow::Text(std::size_t columns) const {
  return Joined(std::span<const std::string>(fields_).first(columns));
}

std::string HeadingLine(std::size_t columns) {
  return Joined(std::span<const std::string_view>(kHeadings).first(columns));
}

}  // namespace quorvane::generator

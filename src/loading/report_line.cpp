#include "loading/report_line.h"

#include "model/planet_record.h"

namespace quorvane {
namespace {

// The fields that the game fills up behind a closing percentage.
constexpr std::size_t kClosingFields = 8;
constexpr std::size_t kFirstGateField = 30;

// What an empty field means.
std::string_view StandInFor(std::size_t field) {
  switch (field) {
    case 1:
      return "";  // no owner
    case 2:
      return kNoStarbase;
    case 4:
      return "Uninhabited";
    default:
      return field >= kFirstGateField ? "0" : kUnknown;
  }
}

}  // namespace

ReportLine::ReportLine(std::string_view line) {
  std::string_view rest = line;
  for (std::size_t tab; (tab = rest.find('\t')) != rest.npos; rest.remove_prefix(tab + 1)) {
    Add(rest.substr(0, tab));
  }
  // Text behind the last TAB is no field. But the game writes no TAB behind the percentage that
  // ends the line of an empty planet, and leaves out the zeros that would follow it.
  if (!line.ends_with('%')) return;
  Add(rest);
  for (std::size_t i = 0; i < kClosingFields; ++i) Add("0");
}

FieldValue ReportLine::Value(std::size_t field) const {
  if (field >= count_) return {};
  return fields_[field];
}

bool ReportLine::ReadsAs(std::size_t field, double number) const {
  if (field >= count_) return number == 0;
  return WholeTextNumber(fields_[field]) == number;
}

std::optional<double> ReportLine::Age() const {
  const auto field = static_cast<std::size_t>(ReportField::Age);
  return field < count_ ? WholeTextNumber(fields_[field]) : 0.0;
}

void ReportLine::Add(std::string_view text) {
  if (count_ == kReportFields) return;
  fields_[count_] = text.empty() ? StandInFor(count_) : text;
  ++count_;
}

}  // namespace quorvane

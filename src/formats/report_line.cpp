#include "formats/report_line.h"

#include <algorithm>

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

// Half a million fields pass here in a load, and where they end is as good as random: counting
// without a branch is three times quicker than acting on every TAB.
ReportLine::ReportLine(std::string_view line) : line_(line) {
  std::size_t split = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    ends_[split] = i;
    const bool isEnd = line[i] == '\t';
    const bool isWanted = split < kReportFields;
    split += static_cast<std::size_t>(isEnd & isWanted);
  }
  splitCount_ = split;
  count_ = split;
  // Text behind the last TAB is no field. But the game writes no TAB behind the percentage that
  // ends the line of an empty planet, and leaves out the zeros that would follow it.
  if (!line.ends_with('%') || splitCount_ == kReportFields) return;
  ends_[splitCount_++] = line.size();
  count_ = std::min(splitCount_ + kClosingFields, kReportFields);
}

std::string_view ReportLine::Text(std::size_t field) const {
  if (field >= count_) return {};
  if (field >= splitCount_) return "0";
  const std::size_t start = field > 0 ? ends_[field - 1] + 1 : 0;
  return ends_[field] > start ? line_.substr(start, ends_[field] - start) : StandInFor(field);
}

std::string_view ReportLine::Written(ReportField field) const {
  const auto number = static_cast<std::size_t>(field);
  if (number > splitCount_) return {};
  const std::size_t start = number > 0 ? ends_[number - 1] + 1 : 0;
  if (start > line_.size()) return {};
  const std::size_t end = number < splitCount_ ? ends_[number] : line_.size();
  return line_.substr(start, end - start);
}

void ReportLine::CopyTo(FieldValue& target, std::size_t field) const {
  if (field < count_) {
    target.SetText(Text(field));
  } else {
    target = FieldValue();
  }
}

bool ReportLine::ReadsAs(std::size_t field, double number) const {
  return field < count_ ? WholeTextNumber(Text(field)) == number : number == 0;
}

std::optional<double> ReportLine::Age() const {
  const auto field = static_cast<std::size_t>(ReportField::Age);
  return field < count_ ? WholeTextNumber(Text(field)) : 0.0;
}

}  // namespace quorvane

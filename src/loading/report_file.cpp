#include "loading/report_file.h"

#include "model/data_items.h"
#include "model/text.h"

namespace quorvane {
namespace {

// What follows the heading when that is read as one data item.
std::string_view BehindHeading(std::string_view text) {
  DataItemReader reader(text);
  reader.ReadText();
  return reader.Rest();
}

size_t CountLines(std::string_view rest) {
  size_t count = 0;
  for (; !rest.empty(); ++count) TakeLine(rest);
  return count;
}

}  // namespace

std::vector<std::string> OwnReportLines(std::string_view text) {
  std::vector<std::string> lines;
  for (std::string_view rest = BehindHeading(text); !rest.empty();) {
    lines.emplace_back(TakeLine(rest));
  }
  return lines;
}

std::vector<std::string> OtherReportLines(std::string_view text) {
  const size_t count = CountLines(BehindHeading(text));
  DataItemReader reader(text);
  reader.ReadWholeLine();
  std::vector<std::string> lines;
  lines.reserve(count);
  while (lines.size() < count && !reader.IsExhausted()) lines.push_back(reader.ReadLineItem());
  return lines;
}

}  // namespace quorvane

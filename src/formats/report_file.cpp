#include "formats/report_file.h"

#include <cstddef>
#include <string>

#include "model/data_items.h"
#include "model/text.h"

namespace quorvane {
namespace {

// What follows the heading when that is read as one data item.
std::string_view BehindHeading(std::string_view text) {
  DataItemReader reader(text);
  std::string heading;
  reader.ReadLineItem(heading);
  return reader.Rest();
}

}  // namespace

std::vector<std::string_view> OwnReportLines(std::string_view text) {
  std::vector<std::string_view> lines;
  std::string_view rest = BehindHeading(BeforeEndOfFile(text));
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    if (!line.empty()) lines.push_back(line);
  }
  return lines;
}

std::vector<std::string_view> OtherReportLines(std::string_view text,
                                               std::deque<std::string>& unquoted) {
  text = BeforeEndOfFile(text);
  std::vector<std::string_view> lines;
  DataItemReader reader(text);
  reader.ReadWholeLine();
  std::string own;
  for (std::size_t left = CountLines(BehindHeading(text)); left > 0 && !reader.IsExhausted();
       --left) {
    const std::string_view line = reader.ReadLineItem(own);
    if (line.empty()) continue;
    const bool isInText = line.data() != own.data();
    lines.push_back(isInText ? line : unquoted.emplace_back(line));
  }
  return lines;
}

}  // namespace quorvane

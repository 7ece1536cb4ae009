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

void ForEachOwnReportLine(std::string_view text, const VisitReportLine& visit) {
  std::string_view rest = BehindHeading(BeforeEndOfFile(text));
  while (!rest.empty()) visit(TakeLine(rest));
}

void ForEachOtherReportLine(std::string_view text, const VisitReportLine& visit) {
  text = BeforeEndOfFile(text);
  DataItemReader reader(text);
  reader.ReadWholeLine();
  std::string unquoted;
  for (std::size_t left = CountLines(BehindHeading(text)); left > 0 && !reader.IsExhausted();
       --left) {
    visit(reader.ReadLineItem(unquoted));
  }
}

}  // namespace quorvane

#include "loading/report_line.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "loading/report_file.h"

namespace quorvane {
namespace {

TEST(ReportLine, GivesEmptyFieldsTheirStandIn) {
  const std::pair<std::size_t, const char*> cases[] = {
      {0, "Unknown"},  {1, ""},         {2, "None"}, {4, "Uninhabited"},
      {10, "Unknown"}, {29, "Unknown"}, {33, "0"}};
  const std::string tabs(40, '\t');
  const ReportLine line(tabs);
  EXPECT_EQ(line.Count(), kReportFields);
  for (const auto& [field, standIn] : cases) EXPECT_EQ(line.Text(field), standIn) << field;
}

TEST(ReportLine, HasNoMoreFieldsThanItMayAndReadsAMissingOneAsZero) {
  EXPECT_EQ(ReportLine(std::string(36, '\t') + "-4%").Count(), kReportFields);
  EXPECT_TRUE(ReportLine("Alpha\t").ReadsAs(ReportField::Population, 0));
}

using Lines = std::vector<std::string>;

template <typename ForEachLine>
Lines LinesOf(const ForEachLine& forEachLine, std::string_view text) {
  Lines lines;
  forEachLine(text, [&](std::string_view line) { lines.emplace_back(line); });
  return lines;
}

TEST(ReportLines, CountAHeadingWithACommaAsTheReportsReadIt) {
  const std::string_view text = "Name, Owner\r\na\t1\r\nb, c\t2\r\nd\t3";
  EXPECT_EQ(LinesOf(ForEachOwnReportLine, text), (Lines{" Owner", "a\t1", "b, c\t2", "d\t3"}));
  EXPECT_EQ(LinesOf(ForEachOtherReportLine, text), (Lines{"a\t1", "b", "c\t2", "d\t3"}));
  EXPECT_EQ(LinesOf(ForEachOtherReportLine, "Name\na\nb, c\nd\n"), (Lines{"a", "b", "c"}));
  EXPECT_TRUE(LinesOf(ForEachOwnReportLine, "Name").empty());
  EXPECT_TRUE(LinesOf(ForEachOtherReportLine, "").empty());
}

}  // namespace
}  // namespace quorvane

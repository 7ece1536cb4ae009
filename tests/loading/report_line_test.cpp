#include "loading/report_line.h"

#include <gtest/gtest.h>

#include <utility>

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

}  // namespace
}  // namespace quorvane

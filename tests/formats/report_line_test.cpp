#include "formats/report_line.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(ReportLine, HasNoMoreFieldsThanItMayAndTakesEmptyGatesAndMissingFieldsForZero) {
  const std::string tabs(36, '\t');
  EXPECT_EQ(ReportLine(tabs + "-4%").Count(), kReportFields);
  EXPECT_EQ(ReportLine(tabs).Text(29), "Unknown");
  EXPECT_EQ(ReportLine(tabs).Text(30), "0");
  EXPECT_TRUE(ReportLine("Alpha\t").ReadsAs(ReportField::Population, 0));
}

}  // namespace
}  // namespace quorvane

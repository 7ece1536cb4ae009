#include "screens/race_curves.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace quorvane {
namespace {

TEST(CurvesOf, CutsACurveWhereNothingIsKnown) {
  const std::vector<RaceYear> years = {{2400, "B", {1, 1, 1}, 1, 10}, {2400, "A", {2, 2, 2}, 2, 20},
                                       {2401, "A", {2, 2, 2}, 0, 30}, {2402, "A", {}, NAN},
                                       {2403, "A", {2, 2, 2}, 4, 40}, {2403, "B", {3, 3, 3}, 5, 50},
                                       {2404, "B", {4, 4, 4}, 4, 60}};
  const std::vector<RaceCurve> planets = {{"B", {4, 4, 4}, {{{2400, 1}}, {{2403, 5}, {2404, 4}}}},
                                          {"A", {2, 2, 2}, {{{2400, 2}, {2401, 0}}, {{2403, 4}}}}};
  EXPECT_EQ(CurvesOf(years, CurveKind::Planets), planets);
  using Values = std::vector<RaceValue>;
  const std::pair<int, Values> cases[] = {{2399, {}},
                                          {2400, {{"A", 20}, {"B", 10}}},
                                          {2401, {{"A", 30}}},
                                          {2402, {{"A", 0}}},
                                          {2403, {{"B", 50}, {"A", 40}}}};
  for (const auto& [year, values] : cases) {
    EXPECT_EQ(ValuesInYear(CurvesOf(years, CurveKind::Population), year), values) << year;
  }
}

TEST(CurvesCsv, NamesCannotLeaveTheirCellOrRun) {
  const std::pair<const char*, const char*> names[] = {{"Ab c'd", "Ab c'd"},
                                                       {"a,b", "\"a,b\""},
                                                       {"\"x\"", "\"\"\"x\"\"\""},
                                                       {"a\nb", "\"a\nb\""},
                                                       {"=1+1", "'=1+1"},
                                                       {"+A1", "'+A1"},
                                                       {"-A1", "'-A1"},
                                                       {"@A,1", "\"'@A,1\""},
                                                       {"\tA", "'\tA"},
                                                       {"\rA", "\"'\rA\""},
                                                       {"", ""},
                                                       {"A=1", "A=1"}};
  for (const auto& [name, cell] : names) {
    EXPECT_EQ(CurvesCsv({{2400, name, {}, 1, 1200000, 3, 4, 5, 0.25}}),
              "Year,Race,Planets,Population,Resources,Territory,Starbases,Minerals\r\n2400," +
                  std::string(cell) + ",1,1200000,3,4,5,0.25\r\n");
  }
}

TEST(RoundStep, IsRoundAndLeavesAtMostSoManyParts) {
  const std::tuple<double, int, double> cases[] = {
      {10, 10, 1}, {11, 10, 2}, {9, 2, 5}, {51, 10, 10}, {1234567, 5, 500000}, {0.3, 4, 0.1}};
  for (const auto& [range, parts, step] : cases) {
    EXPECT_DOUBLE_EQ(RoundStep(range, parts), step) << range;
  }
}

TEST(GroupedNumber, HasCommasBetweenThousands) {
  const std::pair<double, const char*> cases[] = {{0, "0"},
                                                  {999, "999"},
                                                  {1000, "1,000"},
                                                  {1234567.891, "1,234,567.89"},
                                                  {-123456, "-123,456"}};
  for (const auto& [number, text] : cases) EXPECT_EQ(GroupedNumber(number), text);
}

}  // namespace
}  // namespace quorvane

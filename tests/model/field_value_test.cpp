#include "model/field_value.h"

#include <gtest/gtest.h>

#include <limits>
#include <tuple>

#include "model/rounding.h"

namespace quorvane {
namespace {

TEST(NumericValue, ReadsTheNumberThatATextBeginsWith) {
  const std::pair<const char*, double> cases[] = {
      {"45%", 45},     {" 3", 3},         {"Unknown", 0},  {"", 0},        {"-92ºC", -92},
      {"1.12g", 1.12}, {"1 2\t3\n", 123}, {" - 4 2", -42}, {".5", 0.5},    {"-.5x", -0.5},
      {"5.", 5},       {".", 0},          {"+7", 7},       {"1e3", 1000},  {"1D-2", 0.01},
      {"1e", 1},       {"1e+", 1},        {"3M TA3", 3},   {"1.2.3", 1.2}, {"1,5", 1},
      {"&HfF", 255},   {"&O17", 15},      {"&O19", 1},     {"&H", 0},      {"-&H10", 0},
      {"--1", 0},      {"\r5", 0},        {"1e-999", 0}};
  for (const auto& [text, value] : cases) EXPECT_DOUBLE_EQ(NumericValue(text), value) << text;
  EXPECT_DOUBLE_EQ(NumericValue("999999999999999999999"), 1e21);
  EXPECT_LT(NumericValue("1e999"), std::numeric_limits<double>::infinity());
  const std::string zeros(400, '0');
  EXPECT_EQ(NumericValue("0." + zeros + "1"), 0);  // beyond a double without an exponent, too
  EXPECT_EQ(NumericValue("1" + zeros + "e-1"), NumericValue("1e999"));
  EXPECT_EQ(NumericValue("&H1" + zeros), NumericValue("1e999"));
  EXPECT_EQ(NumericValue("1e9223372036854775807"), NumericValue("1e999"));
}

TEST(FieldValue, ReadsAsANumberOnlyWhenTheWholeFieldIsThatNumber) {
  const std::tuple<FieldValue, double, bool> cases[] = {
      {"-1", -1, true}, {" 1", 1, true},  {"1.0", 1, true},        {"-1 kT", -1, false},
      {"0", 0, true},   {"", 0, false},   {FieldValue(), 0, true}, {"Uninhabited", 0, false},
      {0, 0, true},     {0.5, 0.5, true}, {"1st", 1, false}};
  for (const auto& [value, number, isThatNumber] : cases) {
    EXPECT_EQ(value.ReadsAs(number), isThatNumber) << FieldText(value) << " as " << number;
  }
}

TEST(FieldText, WritesTheShortestFormWithFifteenDigits) {
  const std::pair<FieldValue, const char*> cases[] = {
      {FieldValue(), ""}, {" as is ", " as is "}, {-40, "-40"}, {-0.5, "-0.5"},
      {0.1 + 0.2, "0.3"}, {1e-7, "0.0000001"},    {-0.0, "0"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(FieldText(value), text);
  EXPECT_EQ(FieldText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(FieldText(123456789012345678LL), "123456789012346000");
}

TEST(NumberTextWithLeadingBlank, PutsTheBlankWhereTheSignWouldBe) {
  EXPECT_EQ(NumberTextWithLeadingBlank(0), " 0");
  EXPECT_EQ(NumberTextWithLeadingBlank(-3), "-3");
}

TEST(Rounding, CutsWhatDoesNotFit) {
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(ToWhole16(32767.6), 32767);
  EXPECT_EQ(ToWhole16(-1e9), -32768);
  EXPECT_EQ(ToWhole32(1e300), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(FloorToWhole32(-infinity), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(FloorToWhole32(-0.5), -1);
  EXPECT_EQ(ToWhole32(infinity - infinity), 0);
}

}  // namespace
}  // namespace quorvane

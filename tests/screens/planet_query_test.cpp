#include "screens/planet_query.h"

#include <gtest/gtest.h>

#include "screens/planet_searches.h"

namespace quorvane {
namespace {

std::string Repeated(const std::string& text, std::size_t times) {
  std::string repeated;
  for (std::size_t i = 0; i < times; ++i) repeated += text;
  return repeated;
}

TEST(ParseQuery, ReadsEveryExample) {
  for (const SearchExample& example : SearchExamples()) {
    const auto parsed = ParseQuery(example.Query);
    const auto* fault = std::get_if<QueryFault>(&parsed);
    EXPECT_EQ(fault, nullptr) << example.Query << ": " << fault->Sentence;
  }
}

TEST(ParseQuery, ReadsNumbersAsTheyAreWritten) {
  const std::pair<const char*, double> cases[] = {
      {"100k", 100000}, {"1.1k", 1100}, {"50%", 50}, {"-13%", -13}, {"+.5", 0.5},
      {"2.5K", 2500},   {"0.12", 0.12}, {"007", 7},  {"5.", 5},     {"1k%", 1000}};
  for (const auto& [text, number] : cases) {
    const auto parsed = ParseQuery("pop > " + std::string(text));
    ASSERT_TRUE(std::holds_alternative<QueryNode>(parsed)) << text;
    EXPECT_EQ(std::get<QueryNode>(parsed).Number, number) << text;
  }
}

TEST(ParseQuery, MarksWhatIsWrongAndSaysWhy) {
  struct Case {
    std::string Text;
    std::string Marked;
    std::string Sentence;
  };
  const Case cases[] = {
      {"mine or", "", "Something to search for is missing at the end."},
      {"or mine", "or", "Something to search for is missing before \"or\"."},
      {"mine or and base", "and", "Something to search for is missing before \"and\"."},
      {"(mine", "(", "The bracket is not closed."},
      {"mine)", ")", "No bracket is open here."},
      {"( )", ")", "Something to search for is missing before the bracket."},
      {"\"old harrow", "\"old harrow", "The quotation mark is not closed."},
      {"pop>", ">", "A number is missing behind \">\"."},
      {"pop>many", "many", "\"many\" is no number such as 150, 100k or 50%."},
      {"pop>1e5", "1e5", "\"1e5\" is no number such as 150, 100k or 50%."},
      {"people>5", "people", "No value is called \"people\"."},
      {">5", ">", "A value such as pop is missing before \">\"."},
      {"race:drask", "race:", "Only owner: and base: have a colon."},
      {"owner:", "owner:", "The name of a race, or none, is missing behind owner:."},
      {"hab(Drask)", "Drask", "A comparison such as >=50 is missing behind hab(NAME)."},
      {"hab()>5", "hab(", "The name of a race is missing in hab(NAME)."},
      {"near(Kestrel)", "Kestrel", "A comma and light years are missing in near(NAME, N)."},
      {"near(Kestrel,", ",", "The light years are missing in near(NAME, N)."},
      {"near(Kestrel, 5 6)", "6", "The bracket of near(NAME, N) is to be closed here."},
      {"near (Kestrel, 5)", ",",
       "A comma stands only in near(NAME, N), with nothing before its bracket."},
      {"unknown(owner)", "owner", "No value is called \"owner\"."},
      {"müde:x mine", "müde:", "Only owner: and base: have a colon."}};
  for (const Case& wrong : cases) {
    const auto parsed = ParseQuery(wrong.Text);
    ASSERT_TRUE(std::holds_alternative<QueryFault>(parsed)) << wrong.Text;
    const auto& fault = std::get<QueryFault>(parsed);
    EXPECT_EQ(wrong.Text.substr(fault.Begin, fault.Length), wrong.Marked) << wrong.Text;
    EXPECT_EQ(fault.Sentence, wrong.Sentence) << wrong.Text;
  }
}

TEST(ParseQuery, HasLimits) {
  const auto isRead = [](const std::string& text) {
    return std::holds_alternative<QueryNode>(ParseQuery(text));
  };
  EXPECT_TRUE(isRead(Repeated("(", 100) + "mine" + Repeated(")", 100)));
  EXPECT_FALSE(isRead(Repeated("(", 101) + "mine" + Repeated(")", 101)));
  EXPECT_TRUE(isRead(Repeated("(mine) ", 200))) << "brackets beside each other";
  EXPECT_TRUE(isRead(Repeated("ü", 2000)));
  EXPECT_FALSE(isRead(Repeated("ü", 2001)));
  EXPECT_TRUE(isRead(Repeated("not ", 499) + "ab"));
}

}  // namespace
}  // namespace quorvane

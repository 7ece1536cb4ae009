#include "model/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quorvane {
namespace {

TEST(DecodeText, ReadsBytesThatAreNoUtf8AsWindows1252) {
  const std::pair<std::string, std::string> cases[] = {
      {"24 \xBA", "24 \xC2\xBA"},          // the game's degree sign
      {"\x9F \x81", "\xC5\xB8 \xC2\x81"},  // one that Windows-1252 moved, one it left open
      {"caf\xC3\xA9", "caf\xC3\xA9"},      // UTF-8 stays
      {"\xC3\xA9 \xE9", "\xC3\x83\xC2\xA9 \xC3\xA9"},  // one bad byte makes the whole text bytes
      {"\xEF\xBB\xBFmark", "mark"},
      {"\xC0\xAF", "\xC3\x80\xC2\xAF"},                  // overlong
      {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},  // surrogate
      {"cut \xE2\x82", "cut \xC3\xA2\xE2\x80\x9A"}};
  for (const auto& [bytes, text] : cases) EXPECT_EQ(DecodeText(bytes), text);
}

TEST(BeforeEndOfFile, TakesTheSignOnlyWhereAFileCanEnd) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\x1A b\r\n", "a\x1A b\r\n"}, {"a\r\n\x1A\r\nb", "a\r\n"}, {"a\n97%\x1A\x1A", "a\n97%"}};
  for (const auto& [text, before] : cases) EXPECT_EQ(BeforeEndOfFile(text), before);
}

TEST(TakeLine, KnowsBothLineEnds) {
  std::string_view rest = "a\r\nb\nc\rd\r\n\r\ne";
  EXPECT_EQ(CountLines(rest), 5U);
  for (const char* line : {"a", "b", "c\rd", "", "e"}) EXPECT_EQ(TakeLine(rest), line);
  EXPECT_TRUE(rest.empty());
  EXPECT_EQ(CountLines("a\n\n"), 2U);
}

TEST(Trimmed, DropsBlanksOnly) {
  EXPECT_EQ(Trimmed("  Alpha Prime "), "Alpha Prime");
  EXPECT_EQ(Trimmed("\t x "), "\t x");
  EXPECT_EQ(Trimmed("   "), "");
}

TEST(InLowerCase, KnowsAsciiAndTheAccentedCapitalsOfTheGame) {
  const std::pair<const char*, const char*> cases[] = {{"Alpha 9Z", "alpha 9z"},
                                                       {"ÀÉÖÞ", "àéöþ"},
                                                       {"ŠŽŒŸ", "šžœÿ"},
                                                       {"×÷ßÿ€", "×÷ßÿ€"},
                                                       {"cut \xC5", "cut \xC5"}};
  for (const auto& [text, lower] : cases) EXPECT_EQ(InLowerCase(text), lower);
}

TEST(IsBeforeInAlphabet, TellsCaseApartOnlyBetweenEqualNames) {
  std::vector<std::string> names = {"alpha.map", "Šar.map", "beta.map",
                                    "Zeta.map",  "šar.map", "Beta.map"};
  std::ranges::sort(names, IsBeforeInAlphabet);
  EXPECT_EQ(names, (std::vector<std::string>{"alpha.map", "Beta.map", "beta.map", "Zeta.map",
                                             "Šar.map", "šar.map"}));
}

TEST(Excerpt, NeverCutsThroughACharacter) {
  const std::string text = Excerpt(std::string(39, 'x') + "\xC2\xBA\xC2\xBA");
  EXPECT_EQ(text, std::string(39, 'x') + "...");
}

}  // namespace
}  // namespace quorvane

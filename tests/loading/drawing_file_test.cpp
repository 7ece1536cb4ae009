#include "loading/drawing_file.h"

#include <gtest/gtest.h>

#include <tuple>

namespace quorvane {
namespace {

TEST(DrawingLayer, IsNormalisedByReadingAndComesBackTheSame) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"as written",
       "L,1250,1730,1410,1650,2\r\nC,1300,1700,85,5\r\nT,1320,1690,Home fleet,12,1\r\n",
       "L,1250,1730,1410,1650,2\r\nC,1300,1700,85,5\r\nT,1320,1690,Home fleet,12,1\r\n"},
      {"blanks", "L , 1000 , 1000 , 1100 , 1100 , 3\n", "L,1000,1000,1100,1100,3\r\n"},
      {"halves", "T,1000.5,1001.5,x,10.5,1\n", "T,1000,1002,x,10,1\r\n"},
      {"quoted text", "T,1,2,\"a, b\",8,1\n", "T,1,2,\"a, b\",8,1\r\n"},
      {"needless quotes", "T,1,2,\"a\" ,8,1\n", "T,1,2,a,8,1\r\n"},
      {"blanks in quotes", "T,1,2,\" a\",8,1\nT,1,2,\"a\t\" ,8,1\nT,1,2,\"\",8,1\n",
       "T,1,2,\" a\",8,1\r\nT,1,2,\"a\t\",8,1\r\nT,1,2,,8,1\r\n"},
      {"a line break in quotes", "T,1,2,\"a\r\nb\",8,1\n", "T,1,2,\"a\r\nb\",8,1\r\n"},
      {"unknown kinds", "X,1,2\nl,1\n", ""},
      {"a colour nobody has", "C,1,2,3,99\n", "C,1,2,3,99\r\n"},
      {"cut short", "C,1,2,3,4\nL,1,2,3\n", "C,1,2,3,4\r\n"},
      {"cut before the colour", "C,1,2,3,", ""},
      {"empty", "", ""}};
  for (const auto& [what, file, layer] : cases) {
    const std::string text = DrawingLayerText(ParseDrawing(file));
    EXPECT_EQ(text, layer) << what;
    EXPECT_EQ(DrawingLayerText(ParseDrawing(text)), layer) << what;
  }
}

}  // namespace
}  // namespace quorvane

#include "formats/drawing_file.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/temp_folder.h"

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
    const std::string text = DrawingLayerText(*ParseDrawing(file, "Demo.QVL"));
    EXPECT_EQ(text, layer) << what;
    EXPECT_EQ(DrawingLayerText(*ParseDrawing(text, "Demo.QVL")), layer) << what;
  }
}

TEST(DrawingLayer, RefusesLongerRecordsThanAnyDrawingHas) {
  const std::string start = "C,1,2,3,4\r\nT,1,2,\"a\nb";
  const std::string end = "\",8,1\r\nC,1,2,3,4";
  const std::size_t most = 65536 - std::string("T,1,2,\"a\nb\",8,1").size();
  EXPECT_TRUE(ParseDrawing(start + std::string(most, 'x') + end, "Demo.QVL"));
  const std::string reason =
      "Demo.QVL, line 2: a drawing record ends within 64 KB, this one does not";
  EXPECT_EQ(ParseDrawing(start + std::string(most + 1, 'x') + end, "Demo.QVL").Message(), reason);
  EXPECT_EQ(ParseDrawing(start + std::string(70'000, '\n'), "Demo.QVL").Message(), reason);
  EXPECT_EQ(ParseDrawing("X\n" + std::string(70'000, ','), "Demo.QVL").Message(), reason);
}

TEST(WriteDrawingFile, WritesNothingThatCouldNotBeReadBack) {
  const TempFolder folder;
  GameSession session;
  session.DrawingFilePath = folder.Write("Demo.QVL", "old");
  const std::string message = WriteDrawingFile(session, std::string(70'000, 'x')).Message();
  EXPECT_TRUE(message.ends_with("this one does not; nothing was saved")) << message;
  EXPECT_EQ(folder.Read("Demo.QVL"), "old");
}

}  // namespace
}  // namespace quorvane

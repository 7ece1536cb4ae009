#include "model/data_items.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(DataItemReader, EndsEachItemWhereItsKindEnds) {
  DataItemReader reader(
      "  plain text , 12 13,\"quoted, with\r\nbreak\" ,\"\"\r\n.5,\r\n\"open to the end");
  EXPECT_EQ(reader.ReadText(), "plain text ");
  EXPECT_EQ(reader.ReadNumber(), 12);
  EXPECT_EQ(reader.ReadNumber(), 13);
  EXPECT_EQ(reader.ReadText(), "quoted, with\r\nbreak");
  EXPECT_EQ(reader.ReadField(), FieldValue(""));
  EXPECT_EQ(reader.ReadField(), FieldValue(0.5));
  EXPECT_EQ(reader.ReadField(), FieldValue());
  EXPECT_EQ(reader.ReadText(), "open to the end");
  EXPECT_TRUE(reader.IsExhausted());
}

TEST(DataItemWriter, QuotesTextsOnlyAndDropsTheZeroBeforeThePoint) {
  DataItemWriter writer;
  writer.Text("Two\r\nlines, one text").Number(-200).Number(0.12).Number(-0.5).EndRecord();
  writer.Field(FieldValue()).EndRecord();
  writer.Field("").Field(1.75).EndRecord();
  EXPECT_EQ(*writer.Finish(), "\"Two\r\nlines, one text\",-200,.12,-.5\r\n\r\n\"\",1.75\r\n");
}

}  // namespace
}  // namespace quorvane

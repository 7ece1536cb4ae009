#include "screens/table_text.h"

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(TableText, QuotesWhatWouldBeReadOtherwise) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"Kestrel", "Kestrel", "Kestrel"},
      {"", "", ""},
      {"a,b", "\"a,b\"", "a,b"},
      {"a\tb", "a\tb", "\"a\tb\""},
      {"say \"hi\"", "\"say \"\"hi\"\"\"", "\"say \"\"hi\"\"\""},
      {"two\r\nlines", "\"two\r\nlines\"", "\"two\r\nlines\""},
      {"-13", "-13", "-13"},
      {"+5.5", "+5.5", "+5.5"},
      {"-13%", "'-13%", "'-13%"},
      {"--- Queue is Empty ---", "'--- Queue is Empty ---", "'--- Queue is Empty ---"},
      {"@SUM(A1)", "'@SUM(A1)", "'@SUM(A1)"},
      {"=1+1", "'=1+1", "'=1+1"},
      {"=HYPERLINK(\"x\",1)", "\"'=HYPERLINK(\"\"x\"\",1)\"", "\"'=HYPERLINK(\"\"x\"\",1)\""}};
  for (const auto& [cell, csv, tsv] : cases) {
    EXPECT_EQ(TableText(',').Cell(cell).Text(), csv);
    EXPECT_EQ(TableText('\t').Cell(cell).Text(), tsv);
  }
  TableText table(',');
  table.Row({"a", "b"});
  table.Row({"c"});
  EXPECT_EQ(table.Text(), "a,b\r\nc\r\n");
}

}  // namespace
}  // namespace quorvane

#include <cstdio>

#include "files/files.h"
#include "screens/table_text.h"
#include "support/write_faults.h"
#include "ui/planets_fixture.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;
using Rows = std::vector<std::vector<std::string>>;

Rows SplitTable(const std::string& text) {
  constexpr char kCellEnd = '\x1F';
  constexpr char kRowEnd = '\x1E';
  Rows rows(1);
  std::string cell;
  for (const char byte : text) {
    if (byte == kCellEnd) {
      rows.back().push_back(std::exchange(cell, {}));
    } else if (byte == kRowEnd) {
      rows.emplace_back();
    } else {
      cell += byte;
    }
  }
  rows.pop_back();
  return rows;
}

// A table as another program's reader finds it.
Rows ReadByPython(const fs::path& file) {
  const bool isCsv = file.extension() == ".csv";
  const std::string command =
      "python3 -c \"\nimport csv, sys\n"
      "with open(sys.argv[1], encoding=sys.argv[2], newline='') as table:\n"
      "  for row in csv.reader(table, delimiter=sys.argv[3], strict=True):\n"
      "    line = ''.join(cell + '\\x1F' for cell in row) + '\\x1E'\n"
      "    sys.stdout.buffer.write(line.encode())\n"
      "\" '" +
      file.string() + "' " + (isCsv ? "utf-8-sig ," : "utf-8 '\t'");
  std::string text;
  FILE* pipe = popen(command.c_str(), "r");
  for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe)) {
    text += static_cast<char>(byte);
  }
  EXPECT_EQ(pclose(pipe), 0);
  return SplitTable(text);
}

TEST(TableText, ReadsBackWhateverItHolds) {
  const Rows rows = {{"Harrow, Old", "say \"hi\"", "two\r\nlines", "a\tb"},
                     {"Müller", "", " 5 years", "\"", "\n", "007"},
                     {"-13", "", "a'b"}};
  const TempFolder folder;
  for (const auto& [name, separator] : {std::pair("a.csv", ','), {"a.tsv", '\t'}}) {
    TableText table(separator);
    for (const auto& row : rows) table.Row(row);
    EXPECT_EQ(ReadByPython(folder.Write(name, table.Text())), rows) << name;
  }
}

class PlanetsExportTest : public PlanetsTest {
 protected:
  int Style() const override { return kNewReportStyle; }
};

TEST_F(PlanetsExportTest, WritesTheShownRowsAndColumns) {
  folder.Write("Demo.map",
               "#\tX\tY\tName\r\n1\t1050\t1300\tÖrn, \"East\"\r\n2\t1390\t1390\t=1+2\r\n");
  folder.Write("Demo.p1",
               "heading\r\nÖrn, \"East\"\t=HYPERLINK(\"http://x\",1)\t-Base\t0\t900000"
               "\t-3%\t" +
                   std::string(13, '\t') + "905\t\r\n");
  Start();
  ClickHeading("Name");
  ClickHeading("Name");
  Rows shown = {List().Headings()};
  for (const int planet : {1, 2}) {
    std::vector<std::string>& cells = shown.emplace_back();
    for (const std::string& heading : shown[0]) {
      std::string cell = List().Table().Rows[static_cast<std::size_t>(planet) - 1].Cells.at(
          static_cast<std::size_t>(ColumnOf(ColumnName({.Heading = heading}))));
      const bool isFormula = cell.starts_with('=') || cell.starts_with("-B");
      cells.push_back((isFormula ? "'" : "") + cell);
    }
  }
  shown[0].back() = List().Headings().back();
  EXPECT_EQ(PlanetAt(0), 1);
  for (const char* name : {"found.csv", "found.TSV"}) {
    prompts.AnswerSaveFile(folder / name);
    driver->Click("PlanetsExport");
    fs::path file = folder / name;
    if (name[6] == 'T') fs::rename(file, folder / "found.tsv"), file = folder / "found.tsv";
    Rows read = ReadByPython(file);
    for (std::string& heading : read[0]) {
      if (heading.starts_with("'=")) heading.erase(0, 1);  // of the race
    }
    EXPECT_EQ(read, shown) << name;
  }
  EXPECT_EQ(prompts.Shown().back(), "Export Planets [Demo Planets 2450.csv].tsv");
}

TEST_F(PlanetsExportTest, AFullDiskLeavesTheOldFileAndNoOther) {
  const fs::path file = folder.Write("found.csv", "old");
  const auto files = FilesNamedLike(folder.Path(), "", "");
  prompts.AnswerSaveFile(file);
  {
    const FullDisk full(1000);
    driver->Click("PlanetsExport");
  }
  EXPECT_TRUE(prompts.Shown().back().starts_with(TextFromPath(file) + ": "));
  EXPECT_EQ(folder.Read("found.csv"), "old");
  EXPECT_EQ(FilesNamedLike(folder.Path(), "", ""), files);
}

}  // namespace
}  // namespace quorvane

#include "screens/table_text.h"

#include "model/field_value.h"
#include "model/text.h"

namespace quorvane {
namespace {

bool IsFormula(std::string_view text) {
  constexpr std::string_view kFormulaStarts = "=+-@\t\r";
  return text.find_first_of(kFormulaStarts) == 0 && !WholeTextNumber(text);
}

}  // namespace

TableText& TableText::Cell(std::string_view text) {
  if (isRowBegun_) text_ += separator_;
  isRowBegun_ = true;
  const std::string_view apostrophe = IsFormula(text) ? "'" : "";
  if (text.find_first_of(std::string("\"\r\n") + separator_) == text.npos) {
    text_.append(apostrophe).append(text);
    return *this;
  }
  text_.append("\"").append(apostrophe);
  for (const char character : text) text_.append(character == '"' ? 2 : 1, character);
  text_ += '"';
  return *this;
}

void TableText::EndRow() {
  text_ += "\r\n";
  isRowBegun_ = false;
}

void TableText::Row(const std::vector<std::string>& cells) {
  for (const std::string& cell : cells) Cell(cell);
  EndRow();
}

std::string TableFileText(std::string_view extension, const std::vector<std::string>& headings,
                          const std::vector<std::vector<std::string>>& rows) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  const bool isTsv = EqualIgnoringCase(extension, ".tsv");
  TableText table(isTsv ? '\t' : ',');
  table.Row(headings);
  for (const std::vector<std::string>& row : rows) table.Row(row);
  return std::string(isTsv ? "" : kByteOrderMark) + table.Text();
}

}  // namespace quorvane

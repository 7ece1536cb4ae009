#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvane {

/// Writes a table for other programs: cells with a separator between them, CR LF behind each row. A
/// cell that holds the separator, a double quote or a line end stands in quotes, as RFC 4180 has
/// it. Names come from other people, so a cell that a spreadsheet would take for a formula gets an
/// apostrophe; numbers are none.
class TableText {
 public:
  /// @param separator  a comma for CSV, a TAB for TSV
  explicit TableText(char separator) : separator_(separator) {}

  TableText& Cell(std::string_view text);
  void EndRow();
  void Row(const std::vector<std::string>& cells);
  const std::string& Text() const { return text_; }

 private:
  char separator_;
  bool isRowBegun_ = false;
  std::string text_;
};

/// A whole table in the format that a file's extension stands for: TSV for ".tsv", else CSV, which
/// begins with the mark that tells spreadsheets that it is UTF-8.
std::string TableFileText(std::string_view extension, const std::vector<std::string>& headings,
                          const std::vector<std::vector<std::string>>& rows);

}  // namespace quorvane

#include "formats/drawing_file.h"

#include <algorithm>
#include <optional>

#include "files/files.h"
#include "model/data_items.h"
#include "model/rounding.h"
#include "model/text.h"

namespace quorvane {
namespace {

// In bytes, without the line end. A line of megabytes would keep the user waiting at every key.
constexpr std::size_t kLongestRecord = 65536;

// Takes the fields of a drawing off its text, and counts its lines.
class DrawingFields {
 public:
  explicit DrawingFields(std::string_view text) : text_(text), reader_(text), line_(text) {}

  bool AtEnd() const { return reader_.IsExhausted(); }

  // Whether a line was longer than any record, a line end within quotes ending none.
  bool IsTooLong() const { return isTooLong_; }
  // The number of that line, or else of the one that is read.
  int LineNumber() const {
    return static_cast<int>(std::count(text_.begin(), line_.begin(), '\n')) + 1;
  }

  std::string_view Next() {
    const std::string_view field = reader_.ReadTrimmedItem();
    std::size_t length = line_.size() - reader_.Rest().size();
    const bool isLineEnd = !reader_.SkipComma();
    if (isLineEnd) length += reader_.ReadWholeLine().size();
    isTooLong_ = isTooLong_ || length > kLongestRecord;
    if (isLineEnd && !isTooLong_) line_ = reader_.Rest();
    return field;
  }

  double NextNumber() { return NumericValue(Next()); }
  std::int32_t NextWhole() { return ToWhole32(NextNumber()); }

 private:
  std::string_view text_;
  DataItemReader reader_;
  std::string_view line_;  // from the beginning of the current line on
  bool isTooLong_ = false;
};

std::optional<DrawingKind> KindOf(std::string_view field) {
  for (const DrawingKind kind : {DrawingKind::Line, DrawingKind::Circle, DrawingKind::Text}) {
    if (field.size() == 1 && field.front() == static_cast<char>(kind)) return kind;
  }
  return std::nullopt;
}

// The fields between the position and the colour, which differ from kind to kind.
void ReadShape(DrawingFields& fields, DrawingRecord& record) {
  switch (record.Kind) {
    case DrawingKind::Line:
      record.X2 = fields.NextWhole();
      record.Y2 = fields.NextWhole();
      break;
    case DrawingKind::Circle:
      record.Radius = fields.NextWhole();
      break;
    case DrawingKind::Text:
      record.Text = fields.Next();
      record.Size = ToWhole16(fields.NextNumber());
      break;
  }
}

// Whether a text would lose something when it is read without quotes.
bool NeedsQuotes(std::string_view text) { return DataItemReader(text).ReadTrimmedItem() != text; }

std::string JoinFields(std::initializer_list<std::string> fields) {
  std::string joined;
  for (const std::string& field : fields) joined += (joined.empty() ? "" : ",") + field;
  return joined;
}

}  // namespace

Result<std::vector<DrawingRecord>> ParseDrawing(std::string_view text, std::string_view fileName) {
  std::vector<DrawingRecord> records;
  DrawingFields fields(text);
  while (!fields.AtEnd() && !fields.IsTooLong()) {
    const std::optional<DrawingKind> kind = KindOf(fields.Next());
    if (!kind) continue;
    DrawingRecord record{.Kind = *kind};
    record.X = fields.NextWhole();
    record.Y = fields.NextWhole();
    ReadShape(fields, record);
    if (fields.AtEnd()) break;  // the colour is missing, the record was cut short
    record.ColourNumber = ToWhole16(fields.NextNumber());
    records.push_back(std::move(record));
  }
  if (fields.IsTooLong()) {
    return Failure{PlaceInFile(fileName, fields.LineNumber()) +
                   ": a drawing record ends within 64 KB, this one does not"};
  }
  return records;
}

std::string DrawingRecordText(const DrawingRecord& record) {
  const std::string kind(1, static_cast<char>(record.Kind));
  const std::string x = NumberText(record.X);
  const std::string y = NumberText(record.Y);
  const std::string colour = NumberText(record.ColourNumber);
  switch (record.Kind) {
    case DrawingKind::Line:
      return JoinFields({kind, x, y, NumberText(record.X2), NumberText(record.Y2), colour});
    case DrawingKind::Circle:
      return JoinFields({kind, x, y, NumberText(record.Radius), colour});
    case DrawingKind::Text:
      break;
  }
  const std::string text = NeedsQuotes(record.Text) ? '"' + record.Text + '"' : record.Text;
  return JoinFields({kind, x, y, text, NumberText(record.Size), colour});
}

std::string DrawingLayerText(const std::vector<DrawingRecord>& records) {
  std::string text;
  for (const DrawingRecord& record : records) text += DrawingRecordText(record) + "\r\n";
  return text;
}

std::optional<std::string> DrawnTextFault(std::string_view text) {
  if (text.find('"') != text.npos) return "A text on the map cannot hold a double quote";
  if (text.find_first_of("\r\n") != text.npos) return "A text on the map must fit on one line";
  return std::nullopt;
}

Result<std::vector<DrawingRecord>> ReadDrawingFile(const GameSession& session) {
  const Result<std::string> text = ReadOptionalTextFile(session.DrawingFilePath);
  if (!text) return text.Error();
  return ParseDrawing(*text, TextFromPath(session.DrawingFilePath));
}

Result<void> WriteDrawingFile(const GameSession& session, std::string_view layer) {
  std::string text;
  while (!layer.empty()) text.append(TakeLine(layer)).append("\r\n");
  const auto records = ParseDrawing(text, TextFromPath(session.DrawingFilePath));
  if (!records) return Failure{records.Message() + "; nothing was saved"};
  return SaveText(session.DrawingFilePath, text);
}

}  // namespace quorvane

#include "model/data_items.h"

#include <algorithm>
#include <cmath>

#include "model/text.h"

namespace quorvane {
namespace {

constexpr std::string_view kTextBlanks = " ";  // a TAB may be the first, empty field of a report
constexpr std::string_view kNumberBlanks = " \t";
constexpr CharacterSet kItemEnds(",\r\n");
constexpr CharacterSet kLineItemEnds(",\n");
constexpr CharacterSet kNumberEnds(", \t\r\n");
constexpr std::string_view kSeparators[] = {",", "\r\n", "\n", "\r"};
constexpr CharacterSet kQuote("\"");

// The game's family of file formats drops the 0 before the point.
std::string DataNumberText(double number) {
  std::string text = NumberText(number);
  const size_t point = text.find('.');
  if (std::fabs(number) < 1 && point != text.npos) text.erase(point - 1, 1);
  return text;
}

}  // namespace

// The end is looked for once: looking from every item of a file of empty lines would take hours.
DataItemReader::DataItemReader(std::string_view text)
    : rest_(text), blankTail_(text.size() - (text.find_last_not_of(" \t\r\n") + 1)) {}

std::string DataItemReader::ReadText() {
  Skip(kTextBlanks);
  std::string text(rest_.starts_with('"') ? TakeQuoted() : TakeUntil(kItemEnds));
  Skip(kTextBlanks);
  ConsumeSeparator();
  return text;
}

std::string_view DataItemReader::ReadNumberText() {
  Skip(kNumberBlanks);
  const std::string_view text = TakeUntil(kNumberEnds);
  Skip(kNumberBlanks);
  ConsumeSeparator();
  return text;
}

FieldValue DataItemReader::ReadField() {
  Skip(kNumberBlanks);
  if (rest_.starts_with('"')) return ReadText();
  const std::string_view text = ReadNumberText();
  if (text.empty()) return {};
  const double number = NumericValue(text);
  if (number == std::trunc(number))
    return {static_cast<long long>(std::clamp(number, -1e18, 1e18))};
  return number;
}

std::string_view DataItemReader::ReadLineItem(std::string& unquoted) {
  Skip(kTextBlanks);
  const bool isQuoted = rest_.starts_with('"');
  if (isQuoted) unquoted = TakeQuoted();
  std::string_view item = TakeUntil(kLineItemEnds);
  if (rest_.starts_with('\n') && item.ends_with('\r')) item.remove_suffix(1);
  if (!rest_.empty()) rest_.remove_prefix(1);
  return isQuoted ? unquoted += item : item;
}

std::string_view DataItemReader::ReadTrimmedItem() {
  Skip(kNumberBlanks);
  if (rest_.starts_with('"')) {
    const std::string_view item = TakeQuoted();
    TakeUntil(kItemEnds);
    return item;
  }
  const std::string_view item = TakeUntil(kItemEnds);
  return item.substr(0, item.find_last_not_of(kNumberBlanks) + 1);
}

bool DataItemReader::SkipComma() {
  const bool isComma = rest_.starts_with(',');
  if (isComma) rest_.remove_prefix(1);
  return isComma;
}

std::string_view DataItemReader::ReadWholeLine() { return TakeLine(rest_); }

void DataItemReader::Skip(std::string_view blanks) {
  rest_.remove_prefix(std::min(rest_.find_first_not_of(blanks), rest_.size()));
}

std::string_view DataItemReader::TakeUntil(const CharacterSet& ends) {
  const std::string_view taken = rest_.substr(0, ends.FindIn(rest_));
  rest_.remove_prefix(taken.size());
  return taken;
}

std::string_view DataItemReader::TakeQuoted() {
  rest_.remove_prefix(1);
  const std::string_view taken = TakeUntil(kQuote);
  if (!rest_.empty()) rest_.remove_prefix(1);
  return taken;
}

void DataItemReader::ConsumeSeparator() {
  for (const std::string_view separator : kSeparators) {
    if (!rest_.starts_with(separator)) continue;
    rest_.remove_prefix(separator.size());
    return;
  }
}

DataItemWriter& DataItemWriter::Text(std::string_view text) {
  BeginItem();
  const size_t quote = text.find('"');
  if (quote != text.npos && unsafeText_.empty()) unsafeText_ = Excerpt(text.substr(quote));
  text_.append("\"").append(text).append("\"");
  return *this;
}

DataItemWriter& DataItemWriter::Number(double number) {
  BeginItem();
  text_ += DataNumberText(number);
  return *this;
}

DataItemWriter& DataItemWriter::Field(const FieldValue& value) {
  if (value.Kind() == FieldKind::Text) return Text(value.Text());
  if (!value.IsEmpty()) return Number(value.Number());
  BeginItem();
  return *this;
}

void DataItemWriter::EndRecord() {
  text_ += "\r\n";
  isRecordStarted_ = false;
}

Result<std::string> DataItemWriter::Finish() const {
  if (!unsafeText_.empty()) {
    return Failure{"A double quote cannot be saved, please remove it from: " + unsafeText_};
  }
  return text_;
}

void DataItemWriter::BeginItem() {
  if (isRecordStarted_) text_ += ',';
  isRecordStarted_ = true;
}

}  // namespace quorvane

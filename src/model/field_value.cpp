#include "model/field_value.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <system_error>

#include "model/rounding.h"

namespace quorvane {
namespace {

constexpr int kSignificantDigits = 15;  // more would show the noise of binary fractions

constexpr double kLargestNumber = std::numeric_limits<double>::max();

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsSign(char c) { return c == '+' || c == '-'; }
bool IsIgnored(char c) { return c == ' ' || c == '\t' || c == '\n'; }

// A number at the front of a text without blanks, and how many characters it took.
struct LeadingNumber {
  double Value = 0;
  size_t Length = 0;
};

std::optional<int> DigitOfBase(char c, int base) {
  int digit = base;
  if (IsDigit(c)) digit = c - '0';
  if (c >= 'a' && c <= 'f') digit = c - 'a' + 10;
  if (c >= 'A' && c <= 'F') digit = c - 'A' + 10;
  if (digit >= base) return std::nullopt;
  return digit;
}

LeadingNumber ReadPrefixed(std::string_view text, int base) {
  LeadingNumber number{.Value = 0, .Length = 2};
  while (number.Length < text.size()) {
    const std::optional<int> digit = DigitOfBase(text[number.Length], base);
    if (!digit) break;
    number.Value = std::min(number.Value * base + *digit, kLargestNumber);
    ++number.Length;
  }
  return number;
}

size_t SkipDigits(std::string_view text, size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

// The end of an exponent that starts at `at`, or `at` when there is none.
size_t SkipExponent(std::string_view text, size_t at) {
  if (at >= text.size() || std::string_view("eEdD").find(text[at]) == std::string_view::npos) {
    return at;
  }
  size_t digits = at + 1;
  if (digits < text.size() && IsSign(text[digits])) ++digits;
  const size_t end = SkipDigits(text, digits);
  return end > digits ? end : at;
}

// Whether a decimal literal that no double holds is too small for one, and not too large: digits
// before or behind the point count as well as the exponent.
bool IsBelowOne(std::string_view literal) {
  const std::string_view mantissa = literal.substr(0, literal.find('e'));
  std::string_view exponentText = literal.substr(std::min(mantissa.size() + 1, literal.size()));
  if (exponentText.starts_with('+')) exponentText.remove_prefix(1);
  long long exponent = 0;
  const auto [stop, error] =
      std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
  if (error == std::errc::result_out_of_range) return exponentText.starts_with('-');
  const size_t firstDigit = mantissa.find_first_of("123456789");
  const size_t point = std::min(mantissa.find('.'), mantissa.size());
  return firstDigit == mantissa.npos ||
         exponent < static_cast<long long>(firstDigit) - static_cast<long long>(point);
}

LeadingNumber ReadDecimal(std::string_view text) {
  const size_t start = !text.empty() && IsSign(text[0]) ? 1 : 0;
  size_t end = SkipDigits(text, start);
  size_t digits = end - start;
  if (end < text.size() && text[end] == '.') {
    const size_t fractionEnd = SkipDigits(text, end + 1);
    digits += fractionEnd - end - 1;
    end = fractionEnd;
  }
  if (digits == 0) return {};
  const size_t mantissaEnd = end;
  end = SkipExponent(text, end);

  std::string literal(text.substr(start, end - start));
  if (end > mantissaEnd) literal[mantissaEnd - start] = 'e';  // the standard knows no D
  double value = 0;
  const auto [stop, error] =
      std::from_chars(literal.data(), literal.data() + literal.size(), value);
  if (error == std::errc::result_out_of_range) {
    value = IsBelowOne(literal) ? 0 : kLargestNumber;
  }
  return {.Value = text[0] == '-' ? -value : value, .Length = end};
}

LeadingNumber ReadLeadingNumber(std::string_view text) {
  if (text.size() >= 2 && text[0] == '&') {
    if (text[1] == 'H' || text[1] == 'h') return ReadPrefixed(text, 16);
    if (text[1] == 'O' || text[1] == 'o') return ReadPrefixed(text, 8);
  }
  return ReadDecimal(text);
}

std::string WithoutBlanks(std::string_view text) {
  std::string kept;
  std::ranges::remove_copy_if(text, std::back_inserter(kept), IsIgnored);
  return kept;
}

// Calls `read` with the text without its blanks; most texts have none.
template <typename Read>
auto ReadWithoutBlanks(std::string_view text, const Read& read) {
  return std::ranges::none_of(text, IsIgnored) ? read(text) : read(WithoutBlanks(text));
}

// Most fields are short whole numbers; reading those without the general grammar keeps a load of
// half a million fields quick.
std::optional<double> ReadShortWhole(std::string_view text) {
  if (text.empty() || text.size() > kSignificantDigits) return std::nullopt;
  double value = 0;
  for (const char c : text) {
    if (!IsDigit(c)) return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

// Plain decimal notation of a row of digits whose point lies after the first `point` of them.
std::string PlacePoint(std::string digits, int point) {
  if (point <= 0) return "0." + std::string(static_cast<size_t>(-point), '0') + digits;
  const auto whole = static_cast<size_t>(point);
  if (digits.size() <= whole) return digits + std::string(whole - digits.size(), '0');
  return digits.insert(whole, 1, '.');
}

}  // namespace

double NumericValue(std::string_view text) {
  if (const auto value = ReadShortWhole(text)) return *value;
  const size_t first = text.find_first_not_of(" \t\n");
  if (first == text.npos) return 0;
  const char start = text[first];
  if (!IsDigit(start) && !IsSign(start) && start != '.' && start != '&') return 0;
  return ReadWithoutBlanks(text,
                           [](std::string_view kept) { return ReadLeadingNumber(kept).Value; });
}

bool HasDigit(std::string_view text) { return std::ranges::any_of(text, IsDigit); }

std::optional<double> WholeTextNumber(std::string_view text) {
  if (const auto value = ReadShortWhole(text)) return value;
  return ReadWithoutBlanks(text, [](std::string_view kept) -> std::optional<double> {
    const LeadingNumber number = ReadLeadingNumber(kept);
    if (number.Length == 0 || number.Length != kept.size()) return std::nullopt;
    return number.Value;
  });
}

std::string NumberText(double value) {
  if (value == 0 || std::isnan(value)) return "0";  // also for -0
  const double magnitude = std::min(std::fabs(value), kLargestNumber);
  // "1.20000000000000e+03": fifteen digits, correctly rounded, and where the point belongs.
  std::array<char, 32> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                     std::chars_format::scientific, kSignificantDigits - 1);
  const std::string_view text(buffer.data(), written.ptr);
  const size_t mark = text.find('e');
  std::string digits = text[0] + std::string(text.substr(2, mark - 2));
  digits.erase(digits.find_last_not_of('0') + 1);
  const std::string_view exponent = text.substr(text[mark + 1] == '+' ? mark + 2 : mark + 1);
  int point = 0;
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), point);
  return (value < 0 ? "-" : "") + PlacePoint(std::move(digits), point + 1);
}

std::string NumberTextWithLeadingBlank(double value) {
  return (value < 0 ? "" : " ") + NumberText(value);
}

std::string OneDecimalText(double value) {
  const std::string text = NumberText(RoundToDecimals(value, 1));
  return text.find('.') == text.npos ? text + ".0" : text;
}

void FieldValue::SetText(std::string_view text) {
  number_ = NumericValue(text);
  kind_ = FieldKind::Text;
  text_.assign(text);
}

bool FieldValue::ReadsAs(double number) const {
  if (kind_ == FieldKind::Text) return WholeTextNumber(text_) == number;
  return number_ == number;
}

std::string FieldText(const FieldValue& value) {
  switch (value.Kind()) {
    case FieldKind::Empty:
      return "";
    case FieldKind::Text:
      return value.Text();
    default:
      return NumberText(value.Number());
  }
}

}  // namespace quorvane

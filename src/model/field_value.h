#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace quorvane {

/// The number that a text begins with. Blanks, TABs and line feeds are ignored anywhere; then come
/// an optional sign, digits, an optional point with digits and an optional exponent (E or D);
/// reading stops at the first other character. &H and &O introduce a hexadecimal or octal whole
/// number. "45%" gives 45, "24ºC" 24; "Unknown" and the empty text give 0.
double NumericValue(std::string_view text);

/// The number that a text is, when the whole text is one number: " 1" gives 1, while "1st",
/// "Uninhabited" and the empty text give nothing.
std::optional<double> WholeTextNumber(std::string_view text);

/// Whether a text has a digit, and so a number to tell: "Unknown" and "Remote" have none.
bool HasDigit(std::string_view text);

/// A number in its shortest decimal form with at most 15 significant digits, never with an
/// exponent: 8, 0.12, -40.
std::string NumberText(double value);

/// `NumberText` with one blank before a non-negative number (a negative one has its sign there).
std::string NumberTextWithLeadingBlank(double value);

/// A number with one decimal, whether it has one or not: 81.0, 2.3.
std::string OneDecimalText(double value);

enum class FieldKind : std::uint8_t { Empty, Text, Whole, Real };

/// One field of a planet or player record. It knows its `NumericValue` from the moment it is set,
/// so that reading a number never parses text again.
class FieldValue {
 public:
  FieldValue() = default;
  FieldValue(std::string text)  // NOLINT: fields are assigned from plain values
      : number_(NumericValue(text)), kind_(FieldKind::Text), text_(std::move(text)) {}
  FieldValue(std::string_view text) : FieldValue(std::string(text)) {}  // NOLINT
  FieldValue(const char* text) : FieldValue(std::string(text)) {}       // NOLINT
  template <std::integral Whole>
  FieldValue(Whole number)  // NOLINT
      : number_(static_cast<double>(number)), kind_(FieldKind::Whole) {}
  FieldValue(double number) : number_(number), kind_(FieldKind::Real) {}  // NOLINT

  /// The same as assigning the text, without making a text of its own first.
  void SetText(std::string_view text);

  FieldKind Kind() const { return kind_; }
  bool IsEmpty() const { return kind_ == FieldKind::Empty; }
  /// The text of a text field; empty for every other kind.
  const std::string& Text() const { return text_; }
  /// The field as a number, as `NumericValue` reads it; 0 for an empty field.
  double Number() const { return number_; }
  /// Whether the whole field is this number: 0 for a field that nothing was stored in, false for a
  /// text such as "Uninhabited", which only counts as 0.
  bool ReadsAs(double number) const;

  bool operator==(const FieldValue&) const = default;

 private:
  double number_ = 0;
  FieldKind kind_ = FieldKind::Empty;
  std::string text_;
};

/// A field as text: its text, its number in shortest decimal form, or nothing when it is empty.
std::string FieldText(const FieldValue& value);

}  // namespace quorvane

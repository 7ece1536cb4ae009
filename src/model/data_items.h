#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/character_set.h"
#include "model/field_value.h"
#include "model/result.h"

namespace quorvane {

/// Reads the items of a data-item text (the map, the companion files, the game's settings) one by
/// one. Blanks before an item are skipped (around a number TABs too); the comma or line end after
/// it is consumed. At the end of the text every item reads as empty.
class DataItemReader {
 public:
  explicit DataItemReader(std::string_view text);

  /// Whether no item is left; blanks and empty lines at the end are none.
  bool AtEnd() const { return rest_.size() <= blankTail_; }
  /// Whether the text itself is used up, not even an empty line being left.
  bool IsExhausted() const { return rest_.empty(); }
  /// The text behind the items read so far.
  std::string_view Rest() const { return rest_; }
  /// A text item: a quoted one up to its closing quote (commas and line ends included), any other
  /// up to the next comma or line end.
  std::string ReadText();
  /// A number item as text, up to the next comma, blank or line end; empty when there is none.
  std::string_view ReadNumberText();
  /// A number item as `NumericValue` reads it.
  double ReadNumber() { return NumericValue(ReadNumberText()); }
  /// An item that may be of any kind: quoted text, a number, or no value for an empty item.
  FieldValue ReadField();
  /// A line read as one item: it ends at its first comma or line end; a quoted part at its front
  /// loses the quotes, and a comma inside them does not end it.
  /// @param unquoted  holds the item where it had quotes
  /// @return a view of the text or of `unquoted`
  std::string_view ReadLineItem(std::string& unquoted);
  /// An item without the blanks and TABs at both ends, a quoted one being what its quotes hold. The
  /// comma or line end after it is not consumed.
  std::string_view ReadTrimmedItem();
  /// Goes behind a comma. @return false, and nothing happens, where none comes next
  bool SkipComma();
  /// The rest of the current line as it stands; the reader goes on with the next line.
  std::string_view ReadWholeLine();

 private:
  void Skip(std::string_view blanks);
  std::string_view TakeUntil(const CharacterSet& ends);
  std::string_view TakeQuoted();
  void ConsumeSeparator();

  std::string_view rest_;
  std::size_t blankTail_;  // how many blanks and line ends the text ends with
};

/// Whether a text can be written as an item and read back: a double quote would cut it short.
inline bool IsItemText(std::string_view text) { return text.find('"') == text.npos; }

/// Writes records of data items: texts between double quotes, numbers plainly without a digit
/// before the point between -1 and 1, empty fields as nothing; commas between the items of a
/// record, CR LF behind it.
class DataItemWriter {
 public:
  DataItemWriter& Text(std::string_view text);
  DataItemWriter& Number(double number);
  /// The field by its kind: text, number or nothing.
  DataItemWriter& Field(const FieldValue& value);
  void EndRecord();

  /// The records so far, or why they must not be saved: a double quote inside a text would cut
  /// that text short when it is read back.
  Result<std::string> Finish() const;

 private:
  void BeginItem();

  std::string text_;
  bool isRecordStarted_ = false;
  std::string unsafeText_;  // from its first double quote on
};

}  // namespace quorvane

// Any bytes are read as data items to their end, and what was read, written and read again is
// written the same. Decoding gives UTF-8, which decodes to itself.
#include <cmath>

#include "fuzz_support.h"
#include "model/data_items.h"
#include "model/text.h"

namespace quorvane::fuzz {
namespace {

// Every kind of read takes something off the text, or the text is used up.
template <typename Read>
void ReadAll(std::string_view text, const Read& read) {
  DataItemReader reader(text);
  while (!reader.IsExhausted()) {
    const std::size_t before = reader.Rest().size();
    read(reader);
    Require(reader.Rest().size() < before, "every item takes something");
  }
  Require(reader.AtEnd(), "a text that is used up is at its end");
}

void ReadNumber(DataItemReader& reader) {
  const std::string_view text = reader.ReadNumberText();
  const double number = NumericValue(text);
  Require(std::isfinite(number), "numbers are finite");
  Require(WholeTextNumber(text).value_or(number) == number, "both readings give one number");
}

Result<std::string> Rewritten(std::string_view text) {
  DataItemWriter writer;
  for (DataItemReader reader(text); !reader.IsExhausted();)
    writer.Field(reader.ReadField()).EndRecord();
  return writer.Finish();
}

}  // namespace
}  // namespace quorvane::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvane;
  const std::string text = fuzz::DecodedText(data, size);
  fuzz::Require(text.starts_with("\xEF\xBB\xBF") || DecodeText(text) == text, "UTF-8 stays");
  fuzz::ReadAll(text, [](DataItemReader& reader) { reader.ReadText(); });
  fuzz::ReadAll(text, [](DataItemReader& reader) { reader.ReadField(); });
  fuzz::ReadAll(text, [](DataItemReader& reader) { reader.ReadWholeLine(); });
  fuzz::ReadAll(text, [](DataItemReader& reader) {
    std::string unquoted;
    reader.ReadLineItem(unquoted);
  });
  fuzz::ReadAll(text, fuzz::ReadNumber);
  const Result<std::string> written = fuzz::Rewritten(text);
  if (written) fuzz::Require(*fuzz::Rewritten(*written) == *written, "items come back the same");
  return 0;
}

#include "model/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <utility>

namespace quorvane {
namespace {

// What Windows-1252 puts at 0x80 … 0x9F; the five bytes it leaves open keep their own number.
constexpr std::array<std::uint16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// The length of the UTF-8 sequence that a lead byte announces; 0 for a byte that leads none.
size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

// Overlong forms, surrogates and numbers beyond Unicode show in the second byte.
bool IsSecondByteAllowed(unsigned char lead, unsigned char second) {
  switch (lead) {
    case 0xE0:
      return second >= 0xA0;
    case 0xED:
      return second <= 0x9F;
    case 0xF0:
      return second >= 0x90;
    case 0xF4:
      return second <= 0x8F;
    default:
      return true;
  }
}

// How many bytes at the front of a text are plain ASCII. Eight at a time: reports are long and have
// few others.
size_t AsciiRun(std::string_view bytes) {
  constexpr std::uint64_t kHighBits = 0x8080808080808080;
  size_t run = 0;
  for (std::uint64_t eight = 0; run + sizeof eight <= bytes.size(); run += sizeof eight) {
    std::memcpy(&eight, bytes.data() + run, sizeof eight);
    if ((eight & kHighBits) != 0) break;
  }
  while (run < bytes.size() && static_cast<unsigned char>(bytes[run]) < 0x80) ++run;
  return run;
}

bool IsUtf8(std::string_view bytes) {
  for (size_t i = AsciiRun(bytes); i < bytes.size(); i += AsciiRun(bytes.substr(i))) {
    const auto lead = static_cast<unsigned char>(bytes[i]);
    const size_t length = SequenceLength(lead);
    if (length == 0 || i + length > bytes.size()) return false;
    for (size_t k = 1; k < length; ++k) {
      if ((static_cast<unsigned char>(bytes[i + k]) & 0xC0) != 0x80) return false;
    }
    if (length > 1 && !IsSecondByteAllowed(lead, static_cast<unsigned char>(bytes[i + 1]))) {
      return false;
    }
    i += length;
  }
  return true;
}

void AppendUtf8(std::string& text, unsigned codePoint) {
  if (codePoint < 0x80) {
    text += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    text += static_cast<char>(0xC0 | (codePoint >> 6));
    text += static_cast<char>(0x80 | (codePoint & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (codePoint >> 12));
    text += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (codePoint & 0x3F));
  }
}

std::string FromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  while (!bytes.empty()) {
    const size_t run = AsciiRun(bytes);
    text += bytes.substr(0, run);
    bytes.remove_prefix(run);
    if (bytes.empty()) break;
    const auto byte = static_cast<unsigned char>(bytes.front());
    AppendUtf8(text, byte < 0xA0 ? kWindows1252[byte - 0x80] : byte);
    bytes.remove_prefix(1);
  }
  return text;
}

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; }

// The small letter of a capital of Windows-1252 that is no ASCII; any other character as it is.
// All of them are two bytes long in UTF-8.
std::string SmallLetter(std::string letter) {
  constexpr std::pair<std::string_view, std::string_view> kScattered[] = {
      {"Œ", "œ"}, {"Š", "š"}, {"Ž", "ž"}, {"Ÿ", "ÿ"}};
  for (const auto& [capital, small] : kScattered) {
    if (letter == capital) return std::string(small);
  }
  // U+00C0 … U+00DE lie 32 below their small letters; in their midst is the sign for "times".
  const auto second = static_cast<unsigned char>(letter[1]);
  const bool isCapital = letter[0] == '\xC3' && second >= 0x80 && second <= 0x9E && second != 0x97;
  if (isCapital) letter[1] = static_cast<char>(second + 0x20);
  return letter;
}

}  // namespace

std::string DecodeText(std::string bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.erase(0, kByteOrderMark.size());
  return IsUtf8(bytes) ? bytes : FromWindows1252(bytes);
}

std::string_view Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool EqualIgnoringCase(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, LowerCase, LowerCase);
}

std::string InLowerCase(std::string_view text) {
  std::string lower(text);
  std::ranges::transform(lower, lower.begin(), LowerCase);
  const auto next = [&lower](size_t from) { return lower.find_first_of("\xC3\xC5", from); };
  for (size_t lead = next(0); lead != lower.npos && lead + 1 < lower.size();
       lead = next(lead + 2)) {
    lower.replace(lead, 2, SmallLetter(lower.substr(lead, 2)));
  }
  return lower;
}

std::string_view BeforeEndOfFile(std::string_view text) {
  const size_t lineEnd = text.find("\n\x1A");
  if (lineEnd != text.npos) return text.substr(0, lineEnd + 1);
  return text.substr(0, text.find_last_not_of('\x1A') + 1);
}

bool IsBeforeInAlphabet(std::string_view left, std::string_view right) {
  const std::string lowerLeft = InLowerCase(left);
  const std::string lowerRight = InLowerCase(right);
  return std::tie(lowerLeft, left) < std::tie(lowerRight, right);
}

std::string_view TakeLine(std::string_view& rest) {
  const size_t end = std::min(rest.find('\n'), rest.size());
  std::string_view line = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

size_t CountLines(std::string_view text) {
  const auto lineEnds = static_cast<size_t>(std::ranges::count(text, '\n'));
  return lineEnds + (text.empty() || text.ends_with('\n') ? 0 : 1);
}

std::string Excerpt(std::string_view text) {
  constexpr size_t kMostBytes = 40;
  if (text.size() <= kMostBytes) return std::string(text);
  size_t end = kMostBytes;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  return std::string(text.substr(0, end)) + "...";
}

std::string PlaceInFile(std::string_view fileName, int line) {
  return std::string(fileName) + ", line " + std::to_string(line);
}

}  // namespace quorvane

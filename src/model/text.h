#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quorvane {

/// Text as the program keeps it, UTF-8, from the bytes of a file: bytes that are valid UTF-8 are
/// kept (without a byte order mark), all others are read as Windows-1252, the game's encoding.
/// Any sequence of bytes gives a text.
std::string DecodeText(std::string bytes);

/// The text without blanks at both ends. Only blanks: a TAB or line end is part of the text.
std::string_view Trimmed(std::string_view text);

/// Compares two texts without regard to the case of ASCII letters, as the game's system compares
/// file names.
bool EqualIgnoringCase(std::string_view left, std::string_view right);

/// The text in small letters, for comparing names as people do: the accented capitals of the game's
/// encoding (À … Þ, Œ, Š, Ž, Ÿ) become small as well as the ASCII ones.
std::string InLowerCase(std::string_view text);

/// The text up to the sign with which old programs end a file, byte 0x1A where a line begins or
/// where nothing follows. Elsewhere it is a character like others.
std::string_view BeforeEndOfFile(std::string_view text);

/// Whether a name comes before another one in a list. Names that differ only in case come in the
/// order of their characters' numbers, so that a list has one order.
bool IsBeforeInAlphabet(std::string_view left, std::string_view right);

/// Takes the next line off the front of `rest`, without its line end (CR LF or LF).
std::string_view TakeLine(std::string_view& rest);

/// How many lines `TakeLine` takes off a text; one that ends without a line end counts.
std::size_t CountLines(std::string_view text);

/// The beginning of a text for a message, not longer than a message box can show.
std::string Excerpt(std::string_view text);

/// How messages name a place in a file: "Demo.MAP, line 12".
std::string PlaceInFile(std::string_view fileName, int line);

}  // namespace quorvane

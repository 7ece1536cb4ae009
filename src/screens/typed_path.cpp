#include "screens/typed_path.h"

#include <algorithm>
#include <charconv>
#include <string>

#include "files/files.h"
#include "formats/settings_file.h"
#include "model/text.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kScheme = "file://";

std::string_view WithoutBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

std::string_view WithoutQuotes(std::string_view text) {
  const bool isQuoted = text.size() >= 2 && text.front() == text.back() &&
                        (text.front() == '"' || text.front() == '\'');
  return isQuoted ? text.substr(1, text.size() - 2) : text;
}

// The bytes that a URL writes as % and two hexadecimal digits. A zero byte is no part of any name.
std::string WithoutEscapes(std::string_view text) {
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); ++at) {
    unsigned char byte = 0;
    const char* digits = text.data() + at + 1;
    const bool isEscape = text[at] == '%' && at + 2 < text.size() &&
                          std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2;
    bytes += isEscape && byte != 0 ? static_cast<char>(byte) : text[at];
    if (isEscape && byte != 0) at += 2;
  }
  return bytes;
}

// The path in "host/path", as it stands in a URL: "/home/me", "C:/Stars".
std::string PathOfUrl(std::string_view url) {
  const std::size_t hostEnd = std::min(url.find('/'), url.size());
  std::string path = WithoutEscapes(url.substr(hostEnd));
  if (path.size() > 2 && path[2] == ':') path.erase(0, 1);  // the slash before a drive
#if defined(_WIN32)
  const std::string_view host = url.substr(0, hostEnd);
  if (!host.empty() && !EqualIgnoringCase(host, "localhost")) {
    path = "\\\\" + std::string(host) + path;
  }
#endif
  return path;
}

fs::path PathOnThisSystem(std::string_view text, const fs::path& home) {
#if defined(_WIN32)
  static_cast<void>(home);
  return PathFromText(text);
#else
  return TranslateFromWine(text, home / ".wine");
#endif
}

}  // namespace

fs::path TypedPath(std::string_view typed, const fs::path& folder, const fs::path& home) {
  std::string text(WithoutQuotes(WithoutBlanks(typed)));
  if (EqualIgnoringCase(text.substr(0, kScheme.size()), kScheme)) {
    // Of several files that were copied together, the first.
    text = PathOfUrl(text.substr(kScheme.size(), text.find_first_of("\r\n") - kScheme.size()));
  } else if (text == "~" || text.starts_with("~/")) {
    return home / PathFromText(text.substr(1)).relative_path();
  }
  return folder / PathOnThisSystem(text, home);
}

}  // namespace quorvane

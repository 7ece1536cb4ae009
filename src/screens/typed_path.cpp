#include "screens/typed_path.h"

#include "files/files.h"
#include "formats/settings_file.h"
#include "model/text.h"

namespace quorvane {

namespace fs = std::filesystem;

fs::path TypedPath(std::string_view text, const fs::path& shown, const fs::path& home) {
  text = Trimmed(text);
  const bool isQuoted = text.size() > 1 && (text.front() == '"' || text.front() == '\'');
  if (isQuoted && text.back() == text.front()) text = text.substr(1, text.size() - 2);
  if (text == "~") return home;
  if (text.starts_with("~/")) return home / PathFromText(text.substr(2));
#if defined(_WIN32)
  const fs::path path = PathFromText(text);
#else
  const fs::path path = TranslateFromWine(text, home / ".wine");
#endif
  return text.empty() ? shown : shown / path;  // an absolute path replaces the one before it
}

}  // namespace quorvane

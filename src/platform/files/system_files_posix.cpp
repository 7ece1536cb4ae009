#include <unistd.h>

#include <cerrno>

#include "platform/files/files.h"
#include "platform/files/system_files.h"

namespace quorvane {

std::filesystem::path PathFromText(std::string_view text) {
  return {std::u8string(text.begin(), text.end())};
}

std::string TextFromPath(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

OpenFileHandle OpenForBytes(const std::filesystem::path& path, OpenTo purpose) {
  constexpr const char* kModes[] = {"rb", "wb", "r+b"};
  return OpenFileHandle(std::fopen(path.c_str(), kModes[static_cast<std::size_t>(purpose)]));
}

bool FlushToDisk(std::FILE* file) {
  if (std::fflush(file) != 0) return false;
  // Some file systems cannot sync single files; that alone does not make the data wrong.
  return fsync(fileno(file)) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool SystemTellsCaseApart() { return true; }

}  // namespace quorvane

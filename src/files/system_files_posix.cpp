#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "files/files.h"
#include "files/system_files.h"
#include "model/text.h"

namespace quorvane {
namespace {

// Some file systems cannot sync single files or folders; that alone does not make the data wrong.
bool Sync(int descriptor) { return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP; }

}  // namespace

std::filesystem::path PathFromText(std::string_view text) {
  return {std::u8string(text.begin(), text.end())};
}

// A name is any bytes; those that are no text come from the game's own system. Each step of the way
// is read by itself, because such a file may lie in a folder that is named in today's encoding.
std::string TextFromPath(const std::filesystem::path& path) {
  std::string text;
  std::string_view rest = path.native();
  for (;;) {
    const std::size_t slash = rest.find('/');
    text += DecodeText(std::string(rest.substr(0, slash)));
    if (slash == rest.npos) return text;
    text += '/';
    rest.remove_prefix(slash + 1);
  }
}

OpenFileHandle OpenForBytes(const std::filesystem::path& path, OpenTo purpose) {
  constexpr const char* kModes[] = {"rb", "wbx", "r+b"};
  return OpenFileHandle(std::fopen(path.c_str(), kModes[static_cast<std::size_t>(purpose)]));
}

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && Sync(fileno(file)); }

bool SyncFolder(const std::filesystem::path& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return true;  // files may be written there, but the folder not be read
  const bool isSynced = Sync(descriptor);
  const int error = errno;
  close(descriptor);
  errno = error;
  return isSynced;
}

bool SystemTellsCaseApart() { return true; }

}  // namespace quorvane

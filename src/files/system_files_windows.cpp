#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>
#undef ReplaceFile  // the system's header renames every function of that name

#include "files/files.h"
#include "files/system_files.h"
#include "model/text.h"

namespace quorvane {

std::filesystem::path PathFromText(std::string_view text) {
  // The library throws at bytes that are no UTF-8, such as those of a command line.
  const std::string decoded = DecodeText(std::string(text));
  std::filesystem::path path(std::u8string(decoded.begin(), decoded.end()));
  return path.make_preferred();  // texts may come with the toolkit's slashes
}

std::string TextFromPath(const std::filesystem::path& path) {
  // A name may hold half a surrogate pair, at which the library throws; the system's own
  // conversion puts the sign for an unknown letter there.
  const std::wstring& wide = path.native();
  const auto length = static_cast<int>(wide.size());
  const auto convert = [&](char* target, int room) {
    return WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, target, room, nullptr, nullptr);
  };
  std::string text(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(text.data(), static_cast<int>(text.size()));
  return text;
}

OpenFileHandle OpenForBytes(const std::filesystem::path& path, OpenTo purpose) {
  if (purpose != OpenTo::Create) {
    return OpenFileHandle(_wfopen(path.c_str(), purpose == OpenTo::Read ? L"rb" : L"r+b"));
  }
  const int descriptor =
      _wopen(path.c_str(), _O_CREAT | _O_EXCL | _O_WRONLY | _O_BINARY, _S_IREAD | _S_IWRITE);
  return OpenFileHandle(descriptor < 0 ? nullptr : _fdopen(descriptor, "wb"));
}

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool SyncFolder(const std::filesystem::path& /*folder*/) { return true; }

bool SystemTellsCaseApart() { return false; }

}  // namespace quorvane

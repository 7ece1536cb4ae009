#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace quorvane {

// What each kind of system does in its own way, for `files.cpp` alone; `system_files_posix.cpp` and
// `system_files_windows.cpp` each have all of it, with the conversions that `files.h` declares.

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFileHandle = std::unique_ptr<std::FILE, CloseFile>;

enum class OpenTo { Read, Create, Change };

/// Opens a file whose bytes are read and written as they stand; nothing, with `errno`, on failure.
/// `Create` fails with `EEXIST` where anything has that name, even a link that leads nowhere.
OpenFileHandle OpenForBytes(const std::filesystem::path& path, OpenTo purpose);

/// Hands what was written on to the disk itself; false, with `errno`, on failure.
bool FlushToDisk(std::FILE* file);

/// The same for what was renamed in a folder, on systems where that is not done at once.
bool SyncFolder(const std::filesystem::path& folder);

/// Whether the system finds a file only under the letter case in which its name is written.
bool SystemTellsCaseApart();

}  // namespace quorvane

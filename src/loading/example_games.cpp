#include "loading/example_games.h"

#include <optional>
#include <string>
#include <system_error>

namespace quorvane {
namespace {

namespace fs = std::filesystem;

// A new folder beside the copy, of which no other start of the program makes use.
std::optional<fs::path> NewHelperFolder(const fs::path& copy) {
  constexpr int kMostTries = 100;  // as many may have been left behind by crashes
  for (int i = 1; i <= kMostTries; ++i) {
    fs::path helper = copy;
    helper += "-new" + std::to_string(i);
    std::error_code failure;
    if (fs::create_directory(helper, failure)) return helper;
  }
  return std::nullopt;
}

bool CopyFiles(const fs::path& from, const fs::path& to) {
  std::error_code failure;
  for (fs::directory_iterator file(from, failure), end; !failure && file != end;
       file.increment(failure)) {
    const fs::path copy = to / file->path().filename();
    if (!fs::copy_file(file->path(), copy, failure)) return false;
    // An installed file may be protected against writing, and its copy with it.
    fs::permissions(copy, fs::perms::owner_write, fs::perm_options::add, failure);
  }
  return !failure;
}

}  // namespace

fs::path ExampleFolder(const fs::path& folder, const fs::path& programData,
                       const fs::path& userData) {
  if (folder.parent_path() != programData) return folder;
  fs::path copy = userData / folder.filename();
  std::error_code failure;
  if (fs::is_directory(copy, failure)) return copy;
  fs::create_directories(userData, failure);
  const std::optional<fs::path> helper = NewHelperFolder(copy);
  if (!helper) return folder;
  // Only a complete copy gets the name; the first of two programs that start at once gives it.
  const bool isCopied = CopyFiles(folder, *helper);
  if (isCopied) fs::rename(*helper, copy, failure);
  if (!isCopied || failure) fs::remove_all(*helper, failure);
  return fs::is_directory(copy, failure) ? copy : folder;
}

}  // namespace quorvane

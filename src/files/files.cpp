#include "files/files.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <system_error>
#include <utility>

#include "files/system_files.h"
#include "model/text.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

Failure FileFailure(const fs::path& path, const std::string& what, const std::error_code& error) {
  return {TextFromPath(path) + ": " + what + " (" + error.message() + ")"};
}

// Names are compared as the system keeps them, because not all of them are text.
using Name = std::basic_string_view<fs::path::value_type>;

bool EqualNames(Name left, Name right) {
  const auto lower = [](fs::path::value_type c) {
    return c >= 'A' && c <= 'Z' ? static_cast<fs::path::value_type>(c + ('a' - 'A')) : c;
  };
  return std::ranges::equal(left, right, {}, lower, lower);
}

std::error_code LastError() { return {errno, std::generic_category()}; }

struct HelperFile {
  fs::path Path;
  OpenFileHandle Handle;
};

// Creates the file in which a replacement is written before it takes the target's place. Others may
// save into the same folder at the same time, so each helper has a name of its own, that of the
// moment; what somebody has put under that name stays. The name is short, as the target's own may
// be as long as the system allows. Without a handle, and with `errno`, on failure.
HelperFile CreateHelper(const fs::path& target) {
  constexpr int kAttempts = 100;
  HelperFile helper;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    const auto moment = std::chrono::system_clock::now().time_since_epoch().count();
    helper.Path = target.parent_path() / (".quorvane-" + std::to_string(moment));
    helper.Handle = OpenForBytes(helper.Path, OpenTo::Create);
    if (helper.Handle || errno != EEXIST) break;
  }
  return helper;
}

std::error_code WriteWhole(OpenFileHandle file, std::string_view content) {
  std::error_code error;
  if (std::fwrite(content.data(), 1, content.size(), file.get()) != content.size() ||
      !FlushToDisk(file.get())) {
    error = LastError();
  }
  if (std::fclose(file.release()) != 0 && !error) error = LastError();
  return error;
}

void CopyRights(const fs::path& from, const fs::path& to) {
  std::error_code isNew;
  const fs::perms rights = fs::status(from, isNew).permissions();
  if (!isNew) fs::permissions(to, rights, isNew);
}

// Writes the content beside the target and renames it over it, down to the disk itself.
std::error_code PutInPlace(const fs::path& target, std::string_view content) {
  HelperFile helper = CreateHelper(target);
  if (!helper.Handle) return LastError();
  std::error_code error = WriteWhole(std::move(helper.Handle), content);
  if (!error) {
    CopyRights(target, helper.Path);
    fs::rename(helper.Path, target, error);
  }
  if (error) {
    std::error_code ignored;
    fs::remove(helper.Path, ignored);
  } else if (!SyncFolder(target.parent_path())) {
    error = LastError();
  }
  return error;
}

// The content of a file as it stands. The file was found as a plain one: a pipe under a map's name
// would keep the program waiting.
Result<std::string> ReadBytes(const fs::path& path) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(path, error);
  if (error) return FileFailure(path, "the file cannot be read", error);
  if (size > kLargestTextFile) {
    return Failure{TextFromPath(path) + ": the file is too large to be one of the game's (" +
                   std::to_string(size / (1024ULL * 1024)) + " MB)"};
  }
  OpenFileHandle file = OpenForBytes(path, OpenTo::Read);
  if (!file) return FileFailure(path, "the file cannot be opened", LastError());
  std::string bytes(size, '\0');
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
  if (std::ferror(file.get())) return FileFailure(path, "the file cannot be read", LastError());
  return bytes;
}

}  // namespace

std::optional<fs::path> FindFile(const fs::path& path) {
  std::error_code error;
  const bool isFound = fs::is_regular_file(path, error);
  if (isFound && SystemTellsCaseApart()) return path;
  const fs::path wanted = path.filename();
  const auto found = NameAmong(FilesNamedLike(path.parent_path(), wanted, ""), wanted);
  if (found) return path.parent_path() / *found;
  return isFound ? std::optional(path) : std::nullopt;
}

std::optional<fs::path> NameAmong(const std::vector<fs::path>& names, const fs::path& wanted) {
  if (std::ranges::find(names, wanted) != names.end()) return wanted;
  // The first in alphabetical order, so that the choice does not depend on the folder's own order.
  const auto found = std::ranges::find_if(
      names, [&](const fs::path& name) { return EqualNames(name.native(), wanted.native()); });
  return found != names.end() ? std::optional(*found) : std::nullopt;
}

fs::path FolderIgnoringCase(const fs::path& parent, std::string_view name) {
  fs::path exact = parent / PathFromText(name);
  std::error_code error;
  if (fs::is_directory(exact, error)) return exact;
  std::optional<fs::path> found;
  for (fs::directory_iterator entry(parent, error), last; !error && entry != last;
       entry.increment(error)) {
    std::error_code kindError;
    if (EqualIgnoringCase(TextFromPath(entry->path().filename()), name) &&
        entry->is_directory(kindError) && (!found || entry->path() < *found)) {
      found = entry->path();
    }
  }
  return found.value_or(exact);
}

std::vector<fs::path> FilesNamedLike(const fs::path& folder, const fs::path& begin,
                                     const fs::path& end) {
  const Name front = begin.native();
  const Name back = end.native();
  std::vector<fs::path> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), last; !error && entry != last;
       entry.increment(error)) {
    std::error_code kindError;
    const fs::path path = entry->path().filename();
    const Name name = path.native();
    if (name.size() >= front.size() + back.size() &&
        EqualNames(name.substr(0, front.size()), front) &&
        EqualNames(name.substr(name.size() - back.size()), back) &&
        entry->is_regular_file(kindError)) {
      names.push_back(path);
    }
  }
  std::ranges::sort(names);
  std::ranges::stable_sort(names, IsBeforeInAlphabet, TextFromPath);
  return names;
}

Result<std::string> ReadTextFile(const fs::path& path) {
  const std::optional<fs::path> found = FindFile(path);
  if (!found) return Failure{TextFromPath(path) + ": there is no such file"};
  Result<std::string> bytes = ReadBytes(*found);
  if (!bytes) return bytes;
  if (const size_t zero = bytes->find('\0'); zero != bytes->npos) {
    const auto line = std::count(bytes->begin(), bytes->begin() + static_cast<long>(zero), '\n');
    return Failure{PlaceInFile(TextFromPath(*found), static_cast<int>(line) + 1) +
                   ": this is no text file, a zero byte stands here"};
  }
  return DecodeText(std::move(*bytes));
}

Result<std::string> ReadOptionalTextFile(const fs::path& path) {
  const std::optional<fs::path> found = FindFile(path);
  if (!found) return std::string();
  Result<std::string> bytes = ReadBytes(*found);
  return bytes ? DecodeText(std::move(*bytes)) : bytes;
}

std::string ReadBeginning(const fs::path& path, std::size_t count) {
  const OpenFileHandle file = OpenForBytes(path, OpenTo::Read);
  if (!file) return {};
  std::setvbuf(file.get(), nullptr, _IONBF, 0);  // a buffer would be filled with more
  std::string bytes(count, '\0');
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
  return bytes;
}

Result<void> SaveText(const fs::path& path, const Result<std::string>& text) {
  if (!text) return text.Error();
  if (text->size() > kLargestTextFile) {
    return Failure{TextFromPath(path) +
                   ": nothing was saved, because a text this large cannot be read back"};
  }
  return ReplaceFile(path, *text);
}

Result<void> ReplaceFile(const fs::path& path, std::string_view content) {
  std::error_code error;
  const std::optional<fs::path> old = FindFile(path);
  fs::path target = old.value_or(path);
  // A link keeps being a link: what it points at is replaced.
  if (fs::is_symlink(target, error)) target = fs::canonical(target, error);
  if (error && target.empty()) return FileFailure(path, "the file cannot be written", error);
  // Renaming would pass over the write protection of the old file, which somebody may rely on.
  if (old && !OpenForBytes(target, OpenTo::Change)) {
    return FileFailure(target, "the file cannot be written", LastError());
  }
  error = PutInPlace(target, content);
  if (error) return FileFailure(target, "the file cannot be written", error);
  return {};
}

}  // namespace quorvane

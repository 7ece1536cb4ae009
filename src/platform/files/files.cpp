#include "platform/files/files.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include "model/text.h"
#include "platform/files/system_files.h"

namespace quorvane {
namespace {

namespace fs = std::filesystem;

Failure FileFailure(const fs::path& path, const std::string& what, const std::error_code& error) {
  return {TextFromPath(path) + ": " + what + " (" + error.message() + ")"};
}

std::error_code LastError() { return {errno, std::generic_category()}; }

// Where a replacement is written before it takes the file's place.
fs::path PathBeside(const fs::path& path) {
  fs::path beside = path;
  beside += ".quorvane-new";
  return beside;
}

std::error_code WriteWholeFile(const fs::path& path, std::string_view content) {
  OpenFileHandle file = OpenForBytes(path, OpenTo::Write);
  if (!file) return LastError();
  std::error_code error;
  if (std::fwrite(content.data(), 1, content.size(), file.get()) != content.size() ||
      !FlushToDisk(file.get())) {
    error = LastError();
  }
  if (std::fclose(file.release()) != 0 && !error) error = LastError();
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
  const std::string wanted = TextFromPath(path.filename());
  const auto found = NameAmong(FilesNamedLike(path.parent_path(), wanted, ""), wanted);
  if (found) return path.parent_path() / PathFromText(*found);
  return isFound ? std::optional(path) : std::nullopt;
}

std::optional<std::string> NameAmong(const std::vector<std::string>& names,
                                     std::string_view wanted) {
  if (std::ranges::find(names, wanted) != names.end()) return std::string(wanted);
  // The first in alphabetical order, so that the choice does not depend on the folder's own order.
  const auto found = std::ranges::find_if(
      names, [&](const std::string& name) { return EqualIgnoringCase(name, wanted); });
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

std::vector<std::string> FilesNamedLike(const fs::path& folder, std::string_view begin,
                                        std::string_view end) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), last; !error && entry != last;
       entry.increment(error)) {
    std::error_code kindError;
    const std::string name = TextFromPath(entry->path().filename());
    if (name.size() >= begin.size() + end.size() &&
        EqualIgnoringCase(std::string_view(name).substr(0, begin.size()), begin) &&
        EqualIgnoringCase(std::string_view(name).substr(name.size() - end.size()), end) &&
        entry->is_regular_file(kindError)) {
      names.push_back(name);
    }
  }
  std::ranges::sort(names, IsBeforeInAlphabet);
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

Result<void> SaveText(const fs::path& path, const Result<std::string>& text) {
  if (!text) return Failure{text.Message()};
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
  const fs::path beside = PathBeside(target);
  error = WriteWholeFile(beside, content);
  if (!error) {
    std::error_code isNew;
    const fs::perms rights = fs::status(target, isNew).permissions();
    if (!isNew) fs::permissions(beside, rights, isNew);
    fs::rename(beside, target, error);
  }
  if (!error) return {};
  std::error_code ignored;
  fs::remove(beside, ignored);
  return FileFailure(target, "the file cannot be written", error);
}

}  // namespace quorvane

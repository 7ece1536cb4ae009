#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"

namespace quorvane {

/// The largest file of text that the program reads; a game's own files are a hundred times smaller.
inline constexpr std::uintmax_t kLargestTextFile = 8ULL * 1024 * 1024;

/// The path that a text in UTF-8 means, whatever the platform keeps paths in. Never fails: on
/// Windows, where not all bytes are a name, what has no equal is replaced.
std::filesystem::path PathFromText(std::string_view text);
/// A path as the user reads it, in UTF-8. Not all names are text, those from old archives are in
/// an encoding of their own: this is no way to keep a path.
std::string TextFromPath(const std::filesystem::path& path);

/// The file that a path means: the game comes from a system that ignores the case of file names, so
/// an exact name wins, otherwise a name in the same folder that differs only in case is the file.
/// @return the path with the name as it is written on the disk; nothing when there is no such file
std::optional<std::filesystem::path> FindFile(const std::filesystem::path& path);

/// The same among the names that a folder lists in alphabetical order, for those who look for many
/// of its files: a folder may hold thousands and lie behind a slow network.
std::optional<std::filesystem::path> NameAmong(const std::vector<std::filesystem::path>& names,
                                               const std::filesystem::path& wanted);

/// The subfolder of that name: an exact name wins, otherwise one that differs only in case; the
/// name as it stands when there is neither.
std::filesystem::path FolderIgnoringCase(const std::filesystem::path& parent,
                                         std::string_view name);

/// The names of a folder's files (not folders) that begin and end with the given texts, ignoring
/// case, in alphabetical order; none for a folder that cannot be read.
std::vector<std::filesystem::path> FilesNamedLike(const std::filesystem::path& folder,
                                                  const std::filesystem::path& begin,
                                                  const std::filesystem::path& end);

/// The decoded text of a file, found as `FindFile` finds it. Fails with name and reason for a file
/// that is missing, no plain file, unreadable or larger than `kLargestTextFile`, or that holds a
/// zero byte.
Result<std::string> ReadTextFile(const std::filesystem::path& path);

/// The same for one of the program's own files: a missing one gives an empty text, and zero bytes,
/// as a crash of the system leaves them, are characters as good as others.
Result<std::string> ReadOptionalTextFile(const std::filesystem::path& path);

/// The first bytes of a file, by its path on the disk: so many, or all of a shorter file, or none
/// of one that cannot be read. No more of it is touched.
std::string ReadBeginning(const std::filesystem::path& path, std::size_t count);

/// Replaces a file whole: the new content is written beside it, flushed and renamed over it, so
/// that the old file is unharmed until the new one is complete, and of several programs that save
/// at once the last one wins. A file that exists in another case keeps its name, one that is
/// protected against writing its content. Fails with name and reason.
Result<void> ReplaceFile(const std::filesystem::path& path, std::string_view content);
/// Replaces a file by a text that may have failed to come about; it then stays untouched, as it
/// does where the text would be too large to be read.
Result<void> SaveText(const std::filesystem::path& path, const Result<std::string>& text);

}  // namespace quorvane

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvane {

/// A folder of its own for one test, gone when the test ends.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const;
  /// Writes a file of these bytes and gives its path.
  std::filesystem::path Write(std::string_view name, std::string_view bytes) const;
  /// The bytes of a file; empty when there is none.
  std::string Read(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace quorvane

#include "support/temp_folder.h"

#include <fstream>
#include <iterator>
#include <random>

#include "files/files.h"

namespace quorvane {

TempFolder::TempFolder() {
  std::random_device random;
  path_ = std::filesystem::temp_directory_path() /
          ("quorvane-test-" + std::to_string(random()) + std::to_string(random()));
  std::filesystem::create_directories(path_);
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TempFolder::operator/(std::string_view name) const {
  return path_ / PathFromText(name);
}

std::filesystem::path TempFolder::Write(std::string_view name, std::string_view bytes) const {
  const std::filesystem::path path = *this / name;
  std::ofstream(path, std::ios::binary) << bytes;
  return path;
}

std::string TempFolder::Read(std::string_view name) const {
  std::ifstream file(*this / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace quorvane

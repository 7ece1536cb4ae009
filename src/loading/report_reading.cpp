#include "loading/report_reading.h"

#include "files/files.h"

namespace quorvane {

Result<std::string> ReadReport(const std::filesystem::path& path) {
  Result<std::string> text = ReadTextFile(path);
  if (text && text->empty()) {
    return Failure{TextFromPath(path) +
                   ", line 1: the heading of a planet report was expected, the file is empty"};
  }
  return text;
}

}  // namespace quorvane

// Any bytes under a map's name give a map or a message.
#include <cstddef>
#include <cstdint>
#include <string>

#include "loading/map_file.h"
#include "loading/settings_file.h"
#include "model/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text =
      quorvane::DecodeText(std::string(reinterpret_cast<const char*>(data), size));
  quorvane::ParseUniverseMap(text, "fuzz.map");
  quorvane::InstallDirIn(text);
  return 0;
}

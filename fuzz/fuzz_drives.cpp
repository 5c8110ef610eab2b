// drives.ini is written by hand: whatever stands in it gives a table of usable drives or a message.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/platform/dos_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> missing;
  const auto drives = zarvo::DosWorld::ParseDrives(text, "/home/me/dos/Zarvo", missing);
  if (!drives) {
    if (drives.error().message.empty()) std::abort();
    return 0;
  }
  for (const auto& [letter, folder] : *drives) {
    const bool absolute = folder.is_absolute() && folder.native().find('\0') == std::string::npos;
    if (letter < 'A' || letter > 'Z' || !absolute) std::abort();
  }
  const zarvo::DosWorld world(*drives);
  for (const auto& [letter, folder] : *drives) {
    const auto path = world.DosPathOf(folder);
    if (path && !world.HostPath(*path)) std::abort();
  }
  return 0;
}

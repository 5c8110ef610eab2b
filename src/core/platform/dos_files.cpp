#include "core/platform/dos_files.h"

#include <algorithm>

namespace zarvo {
namespace {

constexpr std::size_t kLargestFile = std::size_t{64} << 20;
constexpr std::size_t kFirstPiece = std::size_t{64} * 1024;

}  // namespace

Result<std::string> ReadAll(const DosFiles& files, const DosPath& path) {
  auto source = files.Open(path);
  if (!source) return source.error();
  std::string bytes;
  std::size_t used = 0;
  // A file may grow after it was opened.
  while (used <= kLargestFile && (*source)->Size() <= kLargestFile) {
    if (used == bytes.size()) bytes.resize(std::max(kFirstPiece, used * 2));
    const std::size_t read = (*source)->Read(bytes.data() + used, bytes.size() - used);
    used += read;
    if (read != 0) continue;
    if ((*source)->Failed()) return Error{"The file could not be read to its end"};
    bytes.resize(used);
    return bytes;
  }
  return Error{"The file is larger than 64 MiB"};
}

}  // namespace zarvo

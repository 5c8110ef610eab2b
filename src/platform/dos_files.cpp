#include "platform/dos_files.h"

#include <algorithm>

namespace zarvo {
namespace {

constexpr std::size_t kLargestFile = std::size_t{1} << 30;
constexpr std::size_t kFirstPiece = std::size_t{64} * 1024;

}  // namespace

Result<std::string> ReadAll(const DosFiles& files, std::string_view path) {
  auto source = files.Open(path);
  if (!source) return source.error();
  std::string bytes;
  std::size_t used = 0;
  for (;;) {
    if (used == bytes.size()) bytes.resize(std::max(kFirstPiece, used * 2));
    const std::size_t read = (*source)->Read(bytes.data() + used, bytes.size() - used);
    if (read == 0) break;
    used += read;
    if (used > kLargestFile) return Error{"File too large"};
  }
  if ((*source)->Failed()) return Error{"The file could not be read to its end"};
  bytes.resize(used);
  return bytes;
}

Result<std::string> ReadReplaceable(DosFiles& files, std::string_view path,
                                    std::string_view temporary) {
  if (files.FileExists(temporary)) {
    if (files.FileExists(path)) {
      Ignore(files.DeleteFile(temporary));
    } else {
      const Status renamed = files.RenameFile(temporary, path);
      if (!renamed) return renamed.error();
    }
  }
  return ReadAll(files, path);
}

}  // namespace zarvo

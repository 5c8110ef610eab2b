#include "core/platform/long_line.h"

#include <array>

namespace zarvo {
namespace {

// Assembled from long_line.asm by the build.
constexpr auto kCode = std::to_array<unsigned char>({
#include "long_line.inc"
});

}  // namespace

std::string LongLineProgram(const BatchLine& line) {
  std::string program(kCode.begin(), kCode.end());
  for (const std::string& text : {line.program.Text(), line.tail}) program += text + '\0';
  return program;
}

}  // namespace zarvo

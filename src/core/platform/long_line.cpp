#include "core/platform/long_line.h"

#include <cstddef>

namespace zarvo {

// Assembled from long_line.asm by the build.
extern const unsigned char kLongLineCode[];
extern const std::size_t kLongLineCodeSize;

std::string LongLineProgram(const BatchLine& line) {
  std::string program(kLongLineCode, kLongLineCode + kLongLineCodeSize);
  for (const std::string& text : {line.program.Text(), line.tail}) program += text + '\0';
  return program;
}

}  // namespace zarvo

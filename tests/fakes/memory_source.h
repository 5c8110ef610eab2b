// A file's bytes in memory, whole or broken off half way.
#pragma once

#include <string>
#include <string_view>

#include "core/platform/dos_files.h"

namespace zarvo {

class MemorySource : public ByteSource {
 public:
  MemorySource(std::string_view bytes, bool breaks_off)
      : rest_(bytes.substr(0, breaks_off ? bytes.size() / 2 : bytes.size())),
        breaks_off_(breaks_off) {}
  [[nodiscard]] bool Failed() const override { return breaks_off_ && rest_.empty(); }
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = rest_.copy(buffer, size);
    rest_.erase(0, count);
    return count;
  }

 private:
  std::string rest_;
  bool breaks_off_;
};

}  // namespace zarvo

#pragma once

#include <algorithm>
#include <string>

#include "core/platform/dos_files.h"

namespace zarvo {

// Gives its text in pieces of a fixed size, as a pipe or a slow disk may.
class PieceSource : public ByteSource {
 public:
  PieceSource(std::string_view text, std::size_t piece) : text_(text), piece_(piece) {}
  std::size_t Read(char* buffer, std::size_t size) override {
    const std::size_t count = text_.copy(buffer, std::min(size, piece_), at_);
    at_ += count;
    return count;
  }

 private:
  std::string text_;
  std::size_t piece_;
  std::size_t at_ = 0;
};

}  // namespace zarvo

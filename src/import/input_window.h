// The part of a list that is being looked at: a buffer that slides over the input and knows the
// number of the line that a byte of it stands in.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "core/platform/dos_files.h"

namespace zarvo {

// The longest piece between two tags, the longest tag, comment or text that is taken. It bounds the
// memory that any input can claim.
inline constexpr std::size_t kLongestToken = 1U << 20;

class InputWindow {
 public:
  // `source` must outlive the window.
  explicit InputWindow(ByteSource& source);

  // The bytes not yet consumed.
  [[nodiscard]] const char* Begin() const { return buffer_.get() + begin_; }
  [[nodiscard]] const char* End() const { return buffer_.get() + end_; }
  [[nodiscard]] std::string_view Rest() const { return {Begin(), end_ - begin_}; }
  // `place` lies between Begin() and End().
  void ConsumeTo(const char* place) { begin_ = static_cast<std::size_t>(place - buffer_.get()); }

  // Reads more behind End(); pointers into the window become invalid. False at the end of the
  // input and when kLongestToken bytes stand in the window already.
  bool Grow();
  [[nodiscard]] bool TooLong() const { return end_ - begin_ >= kLongestToken; }

  // Number of the line that `place` stands in, from 1.
  [[nodiscard]] std::size_t LineOf(const char* place) const;
  // "line 12: message", for the line of `place`.
  [[nodiscard]] std::string At(const char* place, std::string_view message) const;

 private:
  void Slide();

  ByteSource& source_;
  std::size_t capacity_;
  std::unique_ptr<char[]> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  std::size_t lines_before_ = 0;  // line feeds that have left the buffer
};

}  // namespace zarvo

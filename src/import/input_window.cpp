#include "import/input_window.h"

#include <algorithm>
#include <cstring>

namespace zarvo {
namespace {

constexpr std::size_t kReadSize = std::size_t{128} << 10;

std::size_t CountLineFeeds(const char* bytes, std::size_t size) {
  return static_cast<std::size_t>(std::count(bytes, bytes + size, '\n'));
}

}  // namespace

InputWindow::InputWindow(ByteSource& source)
    : source_(source),
      capacity_(2 * kReadSize),
      buffer_(std::make_unique_for_overwrite<char[]>(capacity_)) {}

void InputWindow::Slide() {
  lines_before_ += CountLineFeeds(buffer_.get(), begin_);
  const std::size_t kept = end_ - begin_;
  if (kept + kReadSize > capacity_) {
    capacity_ = 2 * (kept + kReadSize);
    auto larger = std::make_unique_for_overwrite<char[]>(capacity_);
    std::memcpy(larger.get(), Begin(), kept);
    buffer_ = std::move(larger);
  } else {
    std::memmove(buffer_.get(), Begin(), kept);
  }
  begin_ = 0;
  end_ = kept;
}

bool InputWindow::Grow() {
  if (TooLong()) return false;
  Slide();
  const std::size_t got = source_.Read(buffer_.get() + end_, kReadSize);
  end_ += got;
  return got != 0;
}

std::size_t InputWindow::LineOf(const char* place) const {
  const auto offset = static_cast<std::size_t>(place - buffer_.get());
  return 1 + lines_before_ + CountLineFeeds(buffer_.get(), offset);
}

std::string InputWindow::At(const char* place, std::string_view message) const {
  return "line " + std::to_string(LineOf(place)) + ": " + std::string(message);
}

}  // namespace zarvo

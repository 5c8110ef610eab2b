#include "import/input_window.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>

namespace zarvo {
namespace {

constexpr std::size_t kReadSize = std::size_t{128} << 10;
constexpr std::size_t kPadding = 64;

std::unique_ptr<char[]> MakeBuffer(std::size_t capacity) {
  auto buffer = std::make_unique_for_overwrite<char[]>(capacity + kPadding);
  std::memset(buffer.get(), 0, kPadding);
  return buffer;
}

// `kWidth` bytes per step. Inlined to make use of what the processor of the calling function has.
template <std::size_t kWidth>
[[gnu::always_inline]] inline std::size_t CountInSteps(const char* bytes, std::size_t size) {
  using Bytes [[gnu::vector_size(kWidth)]] = unsigned char;
  std::size_t count = 0;
  while (size >= kWidth) {
    // A byte of the sum holds at most 255.
    const std::size_t steps = std::min<std::size_t>(size / kWidth, 255);
    Bytes sum = {};
    for (std::size_t i = 0; i < steps; ++i, bytes += kWidth) {
      Bytes some;
      std::memcpy(&some, bytes, kWidth);
      sum += (some == '\n') & 1;
    }
    std::array<unsigned char, kWidth> sums;
    std::memcpy(sums.data(), &sum, kWidth);
    count = std::accumulate(sums.begin(), sums.end(), count);
    size -= steps * kWidth;
  }
  return count + static_cast<std::size_t>(std::count(bytes, bytes + size, '\n'));
}

#if defined(__x86_64__)
[[gnu::target("avx2")]] std::size_t CountBy32(const char* bytes, std::size_t size) {
  return CountInSteps<32>(bytes, size);
}
#endif

}  // namespace

std::size_t CountLineFeeds(const char* bytes, std::size_t size) {
#if defined(__x86_64__)
  if (__builtin_cpu_supports("avx2") != 0) return CountBy32(bytes, size);
#endif
  return CountInSteps<16>(bytes, size);
}

InputWindow::InputWindow(ByteSource& source)
    : source_(source), capacity_(2 * kReadSize), buffer_(MakeBuffer(capacity_)) {}

void InputWindow::Slide() {
  lines_before_ += CountLineFeeds(buffer_.get(), begin_);
  const std::size_t kept = end_ - begin_;
  if (kept + kReadSize > capacity_) {
    capacity_ = 2 * (kept + kReadSize);
    auto larger = MakeBuffer(capacity_);
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
  std::memset(buffer_.get() + end_, 0, kPadding);
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

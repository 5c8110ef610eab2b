#include "import/input_window.h"

#include <algorithm>
#include <cstring>

#include "import/byte_block.h"

namespace zarvo {
namespace {

constexpr std::size_t kReadSize = std::size_t{128} << 10;
constexpr std::size_t kPadding = 64;

std::unique_ptr<char[]> MakeBuffer(std::size_t capacity) {
  auto buffer = std::make_unique_for_overwrite<char[]>(capacity + kPadding);
  std::memset(buffer.get(), 0, kPadding);
  return buffer;
}

}  // namespace

std::size_t CountLineFeeds(const char* bytes, std::size_t size) {
  std::size_t count = 0;
#if defined(__SSE2__)
  const __m128i line_feed = _mm_set1_epi8('\n');
  while (size >= kBlockSize) {
    // A byte of the sum holds at most 255.
    const std::size_t blocks = std::min<std::size_t>(size / kBlockSize, 255);
    __m128i sum = _mm_setzero_si128();
    for (std::size_t i = 0; i < blocks; ++i, bytes += kBlockSize) {
      const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
      sum = _mm_sub_epi8(sum, _mm_cmpeq_epi8(block, line_feed));
    }
    const __m128i halves = _mm_sad_epu8(sum, _mm_setzero_si128());
    count += static_cast<std::size_t>(_mm_cvtsi128_si64(halves)) +
             static_cast<std::size_t>(_mm_cvtsi128_si64(_mm_srli_si128(halves, 8)));
    size -= blocks * kBlockSize;
  }
#endif
  return count + static_cast<std::size_t>(std::count(bytes, bytes + size, '\n'));
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

#include "core/platform/line_reader.h"

#include <cstring>
#include <utility>

namespace zarvo {
namespace {

constexpr std::size_t kBufferSize = std::size_t{256} * 1024;
// A line and its CR: with more than this in the buffer and no LF, the line is too long.
constexpr std::size_t kLongestHeld = kLongestLine + 1;
static_assert(kBufferSize > 2 * kLongestHeld);

}  // namespace

LineReader::LineReader(std::unique_ptr<ByteSource> source)
    : source_(std::move(source)), buffer_(std::make_unique_for_overwrite<char[]>(kBufferSize)) {}

bool LineReader::Next(std::string_view& line) {
  for (;;) {
    const char* const start = buffer_.get() + begin_;
    const std::size_t held = end_ - begin_;
    const void* const line_end = held == 0 ? nullptr : std::memchr(start, '\n', held);
    if (line_end != nullptr) {
      const auto size = static_cast<std::size_t>(static_cast<const char*>(line_end) - start);
      begin_ += size + 1;
      line = std::string_view(start, size);
    } else if (!at_end_) {
      if (held > kLongestHeld) {
        PassOver();
      } else {
        Fill();
      }
      continue;
    } else if (held != 0) {
      begin_ = end_;
      line = std::string_view(start, held);
    } else {
      return false;
    }
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.size() <= kLongestLine) return true;
  }
}

bool LineReader::Fill() {
  const std::size_t held = end_ - begin_;
  if (begin_ != 0 && held != 0) std::memmove(buffer_.get(), buffer_.get() + begin_, held);
  begin_ = 0;
  end_ = held;
  const std::size_t read = source_->Read(buffer_.get() + end_, kBufferSize - end_);
  end_ += read;
  at_end_ = read == 0;
  return !at_end_;
}

void LineReader::PassOver() {
  do {
    begin_ = end_;
    if (!Fill()) return;
    const void* const line_end = std::memchr(buffer_.get(), '\n', end_);
    if (line_end == nullptr) continue;
    begin_ = static_cast<std::size_t>(static_cast<const char*>(line_end) - buffer_.get()) + 1;
    return;
  } while (true);
}

}  // namespace zarvo

// Sixteen bytes of the input at a time.
//
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zarvo {

// Bit i of a mask stands for byte i of the block.
using BlockMask = std::uint32_t;
inline constexpr std::size_t kBlockSize = 16;

// The block in plain C++, for processors without the instructions and to check them against.
class PlainBlock {
 public:
  explicit PlainBlock(const char* bytes) : bytes_(bytes) {}
  [[nodiscard]] BlockMask Equal(char wanted) const {
    BlockMask mask = 0;
    for (std::size_t i = 0; i < kBlockSize; ++i) mask |= BlockMask{bytes_[i] == wanted} << i;
    return mask;
  }
  // "<" and ">".
  [[nodiscard]] BlockMask EitherBracket() const { return Equal('<') | Equal('>'); }
  // Blanks and control characters.
  [[nodiscard]] BlockMask Blank() const {
    BlockMask mask = 0;
    for (std::size_t i = 0; i < kBlockSize; ++i) {
      mask |= BlockMask{static_cast<unsigned char>(bytes_[i]) <= ' '} << i;
    }
    return mask;
  }

 private:
  const char* bytes_;
};

#if defined(__SSE2__)
class VectorBlock {
 public:
  explicit VectorBlock(const char* bytes)
      : bytes_(_mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes))) {}
  [[nodiscard]] BlockMask Equal(char wanted) const {
    return Mask(_mm_cmpeq_epi8(bytes_, _mm_set1_epi8(wanted)));
  }
  // The two differ in one bit.
  [[nodiscard]] BlockMask EitherBracket() const {
    static_assert(('<' | 2) == '>');
    return Mask(_mm_cmpeq_epi8(_mm_or_si128(bytes_, _mm_set1_epi8(2)), _mm_set1_epi8('>')));
  }
  [[nodiscard]] BlockMask Blank() const {
    return Mask(_mm_cmpeq_epi8(_mm_min_epu8(bytes_, _mm_set1_epi8(' ')), bytes_));
  }

 private:
  static BlockMask Mask(__m128i bytes) { return static_cast<BlockMask>(_mm_movemask_epi8(bytes)); }
  __m128i bytes_;
};
using Block = VectorBlock;
#else
using Block = PlainBlock;
#endif

inline std::size_t FirstBit(BlockMask mask) {
  return static_cast<std::size_t>(std::countr_zero(mask));
}

// Where `stops(block)` sets the first bit in `text`, which 15 readable bytes follow, or its size.
template <typename Stops>
std::size_t FindInBlocks(std::string_view text, Stops stops) {
  for (std::size_t at = 0; at < text.size(); at += kBlockSize) {
    const BlockMask found = stops(Block(text.data() + at));
    if (found != 0) return std::min(at + FirstBit(found), text.size());
  }
  return text.size();
}

}  // namespace zarvo

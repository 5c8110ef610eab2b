#include "import/mark_index.h"

#include <algorithm>
#include <array>
#include <bit>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace zarvo {
namespace {

constexpr std::size_t kBlock = 64;

// What stands in a block; bit i for byte i.
struct BlockMarks {
  std::uint64_t marks = 0;
  std::uint64_t quotes = 0;
};

// Bit i is set if an odd number of bits of `mask` stand at or before i.
[[gnu::always_inline]] inline std::uint64_t OddSince(std::uint64_t mask) {
  for (int step = 1; step < 64; step *= 2) mask ^= mask << step;
  return mask;
}

// Appends the marks of the block that begins at `base`, and `quoted` says of each of its bytes
// whether it is odd. Inlined to make use of what the processor of the calling function has.
template <bool kAnyOdd>
[[gnu::always_inline]] inline Mark* Append(std::uint64_t marks, std::uint64_t quoted,
                                           std::size_t base, Mark* out) {
  // Four at a time, as how many there are can't be foretold; what isn't a mark is overwritten. The
  // last bit keeps the search from asking whether there is one.
  constexpr std::uint64_t kLastBit = std::uint64_t{1} << (kBlock - 1);
  Mark* const end = out + std::popcount(marks);
  while (out < end) {
    for (int i = 0; i < 4; ++i) {
      const auto bit = static_cast<std::size_t>(std::countr_zero(marks | kLastBit));
      *out++ = Mark(base + bit, kAnyOdd && (quoted >> bit & 1) != 0);
      marks &= marks - 1;
    }
  }
  return end;
}

// The same for `found`. `odd` is all ones if the number of quotation marks before the block is odd,
// else 0, and is brought behind the block.
[[gnu::always_inline]] inline Mark* Append(BlockMarks found, std::size_t base, std::uint64_t& odd,
                                           Mark* out) {
  const std::uint64_t quoted = OddSince(found.quotes) ^ odd;
  odd = (quoted >> 63) != 0 ? ~std::uint64_t{0} : 0;
  return (found.marks & quoted) == 0 ? Append<false>(found.marks, quoted, base, out)
                                     : Append<true>(found.marks, quoted, base, out);
}

// For processors without the instructions, and to check them against.
Mark* FindPlainly(std::string_view text, Mark* out) {
  std::uint64_t odd = 0;
  for (std::size_t base = 0; base < text.size(); base += kBlock) {
    BlockMarks found;
    for (std::size_t i = 0; i < kBlock && base + i < text.size(); ++i) {
      const char c = text[base + i];
      found.marks |= std::uint64_t{c == '<' || c == '>' || c == '\''} << i;
      found.quotes |= std::uint64_t{c == '"'} << i;
    }
    out = Append(found, base, odd, out);
  }
  return out;
}

#if defined(__x86_64__)

// "<" and ">" differ in this bit, which every apostrophe has.
constexpr char kBracketBit = 2;
static_assert(('<' | kBracketBit) == '>' && ('\'' & kBracketBit) != 0);

std::uint64_t Mask(__m128i bytes) { return static_cast<std::uint32_t>(_mm_movemask_epi8(bytes)); }

Mark* FindBy16(std::string_view text, Mark* out) {
  std::uint64_t odd = 0;
  for (std::size_t base = 0; base < text.size(); base += kBlock) {
    BlockMarks found;
    for (std::size_t i = 0; i < kBlock; i += sizeof(__m128i)) {
      const char* const start = text.data() + base + i;
      const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(start));
      const __m128i bracket =
          _mm_cmpeq_epi8(_mm_or_si128(bytes, _mm_set1_epi8(kBracketBit)), _mm_set1_epi8('>'));
      const __m128i apostrophe = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\''));
      found.marks |= Mask(_mm_or_si128(bracket, apostrophe)) << i;
      found.quotes |= Mask(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('"'))) << i;
    }
    out = Append(found, base, odd, out);
  }
  return out;
}

[[gnu::target("avx2"), gnu::always_inline]] inline std::uint64_t Mask(__m256i bytes) {
  return static_cast<std::uint32_t>(_mm256_movemask_epi8(bytes));
}

[[gnu::target("avx2,bmi,bmi2,popcnt")]] Mark* FindBy32(std::string_view text, Mark* out) {
  std::uint64_t odd = 0;
  for (std::size_t base = 0; base < text.size(); base += kBlock) {
    BlockMarks found;
    for (std::size_t i = 0; i < kBlock; i += sizeof(__m256i)) {
      const char* const start = text.data() + base + i;
      const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(start));
      const __m256i bracket = _mm256_cmpeq_epi8(
          _mm256_or_si256(bytes, _mm256_set1_epi8(kBracketBit)), _mm256_set1_epi8('>'));
      const __m256i apostrophe = _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('\''));
      found.marks |= Mask(_mm256_or_si256(bracket, apostrophe)) << i;
      found.quotes |= Mask(_mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('"'))) << i;
    }
    out = Append(found, base, odd, out);
  }
  return out;
}

// Whoever has the second set of bit instructions has the first and the counting of bits.
bool Has32() { return __builtin_cpu_supports("avx2") != 0 && __builtin_cpu_supports("bmi2") != 0; }
constexpr std::array<FindMarks, 3> kWays = {FindBy32, FindBy16, FindPlainly};
#else
bool Has32() { return true; }
constexpr std::array<FindMarks, 1> kWays = {FindPlainly};
#endif

}  // namespace

std::span<const FindMarks> WaysToFindMarks() { return std::span(kWays).subspan(Has32() ? 0 : 1); }

const Mark* MarkIndex::Build(std::string_view text) {
  constexpr std::size_t kSpare = 4;
  if (text.size() + kSpare > room_) {
    room_ = text.size() + kSpare;
    marks_ = std::make_unique_for_overwrite<Mark[]>(room_);
  }
  std::fill_n(find_(text, marks_.get()), 2, Mark(text.size(), false));
  return marks_.get();
}

}  // namespace zarvo

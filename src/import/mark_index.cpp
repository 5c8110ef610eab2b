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

// Functions that are inlined for good make use of what the processor of their callers has.

// Bit i is set if an odd number of bits of `mask` stand at or before i.
[[gnu::always_inline]] inline std::uint64_t OddSince(std::uint64_t mask) {
  for (int step = 1; step < 64; step *= 2) mask ^= mask << step;
  return mask;
}

// All ones if an odd number of quotation marks stands before the next block, else 0.
[[gnu::always_inline]] inline std::uint64_t Carry(std::uint64_t quoted) {
  return (quoted >> (kBlock - 1)) != 0 ? ~std::uint64_t{0} : 0;
}

// Append for a block of which the caller knows whether any of its marks is odd.
template <bool kAnyOdd>
[[gnu::always_inline]] inline Mark* AppendEach(std::uint64_t marks, std::uint64_t quoted,
                                               std::size_t base, Mark* out) {
  // The last bit keeps the search from asking whether there is one.
  constexpr std::uint64_t kLastBit = std::uint64_t{1} << (kBlock - 1);
  Mark* const end = out + std::popcount(marks);
  // Four at a time, as how many there are can't be foretold; what isn't a mark is overwritten.
  do {
    for (int i = 0; i < 4; ++i) {
      const auto bit = static_cast<std::size_t>(std::countr_zero(marks | kLastBit));
      *out++ = Mark(base + bit, kAnyOdd && (quoted >> bit & 1) != 0);
      marks &= marks - 1;
    }
  } while (out < end);
  return end;
}

// Appends the marks of the block that begins at `base`; bit i stands for its byte i. `quoted` says
// of every byte whether an odd number of quotation marks stands up to it.
[[gnu::always_inline]] inline Mark* Append(std::uint64_t marks, std::uint64_t quoted,
                                           std::size_t base, Mark* out) {
  return (marks & quoted) == 0 ? AppendEach<false>(marks, quoted, base, out)
                               : AppendEach<true>(marks, quoted, base, out);
}

// For processors without the instructions, and to check them against.
Mark* FindPlainly(std::string_view text, Mark* out) {
  std::uint64_t odd = 0;
  for (std::size_t base = 0; base < text.size(); base += kBlock) {
    std::uint64_t marks = 0;
    std::uint64_t quotes = 0;
    for (std::size_t i = 0; i < kBlock && base + i < text.size(); ++i) {
      const char c = text[base + i];
      marks |= std::uint64_t{c == '<' || c == '>' || c == '\''} << i;
      quotes |= std::uint64_t{c == '"'} << i;
    }
    const std::uint64_t quoted = OddSince(quotes) ^ odd;
    out = Append(marks, quoted, base, out);
    odd = Carry(quoted);
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
    std::uint64_t marks = 0;
    std::uint64_t quotes = 0;
    for (std::size_t i = 0; i < kBlock; i += sizeof(__m128i)) {
      const char* const start = text.data() + base + i;
      const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(start));
      const __m128i bracket =
          _mm_cmpeq_epi8(_mm_or_si128(bytes, _mm_set1_epi8(kBracketBit)), _mm_set1_epi8('>'));
      const __m128i apostrophe = _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\''));
      marks |= Mask(_mm_or_si128(bracket, apostrophe)) << i;
      quotes |= Mask(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('"'))) << i;
    }
    const std::uint64_t quoted = OddSince(quotes) ^ odd;
    out = Append(marks, quoted, base, out);
    odd = Carry(quoted);
  }
  return out;
}

// OddSince as the product with -1 without carries.
[[gnu::target("pclmul"), gnu::always_inline]] inline std::uint64_t OddByProduct(
    std::uint64_t mask) {
  const __m128i factor = _mm_cvtsi64_si128(static_cast<long long>(mask));
  const __m128i product = _mm_clmulepi64_si128(factor, _mm_set1_epi8(-1), 0);
  return static_cast<std::uint64_t>(_mm_cvtsi128_si64(product));
}

[[gnu::target("avx2"), gnu::always_inline]] inline std::uint64_t Mask(__m256i bytes) {
  return static_cast<std::uint32_t>(_mm256_movemask_epi8(bytes));
}

[[gnu::target("avx2,bmi,bmi2,pclmul,popcnt")]] Mark* FindBy32(std::string_view text, Mark* out) {
  std::uint64_t odd = 0;
  for (std::size_t base = 0; base < text.size(); base += kBlock) {
    std::uint64_t marks = 0;
    std::uint64_t quotes = 0;
    for (std::size_t i = 0; i < kBlock; i += sizeof(__m256i)) {
      const char* const start = text.data() + base + i;
      const __m256i bytes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(start));
      const __m256i bracket = _mm256_cmpeq_epi8(
          _mm256_or_si256(bytes, _mm256_set1_epi8(kBracketBit)), _mm256_set1_epi8('>'));
      const __m256i apostrophe = _mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('\''));
      marks |= Mask(_mm256_or_si256(bracket, apostrophe)) << i;
      quotes |= Mask(_mm256_cmpeq_epi8(bytes, _mm256_set1_epi8('"'))) << i;
    }
    const std::uint64_t quoted = OddByProduct(quotes) ^ odd;
    out = Append(marks, quoted, base, out);
    odd = Carry(quoted);
  }
  return out;
}

// 0, 2, 4 and so on: the bytes of a block as they stand in a Mark.
constexpr auto kDoubled = [] {
  std::array<unsigned char, kBlock> doubled{};
  for (std::size_t i = 0; i < kBlock; ++i) doubled[i] = static_cast<unsigned char>(2 * i);
  return doubled;
}();

// The marks of a block that has at most sixteen, none of them odd.
[[gnu::target("avx512bw,avx512vbmi2"), gnu::always_inline]] inline void StoreSixteen(
    std::uint64_t marks, std::size_t base, Mark* out) {
  const __m512i bits = _mm512_maskz_compress_epi8(marks, _mm512_loadu_si512(kDoubled.data()));
  const __m512i wide =
      _mm512_maskz_cvtepu8_epi32(0xFFFF, _mm512_maskz_extracti32x4_epi32(0xF, bits, 0));
  _mm512_storeu_si512(out, _mm512_add_epi32(wide, _mm512_set1_epi32(static_cast<int>(2 * base))));
}

[[gnu::target("avx512bw,avx512vbmi2,bmi,bmi2,pclmul,popcnt")]] Mark* FindBy64(std::string_view text,
                                                                              Mark* out) {
  std::uint64_t odd = 0;
  for (std::size_t base = 0; base < text.size(); base += kBlock) {
    const __m512i bytes = _mm512_loadu_si512(text.data() + base);
    const std::uint64_t marks =
        _mm512_cmpeq_epi8_mask(_mm512_or_si512(bytes, _mm512_set1_epi8(kBracketBit)),
                               _mm512_set1_epi8('>')) |
        _mm512_cmpeq_epi8_mask(bytes, _mm512_set1_epi8('\''));
    const std::uint64_t quotes = _mm512_cmpeq_epi8_mask(bytes, _mm512_set1_epi8('"'));
    const std::uint64_t quoted = OddByProduct(quotes) ^ odd;
    odd = Carry(quoted);
    if ((marks & quoted) != 0 || std::popcount(marks) > 16) {
      out = Append(marks, quoted, base, out);
    } else {
      StoreSixteen(marks, base, out);
      out += std::popcount(marks);
    }
  }
  return out;
}

// How many of the ways below, from the first, this processor lacks the instructions for.
std::size_t CountMissingWays() {
  if (__builtin_cpu_supports("avx2") == 0 || __builtin_cpu_supports("bmi2") == 0 ||
      __builtin_cpu_supports("pclmul") == 0) {
    return 2;
  }
  return __builtin_cpu_supports("avx512bw") != 0 && __builtin_cpu_supports("avx512vbmi2") != 0 ? 0
                                                                                               : 1;
}

constexpr std::array<FindMarks, 4> kWays = {FindBy64, FindBy32, FindBy16, FindPlainly};
#else
std::size_t CountMissingWays() { return 0; }
constexpr std::array<FindMarks, 1> kWays = {FindPlainly};
#endif

}  // namespace

std::span<const FindMarks> WaysToFindMarks() {
  return std::span(kWays).subspan(CountMissingWays());
}

const Mark* MarkIndex::Build(std::string_view text) {
  constexpr std::size_t kSpare = 16;
  if (text.size() + kSpare > room_) {
    room_ = text.size() + kSpare;
    marks_ = std::make_unique_for_overwrite<Mark[]>(room_);
  }
  std::fill_n(find_(text, marks_.get()), 2, Mark(text.size(), false));
  return marks_.get();
}

}  // namespace zarvo

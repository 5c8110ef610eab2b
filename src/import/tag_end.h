// Where a tag of XML ends: the first ">" outside of quotation marks.
#pragma once

#include "import/byte_block.h"

namespace zarvo {

// One character after the other, for tags with an apostrophe and for broken ones.
inline const char* FindTagEndSlowly(const char* at, const char* end) {
  char quote = 0;
  for (; at < end; ++at) {
    if (*at == '<') return at;
    if (quote != 0) {
      if (*at == quote) quote = 0;
    } else if (*at == '>') {
      return at;
    } else if (*at == '"' || *at == '\'') {
      quote = *at;
    }
  }
  return nullptr;
}

// Bit i is set if an odd number of bits of `mask` stand at or before i.
inline BlockMask OddSince(BlockMask mask) {
  mask ^= mask << 1;
  mask ^= mask << 2;
  mask ^= mask << 4;
  mask ^= mask << 8;
  return mask & kWholeBlock;
}

inline bool IsOdd(BlockMask mask) { return __builtin_parity(mask) != 0; }

// From behind the tag's name to its ">", or to a "<", which no tag may hold, or nullptr if `end`
// comes first. Up to 15 readable bytes must follow `end`, none of them one of <>"'.
template <typename AnyBlock = Block>
const char* FindTagEnd(const char* start, const char* end) {
  BlockMask inside = 0;  // kWholeBlock if the block begins within quotation marks
  for (const char* at = start; at < end; at += kBlockSize) {
    const AnyBlock block(at);
    const BlockMask quotes = block.Equal('"');
    const BlockMask stops = block.EitherBracket() | block.Equal('\'');
    if (stops == 0) {
      if (IsOdd(quotes)) inside ^= kWholeBlock;
      continue;
    }
    const BlockMask quoted = OddSince(quotes) ^ inside;
    const BlockMask closes = block.Equal('>');
    const BlockMask ends = closes & ~quoted;
    const BlockMask rare = stops & ~closes;
    if (ends == 0 ? rare != 0 : (rare & (ends ^ (ends - 1))) != 0) {
      return FindTagEndSlowly(start, end);
    }
    if (ends != 0) return at + FirstBit(ends);
    inside = (quoted >> (kBlockSize - 1)) != 0 ? kWholeBlock : 0;
  }
  return nullptr;
}

}  // namespace zarvo

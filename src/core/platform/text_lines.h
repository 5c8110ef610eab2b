// A text file in memory, line by line, for files that are rewritten with every byte of their other
// lines in place.
#pragma once

#include <string_view>

namespace zarvo {

// Cuts the first line off `rest` and gives it with its line end, CR LF or LF; the last line may
// have none. `rest` must not be empty.
inline std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string_view line = rest.substr(0, end == std::string_view::npos ? end : end + 1);
  rest.remove_prefix(line.size());
  return line;
}

inline std::string_view WithoutLineEnd(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(line.ends_with("\r\n") ? 2 : 1);
  return line;
}

// True if what is added to `text` begins a line of its own.
inline bool EndsItsLine(std::string_view text) { return text.empty() || text.ends_with('\n'); }

}  // namespace zarvo

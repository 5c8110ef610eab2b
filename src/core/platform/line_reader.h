// Reads a text file line by line through one buffer, as every reader of the program's files does.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "core/platform/dos_files.h"

namespace zarvo {

// The longest line that a reader takes; fields and lengths are signed 16-bit numbers.
inline constexpr std::size_t kLongestLine = 32767;

class LineReader {
 public:
  explicit LineReader(std::unique_ptr<ByteSource> source);

  // Gives the next line without its line end, or false at the end of the file. A line ends with
  // CR LF or LF; the last one may have none. A line longer than kLongestLine is passed over.
  // The text stays valid until the next call.
  bool Next(std::string_view& line);

  // True if the file could not be read to its end.
  [[nodiscard]] bool Failed() const { return source_->Failed(); }

 private:
  // Moves what is held to the front of the buffer and reads more; false at the end of the file.
  bool Fill();
  // Drops what is held and everything up to the next line end.
  void PassOver();

  std::unique_ptr<ByteSource> source_;
  std::unique_ptr<char[]> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool at_end_ = false;
};

}  // namespace zarvo

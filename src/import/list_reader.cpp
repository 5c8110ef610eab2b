#include "import/list_reader.h"

#include <algorithm>

namespace zarvo {

Status ReadList(ByteSource& source, MachineSink& sink) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  InputWindow window(source);
  while (window.Rest().find_first_not_of("\xEF\xBB\xBF \t\r\n") == std::string_view::npos) {
    if (!window.Grow()) return Error{window.At(window.End(), "the list is empty")};
  }
  if (window.Rest().starts_with(kByteOrderMark)) {
    window.ConsumeTo(window.Begin() + kByteOrderMark.size());
  }
  const std::size_t first = window.Rest().find_first_not_of(" \t\r\n");
  const char* const start = window.Begin() + std::min(first, window.Rest().size());
  const char kind = *start;
  if (kind == '<') return ReadXmlList(window, sink);
  const bool letter = (kind >= 'a' && kind <= 'z') || (kind >= 'A' && kind <= 'Z');
  if (letter) return ReadInfoList(window, sink);
  return Error{window.At(start, "this is no list of games that is known here")};
}

}  // namespace zarvo

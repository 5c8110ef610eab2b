// Short forms in which tests write down what lists and files hold.
#pragma once

#include <string>
#include <string_view>

#include "core/platform/name_list.h"

namespace zarvo {

// The names with a comma behind each.
inline std::string Names(const NameList& list) {
  std::string names;
  for (int index = 0; index < list.Count(); ++index) names.append(list.At(index)).append(",");
  return names;
}

// The bytes of a file that is written here with ' for " and | for CR and LF.
inline std::string Bytes(std::string_view text) {
  std::string bytes;
  for (const char c : text) bytes += c == '|' ? "\r\n" : std::string(1, c == '\'' ? '"' : c);
  return bytes;
}

}  // namespace zarvo

#pragma once

#include <string>
#include <vector>

#include "platform/name_list.h"

namespace zarvo {

inline std::vector<std::string> Names(const NameList& list) {
  std::vector<std::string> names;
  for (int index = 0; index < list.Count(); ++index) names.emplace_back(list.At(index));
  return names;
}

}  // namespace zarvo

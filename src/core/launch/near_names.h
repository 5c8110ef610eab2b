// Names that somebody may have meant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zarvo {

// Those of `names` that are near to `wanted`, the nearest first, at most five: one begins as the
// other does, or two letters at most are added, left out or different. Case doesn't matter.
std::vector<std::string> NearNames(std::string_view wanted, const std::vector<std::string>& names);

}  // namespace zarvo

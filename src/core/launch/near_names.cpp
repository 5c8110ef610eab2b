#include "core/launch/near_names.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/platform/text.h"

namespace zarvo {
namespace {

constexpr std::size_t kMostNames = 5;
constexpr std::size_t kFarthest = 2;
constexpr std::size_t kShortest = 3;  // letters that a beginning has to have

// How many letters have to be added, left out or changed to make one word of the other.
std::size_t Distance(std::string_view left, std::string_view right) {
  std::vector<std::size_t> row(right.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (const char letter : left) {
    std::size_t diagonal = std::exchange(row[0], row[0] + 1);
    for (std::size_t i = 1; i < row.size(); ++i) {
      const std::size_t changed = diagonal + (letter == right[i - 1] ? 0 : 1);
      diagonal = row[i];
      row[i] = std::min({changed, row[i] + 1, row[i - 1] + 1});
    }
  }
  return row.back();
}

bool IsNear(std::string_view left, std::string_view right, std::size_t distance) {
  const std::size_t shorter = std::min(left.size(), right.size());
  const bool same_front =
      shorter >= kShortest && left.substr(0, shorter) == right.substr(0, shorter);
  // Two letters of a word of three leave nothing of it.
  return same_front || (distance <= kFarthest && 2 * distance < shorter);
}

}  // namespace

std::vector<std::string> NearNames(std::string_view wanted, const std::vector<std::string>& names) {
  std::vector<std::pair<std::size_t, std::string>> near;
  const std::string folded = FoldCase(wanted);
  for (const std::string& name : names) {
    const std::string other = FoldCase(name);
    const std::size_t distance = Distance(folded, other);
    if (distance > 0 && IsNear(folded, other, distance)) near.emplace_back(distance, name);
  }
  std::sort(near.begin(), near.end());
  if (near.size() > kMostNames) near.resize(kMostNames);
  std::vector<std::string> found;
  found.reserve(near.size());
  for (auto& [distance, name] : near) found.push_back(std::move(name));
  return found;
}

}  // namespace zarvo

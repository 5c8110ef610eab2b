#include "core/platform/name_list.h"

#include <algorithm>
#include <cstring>

#include "core/platform/text.h"

namespace zarvo {
namespace {

// LessNoCase, quicker for names that begin alike, as neighbours in a list do.
bool SortsBefore(std::string_view left, std::string_view right) {
  std::uint64_t left_word = 0;
  std::uint64_t right_word = 0;
  while (left.size() >= sizeof left_word && right.size() >= sizeof right_word) {
    std::memcpy(&left_word, left.data(), sizeof left_word);
    std::memcpy(&right_word, right.data(), sizeof right_word);
    if (left_word != right_word) break;
    left.remove_prefix(sizeof left_word);
    right.remove_prefix(sizeof right_word);
  }
  return LessNoCase(left, right);
}

}  // namespace

std::string_view NameList::At(int index) const {
  const Entry& entry = entries_[static_cast<std::size_t>(index)];
  return std::string_view(text_).substr(entry.offset, entry.size);
}

void NameList::Append(std::string_view name) {
  if (Count() == kMostEntries) return;
  entries_.push_back(
      {static_cast<std::uint32_t>(text_.size()), static_cast<std::uint32_t>(name.size())});
  text_ += name;
}

int NameList::InsertSorted(std::string_view name) {
  if (Count() == kMostEntries) return -1;
  int index = Count();
  int low = 0;
  while (low < index) {
    const int middle = low + (index - low) / 2;
    if (CompareNoCase(name, At(middle)) < 0) {
      index = middle;
    } else {
      low = middle + 1;
    }
  }
  Append(name);
  std::rotate(entries_.begin() + index, entries_.end() - 1, entries_.end());
  return index;
}

void NameList::Remove(int index) {
  entries_.erase(entries_.begin() + index);
  if (entries_.empty()) text_.clear();
}

void NameList::Clear() {
  text_.clear();
  entries_.clear();
}

void NameList::Sort() {
  const std::string_view text = text_;
  const auto before = [text](const Entry& left, const Entry& right) {
    return SortsBefore(text.substr(left.offset, left.size), text.substr(right.offset, right.size));
  };
  if (std::is_sorted(entries_.begin(), entries_.end(), before)) return;
  std::stable_sort(entries_.begin(), entries_.end(), before);
}

int NameList::Find(std::string_view name) const {
  for (int index = 0; index < Count(); ++index) {
    if (At(index) == name) return index;
  }
  return -1;
}

}  // namespace zarvo

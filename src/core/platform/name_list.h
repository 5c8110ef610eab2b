// The names that a list box shows: kept in one block of text, sorted or in the order of adding.
//
// A list of 32,767 names is filled on every click of a filter, so adding one costs no allocation of
// its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zarvo {

// A list's count is a signed 16-bit number.
inline constexpr int kMostEntries = 32767;

class NameList {
 public:
  [[nodiscard]] int Count() const { return static_cast<int>(entries_.size()); }
  // 0 <= index < Count(). Valid until the next change.
  [[nodiscard]] std::string_view At(int index) const;

  // Behind all others. A full list stays as it is.
  void Append(std::string_view name);
  // In front of the first entry that sorts behind it; the list must be sorted. Returns the index,
  // or -1 if the list is full.
  int InsertSorted(std::string_view name);
  void Remove(int index);
  void Clear();
  // Into the order of CompareNoCase; equal names keep their order. Cheap for a sorted list.
  void Sort();
  // Index of the first entry equal byte by byte, or -1.
  [[nodiscard]] int Find(std::string_view name) const;

 private:
  struct Entry {
    std::uint32_t offset;
    std::uint32_t size;
  };
  std::string text_;
  std::vector<Entry> entries_;
};

}  // namespace zarvo

// One entry of an emulator's list, in the words of the list.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/platform/result.h"

namespace zarvo {

// How well the emulator does something; kUnknown where the list is silent.
enum class Grade { kUnknown, kGood, kImperfect, kBad };

enum class YesNo { kUnknown, kNo, kYes };

// The first four chips of a kind; a data file has room for four.
class ChipNames {
 public:
  void Add(std::string_view name) {
    if (count_ < names_.size()) names_[count_++] = name;
  }
  void Clear() { count_ = 0; }
  [[nodiscard]] std::size_t Count() const { return count_; }
  [[nodiscard]] const std::string& operator[](std::size_t place) const { return names_[place]; }

 private:
  std::array<std::string, 4> names_;
  std::size_t count_ = 0;
};

// Texts are UTF-8 or whatever bytes the list holds, empty where it is silent.
struct Machine {
  std::string rom;
  std::string description;
  std::string year;
  std::string manufacturer;
  std::string source;    // of the driver, with its folder
  std::string clone_of;  // rom of the parent
  std::string rom_of;    // set whose files are needed too
  bool bios = false;
  bool device = false;
  bool mechanical = false;
  bool runnable = true;
  bool samples = false;
  bool vector_screen = false;
  bool no_sound_hardware = false;
  YesNo coins = YesNo::kUnknown;
  YesNo cocktail = YesNo::kUnknown;
  Grade status = Grade::kUnknown;
  Grade colors = Grade::kUnknown;
  Grade sound = Grade::kUnknown;
  ChipNames cpus;
  ChipNames sound_chips;

  // Ready for the next entry; keeps the memory of the texts.
  void Clear();
};

// What a list says about itself.
struct ListFacts {
  std::string name;
  std::string version;
  std::string date;
};

// Where a reader brings what it finds, in the order of the list.
class MachineSink {
 public:
  virtual ~MachineSink() = default;
  virtual void TakeFacts(const ListFacts& facts) = 0;
  // A failure ends the reading; its message says nothing of the line.
  virtual Status Take(const Machine& machine) = 0;
};

// "good", "imperfect", "preliminary" and the other words that lists use.
Grade GradeOf(std::string_view word);

// Of two grades for one thing the one that promises less.
inline Grade Worse(Grade left, Grade right) { return left < right ? right : left; }

// An emulated processor as the details page shows it: in square brackets if it only makes sound.
std::string CpuName(std::string_view name, bool for_sound);

}  // namespace zarvo

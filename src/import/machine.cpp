#include "import/machine.h"

namespace zarvo {

void Machine::Clear() {
  for (std::string* text :
       {&rom, &description, &year, &manufacturer, &source, &clone_of, &rom_of}) {
    text->clear();
  }
  bios = device = mechanical = samples = vector_screen = no_sound_hardware = false;
  runnable = true;
  coins = cocktail = YesNo::kUnknown;
  status = colors = sound = Grade::kUnknown;
  cpus.Clear();
  sound_chips.Clear();
}

Grade GradeOf(std::string_view word) {
  if (word == "good") return Grade::kGood;
  if (word == "imperfect" || word == "protection") return Grade::kImperfect;
  if (word == "preliminary" || word == "unemulated") return Grade::kBad;
  return Grade::kUnknown;
}

std::string CpuName(std::string_view name, bool for_sound) {
  return for_sound ? "[" + std::string(name) + "]" : std::string(name);
}

}  // namespace zarvo

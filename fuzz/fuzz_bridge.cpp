// Any words as the command line of any of the emulators: what they are today has no word that would
// take the game's place, and is the same each time.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "bridge/translation.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zarvo;
  if (size == 0) return 0;
  const Emulator& emulator = Emulators()[data[0] % Emulators().size()];
  std::string_view rest(reinterpret_cast<const char*>(data + 1), size - 1);
  std::vector<std::string_view> words;
  while (!rest.empty()) {  // as a program gets them: any bytes but zeros
    words.push_back(rest.substr(0, rest.find('\0')));
    rest.remove_prefix(std::min(rest.size(), words.back().size() + 1));
  }
  const auto today = Translate(emulator, words);
  if (!today) {
    if (today.error().message.empty()) std::abort();
    return 0;
  }
  if (today->empty() || today->front().empty() || today->front().front() == '-') std::abort();
  if (*Translate(emulator, words) != *today) std::abort();
  return 0;
}

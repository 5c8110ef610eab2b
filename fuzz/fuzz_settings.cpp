// Any bytes as a settings store: a load ends with values that the page can hold, a save keeps the
// bytes of every other line, and what was saved is loaded again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "core/emulators/option_layout.h"
#include "core/launch/settings_store.h"
#include "core/platform/text_lines.h"
#include "fakes/emulators.h"
#include "fakes/memory_files.h"

namespace {

using namespace zarvo;

constexpr std::string_view kKey = "Pac";
constexpr std::string_view kQuotedKey = "\"Pac\"";

// What a save must not touch; `blank` tells whether an empty line would hide an added record.
std::string OtherLines(std::string_view store, bool& blank) {
  std::string others;
  while (!store.empty()) {
    const std::string_view line = TakeLine(store);
    blank = blank || WithoutLineEnd(line).empty();
    if (!line.starts_with(kQuotedKey)) others += line;
  }
  return others;
}

void CheckValues(const Emulator& emulator, const OptionValues& values) {
  const auto options = emulator.options;
  for (std::size_t i = 0; i < options.size(); ++i) {
    const int number = values.values[i].number;
    const bool unselected = options[i].kind == OptionKind::kCombo && number == -1;
    if (!InRange(options[i], number) && !unselected) std::abort();
  }
}

void CheckEmulator(const Emulator& emulator, const std::string& store) {
  MemoryFiles files;
  const ProgramFolders folders{R"(C:\Zarvo)"};
  const std::string path = (folders.CfgFolder() / emulator.SettingsFile()).Text();
  files.Put(path, store);
  OptionValues values = DefaultValues(emulator, "C:\\R");
  SettingsStore stored(files, folders, emulator);
  stored.Load(kKey, "", values);
  CheckValues(emulator, values);

  const OptionValues defaults = DefaultValues(emulator, "C:\\R");
  if (!stored.Save(kKey, defaults)) std::abort();
  bool blank = false;
  std::string before = OtherLines(store, blank);
  const std::string after = OtherLines(files.BytesOf(path), blank);
  if (after != before && after != before + "\r\n") std::abort();
  if (blank) return;
  if (stored.Load(kKey, "", values) != LoadOutcome::kRecord ||
      RecordLine(emulator, kKey, values) != RecordLine(emulator, kKey, defaults)) {
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string store(reinterpret_cast<const char*>(data), size);
  CheckEmulator(kMame, store);
  CheckEmulator(kRaine, store);
  return 0;
}

#include "ui/layouts/apply_layout.h"

#include <algorithm>
#include <cstdint>

namespace zarvo {
namespace {

void ApplyRecord(const LayoutTools& tools, const LayoutRecord& record) {
  if (record.word == kMainWord) {
    tools.main.SetMainPlace(record.top, record.left);
    return;
  }
  const Emulator* emulator = FindEmulator(record.word);
  if (emulator == nullptr) return;
  if (!tools.sections.IsOpen(*emulator)) tools.sections.OpenSection(*emulator);
  tools.sections.SetPanelPlace(
      *emulator,
      {.left = record.left, .top = record.top, .width = record.width, .height = record.height});
}

// The file holds signed 16-bit numbers. A window farther out, on the right of a very large desktop,
// is kept at their end: a record with the real number could never be read again.
int InRange(int twips) { return std::clamp<int>(twips, INT16_MIN, INT16_MAX); }

}  // namespace

void ApplyRecords(const LayoutTools& tools, const std::vector<LayoutRecord>& records) {
  for (const LayoutRecord& record : records) ApplyRecord(tools, record);
}

std::vector<LayoutRecord> PresentWindows(const LayoutTools& tools) {
  std::vector<LayoutRecord> records;
  records.push_back({.word = std::string(kMainWord),
                     .top = InRange(tools.main.MainTop()),
                     .left = InRange(tools.main.MainLeft())});
  for (const Emulator& emulator : Emulators()) {
    if (!tools.sections.IsOpen(emulator)) continue;
    const auto place = tools.sections.PanelPlace(emulator);
    if (!place) continue;
    records.push_back({.word = std::string(emulator.SectionWord()),
                       .top = InRange(place->top),
                       .left = InRange(place->left),
                       .width = place->width,
                       .height = place->height});
  }
  return records;
}

}  // namespace zarvo

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
  const EmulatorProfile* profile = FindProfile(record.word);
  if (profile == nullptr) return;
  if (!tools.app.IsOpen(profile->emulator)) tools.sections.OpenSection(*profile);
  tools.sections.SetPanelPlace(
      profile->emulator,
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
  for (const EmulatorProfile& profile : Profiles()) {
    if (!tools.app.IsOpen(profile.emulator)) continue;
    const auto place = tools.sections.PanelPlace(profile.emulator);
    if (!place) continue;
    records.push_back({.word = std::string(profile.section_word),
                       .top = InRange(place->top),
                       .left = InRange(place->left),
                       .width = place->width,
                       .height = place->height});
  }
  return records;
}

}  // namespace zarvo

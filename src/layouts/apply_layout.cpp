#include "layouts/apply_layout.h"

namespace zarvo {

void ApplyRecord(const LayoutTools& tools, const LayoutRecord& record) {
  if (record.word == "MAIN") {
    tools.main.SetMainPlace(record.place.top, record.place.left);
    return;
  }
  const EmulatorProfile* profile = FindProfile(record.word);
  if (profile == nullptr) return;
  if (!tools.app.IsOpen(profile->emulator)) tools.sections.OpenSection(*profile);
  tools.sections.SetPanelPlace(profile->emulator, record.place);
}

std::vector<LayoutRecord> PresentWindows(const LayoutTools& tools) {
  std::vector<LayoutRecord> records;
  records.push_back({"MAIN", {.left = tools.main.MainLeft(), .top = tools.main.MainTop()}});
  for (const EmulatorProfile& profile : Profiles()) {
    if (!tools.app.IsOpen(profile.emulator)) continue;
    const auto place = tools.sections.PanelPlace(profile.emulator);
    if (place) records.push_back({std::string(profile.section_word), *place});
  }
  return records;
}

}  // namespace zarvo

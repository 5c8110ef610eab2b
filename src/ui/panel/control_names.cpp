#include "ui/panel/control_names.h"

#include <algorithm>
#include <cctype>

#include "ui/panel/panel_tools.h"

namespace zarvo {

std::string ControlName(const Emulator& emulator, std::string_view head, std::string_view tail) {
  return std::string(head).append(emulator.word).append(tail);
}

std::string ControlName(const Emulator& emulator, std::string_view member) {
  const auto* const end = std::find_if(member.begin(), member.end(),
                                       [](unsigned char c) { return std::islower(c) == 0; });
  const auto prefix = static_cast<std::size_t>(end - member.begin());
  return ControlName(emulator, member.substr(0, prefix), member.substr(prefix));
}

std::string BareName(const Emulator& emulator, std::string_view member) {
  return emulator.has_bare_names ? std::string(member) : ControlName(emulator, member);
}

void Report(const PanelTools& tools, const Status& status) {
  if (!status.ok()) tools.boxes.Warn(ProgramTitle(), status.error().message);
}

}  // namespace zarvo

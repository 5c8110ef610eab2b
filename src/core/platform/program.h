// The program's name, and the folders in which it keeps its files.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/platform/dos_path.h"

namespace zarvo {

inline constexpr std::string_view ProgramName = "Zarvo";
inline constexpr std::string_view ProgramVersion = "v0.1";

// Title of every message box that has no other: "Zarvo v0.1".
inline std::string ProgramTitle() {
  return std::string(ProgramName).append(" ").append(ProgramVersion);
}

// Without a trailing backslash unless a root.
struct ProgramFolders {
  DosPath ProgramFolder;

  [[nodiscard]] DosPath DataFolder() const { return ProgramFolder / "Data"; }
  [[nodiscard]] DosPath CfgFolder() const { return ProgramFolder / "cfg"; }
};

}  // namespace zarvo

#include "shell/emulator_profile.h"

#include <algorithm>

namespace zarvo {
namespace {

constexpr std::array<EmulatorProfile, kEmulatorCount> kProfiles = {{
    {.emulator = Emulator::kMame,
     .word = "Mame",
     .section_word = "MAME",
     .selector_caption = "M.A.M.E.",
     .data_file = "Mame.dat",
     .cfg_file = "Mame.cfg",
     .settings_file = "Mame.set",
     .settings_temp_file = "Mameset.tmp",
     .scan_file = "Mame.scn",
     .default_rom_folder = R"(C:\emu\mame\roms)",
     .rom_sub_folder = R"(\roms)",
     .rom_word = "MAMEROM",
     .snap_word = "MAMESNAP",
     .settings_word = "MAMESETTINGS",
     .start_exe_path = R"(C:\Emu\Mame\Mame.exe)",
     .start_rom_path = R"(C:\Emu\Mame\Roms)",
     .start_snap_path = R"(C:\Emu\Snapshot\Mame)",
     .start_emulator_folder = R"(C:\Emu\Mame)",
     .panel_height = 7260,
     .has_scan = true,
     .has_filters = true,
     .has_game_list = true,
     .has_game_list_text = true,
     .has_favourites = true,
     .has_recording = true,
     .knows_parents = true},
    {.emulator = Emulator::kCallus,
     .word = "Callus",
     .section_word = "CALLUS",
     .selector_caption = "CALLUS",
     .data_file = "Callus.dat",
     .cfg_file = "Callus.cfg",
     .settings_file = "Callus.set",
     .settings_temp_file = "Callusset.tmp",
     .scan_file = "Callus.scn",
     .default_rom_folder = R"(C:\emu\callus)",
     .rom_sub_folder = "",
     .rom_word = "CALLUSROM",
     .snap_word = "CALLUSSNAP",
     .settings_word = "CALLUSSETTINGS",
     .start_exe_path = R"(C:\Emu\Callus\Callus.exe)",
     .start_rom_path = R"(C:\Emu\Callus)",
     .start_snap_path = R"(C:\Emu\Callus\Snapshot)",
     .start_emulator_folder = R"(D:\Emu\Arcade\CallusD)",
     .panel_height = 7260,
     .has_scan = true,
     .has_filters = true,
     .has_game_list = true,
     .has_game_list_text = true,
     .has_favourites = true,
     .has_recording = false,
     .knows_parents = false},
    {.emulator = Emulator::kRaine,
     .word = "Raine",
     .section_word = "RAINE",
     .selector_caption = "R.A.I.N.E.",
     .data_file = "Raine.dat",
     .cfg_file = "Raine.cfg",
     .settings_file = "Raine.set",
     .settings_temp_file = "Raineset.tmp",
     .scan_file = "Raine.scn",
     .default_rom_folder = R"(C:\emu\raine\ziproms)",
     .rom_sub_folder = R"(\ZipRoms)",
     .rom_word = "RAINEROM",
     .snap_word = "RAINESNAP",
     .settings_word = "RAINESETTINGS",
     .start_exe_path = R"(C:\Emu\Raine\Raine.exe)",
     .start_rom_path = R"(C:\Emu\Raine\ZipRoms)",
     .start_snap_path = R"(C:\Emu\Raine\Snapshot)",
     .start_emulator_folder = R"(D:\Emu\Arcade\Raine)",
     .panel_height = 7260,
     .has_scan = true,
     .has_filters = true,
     .has_game_list = true,
     .has_game_list_text = false,
     .has_favourites = true,
     .has_recording = false,
     .knows_parents = false},
    {.emulator = Emulator::kSystem16,
     .word = "System16",
     .section_word = "SYSTEM16",
     .selector_caption = "SYSTEM16",
     .data_file = "System16.dat",
     .cfg_file = "System16.cfg",
     .settings_file = "System16.set",
     .settings_temp_file = "System16set.tmp",
     .scan_file = "",
     .default_rom_folder = R"(C:\emu\system16\ziproms)",
     .rom_sub_folder = R"(\ziproms)",
     .rom_word = "SYSTEM16ROM",
     .snap_word = "SYSTEM16SNAP",
     .settings_word = "SYSTEM16SETTINGS",
     .start_exe_path = R"(C:\Emu\System16\System16.exe)",
     .start_rom_path = R"(C:\Emu\System16\Ziproms)",
     .start_snap_path = R"(C:\Emu\System16\Snapshot)",
     .start_emulator_folder = R"(D:\Emu\Arcade\System16)",
     .panel_height = 7260,
     .has_scan = false,
     .has_filters = false,
     .has_game_list = true,
     .has_game_list_text = false,
     .has_favourites = true,
     .has_recording = false,
     .knows_parents = false},
    {.emulator = Emulator::kM72,
     .word = "M72",
     .section_word = "M72",
     .selector_caption = "M-72",
     .data_file = "M72.dat",
     .cfg_file = "M72.cfg",
     .settings_file = "M72.set",
     .settings_temp_file = "M72set.tmp",
     .scan_file = "",
     .default_rom_folder = R"(C:\emu\m72\ziproms)",
     .rom_sub_folder = R"(\Ziproms)",
     .rom_word = "M72ROM",
     .snap_word = "M72SNAP",
     .settings_word = "M72SETTINGS",
     .start_exe_path = R"(C:\Emu\M72\M72.exe)",
     .start_rom_path = R"(C:\Emu\M72\Ziproms)",
     .start_snap_path = R"(C:\Emu\Snapshot\M72)",
     .start_emulator_folder = R"(D:\Emu\Arcade\M72)",
     .panel_height = 4620,
     .has_scan = false,
     .has_filters = false,
     .has_game_list = false,
     .has_game_list_text = false,
     .has_favourites = false,
     .has_recording = false,
     .knows_parents = false},
}};

constexpr bool InProgramOrder() {
  for (std::size_t i = 0; i < kProfiles.size(); ++i) {
    if (static_cast<std::size_t>(kProfiles[i].emulator) != i) return false;
  }
  return true;
}
static_assert(InProgramOrder());

}  // namespace

std::span<const EmulatorProfile, kEmulatorCount> Profiles() { return kProfiles; }

const EmulatorProfile& ProfileOf(Emulator emulator) {
  return kProfiles[static_cast<std::size_t>(emulator)];
}

const EmulatorProfile* FindProfile(std::string_view section_word) {
  const auto* const found = std::find_if(
      kProfiles.begin(), kProfiles.end(),
      [&](const EmulatorProfile& profile) { return profile.section_word == section_word; });
  return found == kProfiles.end() ? nullptr : found;
}

}  // namespace zarvo

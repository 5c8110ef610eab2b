#include "ui/panel/game_start.h"

#include "core/launch/launcher.h"

namespace zarvo {

void GameStart::Start(const std::string& name) {
  paths_.TellOnce(true);
  paths_.SaveCfg();
  // The controls belong to the game in the caption; another one borrows them for the launch.
  game_.Borrow(name);
  const LaunchRequest request{
      .game = name,
      .emulator_folder = DosPath(paths_.lblOptHide),
      .command = {.emulator_path = paths_.EmulatorPath(),
                  .rom_name = {},
                  .options = pages_.picSettings->Values(),
                  .recording = recording_ != nullptr ? recording_->lblHideInp : std::string(),
                  .now = tools_.clock()}};
  const LaunchCalls calls{.save_cfg = [this] { paths_.SaveCfg(); },
                          .find_rom = [this](std::string_view game) -> std::optional<FoundRom> {
                            if (!game_.Find(game)) return std::nullopt;
                            return FoundRom{.rom = game_.RomFile, .parent = game_.ParentFile};
                          },
                          .show_emulator_picker = [this] { ShowEmulatorPicker(); },
                          .show_rom_picker = [this] { ShowRomPicker(); }};
  Launch(
      emulator_, request, calls,
      {.files = tools_.files, .boxes = tools_.boxes, .folders = tools_.folders, .run = tools_.run});
  game_.TakeBack();
  paths_.TellOnce(false);
}

void GameStart::ShowEmulatorPicker() {
  pages_.ShowAfterStart(Page::kConfiguration, emulator_.panel.no_emulator_hides_snap);
  paths_.PickEmulator();
}

void GameStart::ShowRomPicker() {
  game_.TakeBack();
  pages_.ShowAfterStart(Page::kSettings, emulator_.panel.no_rom_hides_snap);
  paths_.PickMissingRom();
}

}  // namespace zarvo

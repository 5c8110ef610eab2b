#include "ui/panel/panel_hover.h"

#include <functional>
#include <initializer_list>
#include <vector>

#include "ui/panel/emulator_panel.h"
#include "ui/panel/page_parts.h"

namespace zarvo {
namespace {

struct Button {
  Label* label;  // nullptr where the panel has none
  ButtonKind kind;
};

using Buttons = std::vector<Button>;

void RestAll(const Buttons& buttons) {
  for (const Button& button : buttons) {
    if (button.label != nullptr) Rest(button.label, button.kind);
  }
}

// The buttons of one panel, by their group.
struct ButtonGroups {
  explicit ButtonGroups(const EmulatorPanel& panel)
      : executable{panel.pages->picConf->cmdSfoglia, ButtonKind::kPath},
        rom_folder{panel.pages->picConf->cmdSelDir, ButtonKind::kPath},
        snap_folder{panel.pages->picConf->cmdDirSnap, ButtonKind::kPath},
        scan{panel.pages->picConf->lblScanNow, ButtonKind::kPath},
        default_folder{panel.pages->picSettings->cmdDirRomDefault, ButtonKind::kPath},
        game_folder{panel.pages->picSettings->cmdSelDir, ButtonKind::kPath},
        apply_to_all{panel.pages->picSettings->cmdApplytoAll, ButtonKind::kBulk},
        clear{panel.favourites->lblClearFav, ButtonKind::kBulk},
        large{panel.sizes->cmdLarge, ButtonKind::kSize},
        middle{panel.sizes->cmdMiddle, ButtonKind::kSize},
        small{panel.sizes->cmdShort, ButtonKind::kSize},
        exit{panel.cmdExit, ButtonKind::kClose} {}

  [[nodiscard]] Buttons SizesAndExit() const { return {large, middle, small, exit}; }

  Button executable, rom_folder, snap_folder, scan, default_folder, game_folder, apply_to_all,
      clear, large, middle, small, exit;
};

void ResetsOnMove(Control* over, Buttons buttons) {
  if (over == nullptr) return;
  over->MouseMove.Connect([buttons = std::move(buttons)](const MouseArgs&) { RestAll(buttons); });
}

void WireHighlight(const Button& button) {
  if (button.label == nullptr) return;
  button.label->MouseMove.Connect(
      [button](const MouseArgs&) { Highlight(button.label, button.kind); });
  if (button.kind == ButtonKind::kPath) {
    button.label->MouseUp.Connect([button](const MouseArgs&) {
      const Colour text = button.label->ForeColor();
      Rest(button.label, button.kind);
      button.label->SetForeColor(text);
    });
  }
}

void WireHeader(EmulatorPanel& panel, const ButtonGroups& all, MainPlace& main) {
  Buttons with_clear = all.SizesAndExit();
  with_clear.push_back(all.clear);
  panel.MouseMove.Connect([with_clear](const MouseArgs&) { RestAll(with_clear); });
  for (Control* const over : std::initializer_list<Control*>{
           panel.favourites->lblFavCount, panel.pages->imgButSnap, panel.sizes->cmdRidimen}) {
    ResetsOnMove(over, all.SizesAndExit());
  }
  ResetsOnMove(panel.logo, with_clear);
  ResetsOnMove(panel.favourites->lstPref,
               {all.large, all.middle, all.small, all.exit, all.apply_to_all});
  for (Control* const over :
       std::initializer_list<Control*>{panel.logo, panel.favourites->lstPref}) {
    over->MouseMove.Connect([&main](const MouseArgs&) { main.ResetCommands(); });
  }
  ResetsOnMove(all.large.label, {all.middle, all.small, all.exit});
  ResetsOnMove(all.middle.label, {all.large, all.small, all.exit});
  ResetsOnMove(all.small.label, {all.large, all.middle, all.exit});
  ResetsOnMove(all.exit.label, {all.large, all.middle, all.small});
  ResetsOnMove(panel.favourites->lblFavorties, {all.clear});
}

void WirePages(EmulatorPanel& panel, const ButtonGroups& all) {
  const Buttons settings = {all.game_folder, all.default_folder, all.apply_to_all};
  ResetsOnMove(panel.pages->picSettings, settings);
  ResetsOnMove(panel.lblRomSettings, settings);
  ResetsOnMove(panel.pages->picSettings->txtRomPath, {all.game_folder, all.apply_to_all});
  ResetsOnMove(all.default_folder.label, {all.game_folder});
  ResetsOnMove(all.game_folder.label, {all.default_folder});

  const ConfPage& conf = *panel.pages->picConf;
  ResetsOnMove(panel.pages->picConf, {all.executable, all.rom_folder, all.snap_folder, all.scan});
  ResetsOnMove(conf.txtOptExePath, {all.executable});
  ResetsOnMove(conf.exe_caption, {all.executable});
  ResetsOnMove(conf.txtOptRomPath, {all.rom_folder});
  ResetsOnMove(conf.rom_caption, {all.rom_folder});
  ResetsOnMove(conf.txtOptSnap, {all.snap_folder});
  ResetsOnMove(conf.snap_caption, {all.snap_folder});
  ResetsOnMove(all.executable.label, {all.rom_folder});
  ResetsOnMove(all.rom_folder.label, {all.executable});
  for (Control* const over :
       std::initializer_list<Control*>{conf.Frame1, conf.Frame2, conf.optSplitted}) {
    ResetsOnMove(over, {all.scan});
  }
}

}  // namespace

void WireHover(EmulatorPanel& panel) {
  const ButtonGroups all(panel);
  for (const Button& button :
       {all.executable, all.rom_folder, all.snap_folder, all.scan, all.default_folder,
        all.game_folder, all.apply_to_all, all.clear, all.large, all.middle, all.small, all.exit}) {
    WireHighlight(button);
  }
  WireHeader(panel, all, panel.Main());
  WirePages(panel, all);
}

void ResetClearLabel(EmulatorPanel& panel) {
  if (panel.favourites->lblClearFav != nullptr) {
    Rest(panel.favourites->lblClearFav, ButtonKind::kBulk);
  }
}

}  // namespace zarvo

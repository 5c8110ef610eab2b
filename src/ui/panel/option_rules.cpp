#include "ui/panel/option_rules.h"

#include <utility>

#include "core/platform/dos_path.h"
#include "ui/pickers/file_picker.h"
#include "ui/toolkit/keys.h"

namespace zarvo {
namespace {

bool IsNumberKey(int code) {
  return (code >= key::kDigit0 && code <= key::kDigit0 + 9) ||
         (code >= key::kNumpad0 && code <= key::kNumpad0 + 9) || code == key::kMinus ||
         code == key::kNumpadMinus || code == key::kBackspace || code == key::kDelete;
}

// While the player is in the box, the "0" is selected, so that what is typed replaces it.
void PutZero(TextBox* box) {
  box->SetText("0");
  if (box->window()->focusWidget() == box) box->selectAll();
}

}  // namespace

RecordingRules::RecordingRules(const Emulator& emulator, const SettingsPage& page,
                               const PanelTools& tools, std::function<DosPath()> emulator_folder)
    : emulator_(emulator),
      chkRecord_(page.Option(emulator.recording->record).check),
      chkPlayback_(page.Option(emulator.recording->playback).check),
      tools_(tools),
      emulator_folder_(std::move(emulator_folder)) {
  chkRecord_->Click.Connect([this] { OnRecord(); });
  chkPlayback_->Click.Connect([this] { OnPlayback(); });
}

void RecordingRules::ClearPlayback() { chkPlayback_->SetValue(0); }

void RecordingRules::OnRecord() {
  if (chkPlayback_->Value() == 1) chkPlayback_->SetValue(0);
  const bool on = chkRecord_->Value() == 1;
  chkRecord_->SetForeColor(on ? kDarkRed : kBlack);
  chkRecord_->SetBold(on);
}

void RecordingRules::OnPlayback() {
  if (chkRecord_->Value() == 1) chkRecord_->SetValue(0);
  if (chkPlayback_->Value() == 0) return;
  FilePicker picker(tools_.files, tools_.panels, tools_.boxes, ProgramTitle());
  picker.lblSelExeHide = emulator_.SectionWord();
  const DosPath folder = emulator_folder_() / "INP";
  if (!picker.ChooseRecording(folder)) {
    tools_.boxes.Warn(ProgramTitle(),
                      "There is no folder with recordings:\r" + folder.Text() +
                          "\rRecord a game first, or make this folder and put recordings in it.");
    chkPlayback_->SetValue(0);
    return;
  }
  picker.ShowModal();
  chkPlayback_->SetToolTipText(" Playback:  <" + lblHideInp + "> ");
}

void WireNumberBox(TextBox* box, const PanelTools& tools, std::string title) {
  // What comes without a key, by an input method or the mouse, isn't refused but put back.
  box->setAttribute(Qt::WA_InputMethodEnabled, false);
  box->Change.Connect([box] {
    const std::string text = box->Text();
    if (text.empty() || text.find_first_not_of("0123456789-") != std::string::npos) {
      PutZero(box);
    }
  });
  box->KeyDown.Connect([box, &tools, title = std::move(title)](const KeyArgs& key) {
    if (IsNumberKey(key.code) || key.code == key::kTab) return;
    box->SwallowKey();
    tools.boxes.Warn(title,
                     "Format not valid!  \rYou must enter only 0-9 or\r"
                     "optionally '-' for negative values");
    PutZero(box);
  });
}

void WireEnabling(const SettingsPage& page, const Enabling& enabling) {
  CheckBox* const by = page.Option(enabling.by).check;
  Control* const option = page.Option(enabling.option).Part();
  by->Click.Connect([by, option] { option->SetEnabled(by->Value() == 1); });
}

}  // namespace zarvo

#include "ui/panel/emulator_panel.h"

#include <QKeyEvent>

#include "core/platform/messages.h"

namespace zarvo {
namespace {

// A panel stands this far to the right of the main window's left edge.
constexpr int kDockDistance = 3450;

}  // namespace

Status EmulatorPanel::TrySaveAll() {
  const Status cfg = paths->TrySaveCfg();
  const Status settings = game->TrySave(game->Name());
  std::string reasons;
  for (const Status* saved : {&cfg, &settings}) {
    if (!*saved) reasons += (reasons.empty() ? "" : "\r") + saved->error().message;
  }
  return reasons.empty() ? Success() : Status(Error{reasons});
}

bool EmulatorPanel::SaveOrLeave() {
  for (;;) {
    const Status saved = TrySaveAll();
    if (saved) return true;
    const BoxAnswer answer =
        tools_.boxes.Show(BoxIcon::kExclamation, BoxButtons::kRetryStayLeave, ProgramTitle(),
                          "What was changed in " + std::string(emulator_.selector_caption) +
                              " can't be saved, and would be lost:\r\r" + saved.error().message);
    if (answer != BoxAnswer::kRetry) return answer == BoxAnswer::kLeave;
  }
}

bool EmulatorPanel::SaveAndMarkClosed() {
  if (!SaveOrLeave()) return false;
  state_.lblShow = "NO";
  tools_.main.TellSection(emulator_, false);
  closed_ = true;
  return true;
}

void EmulatorPanel::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Find)) {
    find->Open(games->lstRom != nullptr ? games->lstRom : favourites->lstPref);
  } else {
    Window::keyPressEvent(event);
  }
}

void EmulatorPanel::Exit() {
  if (SaveAndMarkClosed()) UnloadWindow();
}

// Beside the main window: at its right, or at its left where less than half would be seen there, or
// else where all of it is seen.
void EmulatorPanel::Dock() {
  SetTop(tools_.main.MainTop());
  SetLeft(tools_.main.MainLeft() + kDockDistance);
  if (IsHalfSeen()) return;
  SetLeft(tools_.main.MainLeft() - Window::Width());
  if (!IsWhollySeen()) BringWhollyOnScreen();
}

void EmulatorPanel::Enter() {
  if (games->lstRom != nullptr) games->Fill(GameState::kAllSupported);
  if (favourites->lstPref->ListCount() > 0) {
    favourites->lstPref->SetListIndex(0);
  } else {
    if (emulator_.panel.shown_before_first_game) ShowModeless();
    if (games->lstRom != nullptr) games->lstRom->SetListIndex(0);
  }
  games->ShowCount();
  if (!tools_.files.FileExists(tools_.folders.CfgFolder() / emulator_.CfgFile())) {
    tools_.boxes.Inform(ProgramTitle(), MsgNoCfgFile);
    pages->ShowConfiguration();
  }
  state_.lblShow = "SI";
  tools_.main.TellSection(emulator_, true);
  pages->FirstList()->setFocus();
  ShowModeless();
}

void EmulatorPanel::StartSelected(const ListBox* list) {
  start_->Start(list->Text());
  if (list == favourites->lstPref && emulator_.has_favourites) favourites->ShowCount();
}

void EmulatorPanel::TellUnknownGame() {
  tools_.boxes.Warn(ProgramTitle(), MsgRomNotInDataFile);
  if (emulator_.has_favourites) favourites->RemoveUnknown();
}

void EmulatorPanel::ApplyToAll() {
  if (!tools_.boxes.Ask(ProgramTitle(), MsgApplyDefaults)) return;
  const Status saved = game->SaveAsDefault();
  Report(tools_, saved);
  if (saved.ok()) tools_.boxes.Inform(ProgramTitle(), MsgDefaultsSaved);
}

}  // namespace zarvo

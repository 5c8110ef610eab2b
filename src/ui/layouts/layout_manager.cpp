#include "ui/layouts/layout_manager.h"

#include "ui/layouts/apply_layout.h"
#include "ui/shell/dialog_parts.h"

namespace zarvo {
namespace {

int FindItem(const ComboBox& combo, std::string_view text) {
  for (int i = 0; i < combo.ListCount(); ++i) {
    if (combo.List(i) == text) return i;
  }
  return -1;
}

void MoveToEnd(ComboBox& combo, std::string_view old_name, std::string_view new_name) {
  combo.RemoveItem(FindItem(combo, old_name));
  combo.AddItem(new_name);
}

}  // namespace

LayoutManager::LayoutManager(const LayoutTools& tools)
    : Window(WindowFrame::kDesktop, "frmOptions"),
      tools_(tools),
      store_(tools.files, tools.folders) {
  Build();
  Wire();
  Load();
}

void LayoutManager::Wire() {
  cboListaLayout->Click.Connect([this] { ShowPanels(); });
  cmdAdd->Click.Connect([this] { AskName(NameMode::kAdd, "New Layout"); });
  cmdRename->Click.Connect([this] {
    const std::string name = cboListaLayout->Text();
    if (!name.empty()) AskName(NameMode::kRename, name);
  });
  cmdRemove->Click.Connect([this] { RemoveLayout(); });
  cmdSaveLayout->Click.Connect([this] { SaveLayout(); });
  cmdLoadLayout->Click.Connect([this] { LoadLayout(); });
  chkAlwaysOnTop->Click.Connect([this] { SetAlwaysOnTop(chkAlwaysOnTop->Value() == 1); });
  chkEnableAutoload->Click.Connect(
      [this] { cboListaLayout2->SetEnabled(chkEnableAutoload->Value() == 1); });
  cmdOk->Click.Connect([this] {
    SaveSettings();
    UnloadWindow();
  });
  SetCancelAction([this] { UnloadWindow(); });
}

void LayoutManager::Load() {
  const Status filled = FillNames();
  if (filled ? LoadSettings() : EndLoad(filled.error())) cboListaLayout->SetListIndex(0);
}

Status LayoutManager::FillNames() {
  const auto names = store_.Names();
  if (!names) return names.error();
  for (const std::string& name : *names) {
    cboListaLayout->AddItem(name);
    cboListaLayout2->AddItem(name);
  }
  return Success();
}

// False as soon as something can't be read, or names a layout that isn't there.
bool LayoutManager::LoadSettings() {
  const auto always_on_top = store_.ReadSwitch(kAlwaysOnTopKey);
  if (!always_on_top) return EndLoad(always_on_top.error());
  chkAlwaysOnTop->SetValue(*always_on_top ? 1 : 0);
  const auto autoload = store_.ReadSwitch(kAutoloadKey);
  if (!autoload) return EndLoad(autoload.error());
  chkEnableAutoload->SetValue(*autoload ? 1 : 0);
  const auto default_layout = store_.ReadDefaultLayout();
  if (!default_layout) return EndLoad(default_layout.error());
  for (int next = 0; cboListaLayout2->Text() != *default_layout; ++next) {
    if (!cboListaLayout2->SetListIndex(next)) return false;
  }
  if (default_layout->empty()) chkEnableAutoload->SetValue(0);
  return true;
}

// What isn't there yet is no failure.
bool LayoutManager::EndLoad(const Error& error) {
  if (!error.missing) TellFailure(error);
  return false;
}

void LayoutManager::ShowPanels() {
  lstEmulatori->Clear();
  lstEmulatoriSize->Clear();
  const auto block = store_.ReadBlock(cboListaLayout->Text());
  if (!block) return;
  for (const LayoutRecord& record : block->records) {
    if (record.word == kMainWord) continue;
    lstEmulatori->AddItem(record.word);
    const std::string_view size = SizeWord(record.width, record.height);
    if (!size.empty()) lstEmulatoriSize->AddItem(size);
  }
}

void LayoutManager::AskName(NameMode mode, std::string_view name) {
  NameDialog dialog(mode, name);
  dialog.cmdAdd->Click.Connect([&] { AddLayout(dialog); });
  dialog.cmdRename->Click.Connect([&] { RenameLayout(dialog); });
  // The dialog must not open behind the manager, which comes back on top after it.
  if (chkAlwaysOnTop->Value() == 1) SetAlwaysOnTop(false);
  dialog.Unload.Connect([this](bool& /*refuse*/) {
    if (chkAlwaysOnTop->Value() != 1) return;
    chkAlwaysOnTop->SetValue(0);
    chkAlwaysOnTop->SetValue(1);
  });
  dialog.ShowModal();
}

void LayoutManager::AddLayout(NameDialog& dialog) {
  const std::string name = dialog.txtRinomina->Text();
  if (!CanBeName(dialog) || IsTaken(name)) return;
  const std::string default_layout = cboListaLayout2->Text();
  cboListaLayout->AddItem(name);
  cboListaLayout2->AddItem(name);
  cboListaLayout->SetListIndex(cboListaLayout->ListCount() - 1);
  cboListaLayout2->SetListIndex(0);
  if (const Status added = store_.AddBlock(name); !added) {
    TellFailure(added.error());
    ShowFile("", default_layout);
    return;
  }
  dialog.UnloadWindow();
}

void LayoutManager::RenameLayout(NameDialog& dialog) {
  const std::string old_name = cboListaLayout->Text();
  const std::string new_name = dialog.txtRinomina->Text();
  if (new_name != old_name) {
    if (!CanBeName(dialog)) return;
    if (!IsTaken(new_name)) Rename(old_name, new_name);
  }
  dialog.UnloadWindow();
}

// The renamed layout moves to the end of both lists; in the file it keeps its place.
void LayoutManager::Rename(const std::string& old_name, const std::string& new_name) {
  const std::string old_default = cboListaLayout2->Text();
  MoveToEnd(*cboListaLayout, old_name, new_name);
  MoveToEnd(*cboListaLayout2, old_name, new_name);
  const std::string& new_default = old_default == old_name ? new_name : old_default;
  cboListaLayout2->SetListIndex(FindItem(*cboListaLayout2, new_default));
  if (const Status renamed = store_.RenameBlock(old_name, new_name); !renamed) {
    TellFailure(renamed.error());
    ShowFile(old_name, old_default);
    return;
  }
  cboListaLayout->SetListIndex(cboListaLayout->ListCount() - 1);
}

void LayoutManager::RemoveLayout() {
  const int index = cboListaLayout->ListIndex();
  if (index < 0) return;
  const std::string name = cboListaLayout->Text();
  const std::string default_layout = cboListaLayout2->Text();
  cboListaLayout->RemoveItem(index);
  cboListaLayout2->RemoveItem(index);
  if (const Status removed = store_.RemoveBlock(name); !removed) {
    TellFailure(removed.error());
    ShowFile(name, default_layout);
    return;
  }
  if (cboListaLayout->ListCount() == 0) {
    lstEmulatori->Clear();
    lstEmulatoriSize->Clear();
    return;
  }
  cboListaLayout->SetListIndex(index == 0 ? 0 : index - 1);
  if (default_layout == name) cboListaLayout2->SetListIndex(0);
}

void LayoutManager::SaveLayout() {
  const std::string name = cboListaLayout->Text();
  if (name.empty()) return;
  if (const Status saved = store_.SaveBlock(name, PresentWindows(tools_)); !saved) {
    TellFailure(saved.error());
  }
  ShowPanels();
}

// The block is read before anything is closed, so that a damaged one costs the player no window.
void LayoutManager::LoadLayout() {
  const std::string name = cboListaLayout->Text();
  if (name.empty()) return;
  const auto block = store_.ReadBlock(name);
  if (!block) {
    TellFailure(block.error());
    return;
  }
  if (!block->complete) {
    TellFailure({"layouts.dat: the layout \"" + name + "\" is damaged"});
    return;
  }
  if (!tools_.sections.CloseOpenPanels()) return;
  ApplyRecords(tools_, block->records);
}

void LayoutManager::SaveSettings() {
  const Status saved = store_.SaveIni({.always_on_top = chkAlwaysOnTop->Value() == 1,
                                       .autoload = chkEnableAutoload->Value() == 1,
                                       .default_layout = cboListaLayout2->Text()});
  if (!saved) TellFailure(saved.error());
}

bool LayoutManager::CanBeName(const NameDialog& dialog) {
  const std::string name = dialog.txtRinomina->Text();
  // What the code page can't say has become question marks in `name`.
  const bool can_be_written = ToQt(name) == dialog.txtRinomina->text();
  if (can_be_written && IsLayoutName(name)) return true;
  tools_.boxes.Warn(ProgramTitle(), "A layout can't have this name!");
  return false;
}

bool LayoutManager::IsTaken(std::string_view name) {
  for (int i = cboListaLayout->ListCount() - 1; i >= 0; --i) {
    cboListaLayout->SetListIndex(i);
    if (cboListaLayout->Text() != name) continue;
    tools_.boxes.Warn(ProgramTitle(), "Name already exist!");
    return true;
  }
  return false;
}

void LayoutManager::TellFailure(const Error& error) {
  tools_.boxes.Warn(ProgramTitle(), error.message);
}

void LayoutManager::ShowFile(std::string_view selected, std::string_view default_layout) {
  cboListaLayout->Clear();
  cboListaLayout2->Clear();
  Ignore(FillNames());  // its failure is told
  cboListaLayout2->SetListIndex(FindItem(*cboListaLayout2, default_layout));
  const int index = FindItem(*cboListaLayout, selected);
  cboListaLayout->SetListIndex(index < 0 ? 0 : index);
  ShowPanels();
}

}  // namespace zarvo

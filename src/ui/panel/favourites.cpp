#include "ui/panel/favourites.h"

#include "core/panel/cfg_file.h"
#include "core/platform/messages.h"
#include "core/platform/text.h"
#include "ui/panel/control_names.h"
#include "ui/panel/page_parts.h"
#include "ui/toolkit/keys.h"

namespace zarvo {

Favourites::Favourites(QWidget* panel, const Emulator& emulator, const PanelTools& tools)
    : emulator_(emulator), tools_(tools) {
  Build(panel);
  if (emulator.has_favourites) {
    BuildClear(panel);
    lstPref->SetSorted(true);
    lstPref->KeyDown.Connect([this](const KeyArgs& key) { OnKey(key); });
  } else {
    for (const std::string_view game : emulator_.fixed_games) lstPref->AddItem(game);
  }
}

void Favourites::Build(QWidget* panel) {
  lblFavorties = MakeCaption(panel, {90, 525, 840, 195}, " Favorties:");
  lblFavorties->SetName(ControlName(emulator_, "lblFavorties"));
  lblFavorties->SetForeColor(kPeriwinkle);
  lblFavCount = MakeCaption(panel, {930, 525, 480, 195}, "Cou");
  lblFavCount->SetName(
      ControlName(emulator_, emulator_.has_favourites ? "lblFavCount" : "lblFavCountFix"));
  lblFavCount->SetForeColor(kWhite);
  lstPref = new ListBox(panel);
  lstPref->SetName(ControlName(emulator_, "lstPref"));
  lstPref->SetAccessibleName(emulator_.has_favourites ? "Favourites" : "Games");
  lstPref->SetPlace({90, 750, 2235, 3825});
}

void Favourites::BuildClear(QWidget* panel) {
  lblClearFav = MakeButton(panel, ButtonKind::kBulk, {1425, 510, 540, 210}, "Clear");
  lblClearFav->SetName(ControlName(emulator_, "lblClearFav"));
  lblClearFav->Click.Connect([this] { AskAndClear(); });
}

void Favourites::Connect(ListBox* big_list, const Label* total) {
  ConnectDrag(big_list);
  big_list->KeyDown.Connect([this, big_list](const KeyArgs& key) {
    if (key.code == key::kInsert) Add(big_list->Text());
  });
  const PercentTip tip = emulator_.panel.percent_tip;
  lblFavCount->SetPressable(tip != PercentTip::kNever);
  if (tip == PercentTip::kOnMove) {
    lblFavCount->TabbedTo.Connect([this, total] { ShowPercentage(total); });
    lblFavCount->MouseMove.Connect([this, total](const MouseArgs&) { ShowPercentage(total); });
  } else if (tip == PercentTip::kOnClick) {
    lblFavCount->Click.Connect([this, total] { ShowPercentage(total); });
  }
}

void Favourites::ConnectDrag(ListBox* big_list) {
  big_list->MouseDown.Connect([big_list](const MouseArgs& mouse) {
    if (mouse.button != MouseButton::kRight) {
      big_list->BeginDrag(Picture::FromResource("drag_begin"));
    }
  });
  target_.DragOver.Connect([big_list](DragState state) {
    if (state == DragState::kOver) return;
    big_list->SetDragIcon(
        Picture::FromResource(state == DragState::kEnter ? "drag_end" : "drag_begin"));
  });
  target_.DragDrop.Connect([this, big_list] { Add(big_list->Text()); });
  AcceptDrops(lstPref, &target_);
}

void Favourites::ShowCount() {
  const std::string count = std::to_string(lstPref->ListCount());
  lblFavCount->SetCaption(count);
  lblFavCount->SetAccessibleName("Favourites: " + count);
}

void Favourites::Add(const std::string& name) {
  if (name.empty() || lstPref->Items().Find(name) >= 0) return;
  if (!CanBeWritten(name)) {
    tools_.boxes.Warn(ProgramTitle(),
                      name +
                          "\rThis name can't be kept in the favourites list, because of the "
                          "quotation mark and the comma or blank in it.");
    return;
  }
  lstPref->AddItem(name);
  ShowCount();
}

void Favourites::SetEntries(const std::vector<std::string>& names) {
  NameList entries;
  for (const std::string& name : names) entries.Append(name);
  lstPref->SetItems(std::move(entries));
}

std::vector<std::string> Favourites::EntriesBackwards() const {
  std::vector<std::string> names;
  if (!emulator_.has_favourites) return names;
  for (int i = lstPref->ListCount() - 1; i >= 0; --i) names.emplace_back(lstPref->Items().At(i));
  return names;
}

void Favourites::RemoveUnknown() {
  const int index = lstPref->ListIndex();
  if (index > 0) {
    lstPref->RemoveItem(index);
    ShowCount();
    lstPref->SetListIndex(index == lstPref->ListCount() ? index - 1 : index);
  } else {
    lstPref->SetListIndex(lstPref->ListCount() == 0 ? -1 : 0);
  }
  ShowCount();
}

void Favourites::OnKey(const KeyArgs& key) {
  if (key.code == key::kDelete) RemoveSelected();
  if (key.code != key::kEnter) ShowCount();
}

void Favourites::RemoveSelected() {
  const int index = lstPref->ListIndex();
  if (!lstPref->RemoveItem(index)) return;
  ShowCount();
  lstPref->SetListIndex(index == lstPref->ListCount() ? index - 1 : index);
}

void Favourites::AskAndClear() {
  if (!tools_.boxes.Ask(ProgramTitle(), MsgDeleteFavourites)) return;
  lstPref->Clear();
  ShowCount();
}

void Favourites::ShowPercentage(const Label* total) {
  const auto all = ParseInt16(TrimBlanks(total->Caption()));
  if (!all || *all <= 0) {
    lblFavCount->SetToolTipText("");
    return;
  }
  const int percentage = lstPref->ListCount() * 100 / *all;
  lblFavCount->SetToolTipText(" " + std::to_string(percentage) + "% of total ");
}

}  // namespace zarvo

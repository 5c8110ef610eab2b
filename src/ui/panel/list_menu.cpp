#include "ui/panel/list_menu.h"

#include "ui/panel/control_names.h"

namespace zarvo {
namespace {

// Places of the items in the menu.
enum Item { kManufactor, kYear, kGenre, kSeparator, kOC, kSecondSeparator, kFind };

std::string_view OriginalOrClone(std::string_view oc) {
  if (oc == "O") return "Original";
  return oc == "C" ? "Clone" : "";
}

}  // namespace

ListMenu::ListMenu(const Emulator& emulator, const Catalogue& games)
    : games_(games),
      menu_(ControlName(emulator, "mnu"),
            {ControlName(emulator, "mnuManufactor"), ControlName(emulator, "mnuYear"),
             ControlName(emulator, "mnuGenre"), "", ControlName(emulator, "mnuOC"), "",
             ControlName(emulator, "mnuFind")}) {
  menu_.SetCaption(kFind, "Find...  (Ctrl+F)");
  menu_.SetAction(kFind, [this] { Find.Raise(list_); });
}

void ListMenu::Prepare(std::string_view name) {
  const auto record = games_.Find(name);
  if (!record && !name.empty()) return;
  const GameRecord facts = record.value_or(GameRecord{});
  menu_.SetCaption(kManufactor, facts[Field::kMadeBy]);
  menu_.SetCaption(kYear, facts[Field::kYear]);
  menu_.SetCaption(kGenre, facts[Field::kGenre]);
  menu_.SetCaption(kOC, OriginalOrClone(facts[Field::kOC]));
}

void ListMenu::Serve(ListBox* list, bool needs_selection) {
  list->MouseDown.Connect([this, list, needs_selection](const MouseArgs& mouse) {
    if (mouse.button == MouseButton::kRight) Open(list, needs_selection, mouse.global);
  });
  list->MenuKey.Connect(
      [this, list, needs_selection](QPoint place) { Open(list, needs_selection, place); });
}

void ListMenu::Open(ListBox* list, bool needs_selection, QPoint place) {
  const std::string name = list->Text();
  if (needs_selection && name.empty()) return;
  Prepare(name);
  list_ = list;
  menu_.ShowAt(place);
}

}  // namespace zarvo

#include "ui/layouts/name_dialog.h"

#include "ui/shell/dialog_parts.h"

namespace zarvo {
namespace {

constexpr int kWidth = 2835;
constexpr int kHeight = 1155;
constexpr int kMargin = ToTwips(8);
constexpr int kInnerWidth = kWidth - 2 * kMargin;
constexpr int kButtonTop = ToTwips(47);
constexpr int kButtonWidth = ToTwips(82);
constexpr int kButtonHeight = ToTwips(24);
// Both modes show their button here.
constexpr TwipRect kAcceptPlace = {kMargin, kButtonTop, kButtonWidth, kButtonHeight};

}  // namespace

NameDialog::NameDialog(NameMode mode, std::string_view name)
    : Window(WindowFrame::kDesktop, "frmRinomina") {
  SetWidth(kWidth);
  SetHeight(kHeight);
  Build();
  const bool adds = mode == NameMode::kAdd;
  SetCaption(adds ? "Add a new layout" : "Rename layout");
  cmdAdd->SetVisible(adds);
  cmdRename->SetVisible(!adds);
  Wire(adds ? cmdAdd : cmdRename);
  txtRinomina->SetText(name);
  txtRinomina->selectAll();
  txtRinomina->setFocus();
}

void NameDialog::Build() {
  lblDescription =
      PutCaption<Label>(this, "lblDescription", {kMargin, ToTwips(5), kInnerWidth, ToTwips(14)},
                        "Please enter a new name:");
  txtRinomina = Put<TextBox>(this, "txtRinomina", {kMargin, ToTwips(21), kInnerWidth, ToTwips(21)});
  txtRinomina->SetAccessibleName("Name of the layout");
  cmdAdd = PutCaption<PushButton>(this, "cmdAdd", kAcceptPlace, "Add");
  cmdRename = PutCaption<PushButton>(this, "cmdRename", kAcceptPlace, "Rename");
  cmdCancel = PutCaption<PushButton>(
      this, "cmdCancel", {kWidth - kMargin - kButtonWidth, kButtonTop, kButtonWidth, kButtonHeight},
      "Cancel");
}

void NameDialog::Wire(PushButton* accept) {
  txtRinomina->Change.Connect([this] {
    const bool named = !txtRinomina->Text().empty();
    cmdAdd->SetEnabled(named);
    cmdRename->SetEnabled(named);
  });
  accept->SetDefault(true);
  SetDefaultAction([accept] {
    if (accept->Enabled()) accept->Click.Raise();
  });
  cmdCancel->Click.Connect([this] { UnloadWindow(); });
  SetCancelAction([this] { UnloadWindow(); });
}

}  // namespace zarvo

// The small modal dialog that asks for the name of a layout, frmRinomina.
#pragma once

#include <string_view>

#include "ui/toolkit/label.h"
#include "ui/toolkit/push_button.h"
#include "ui/toolkit/text_box.h"
#include "ui/toolkit/window.h"

namespace zarvo {

enum class NameMode { kAdd, kRename };

// One of its two buttons is shown, by mode; what they do is the manager's.
class NameDialog : public Window {
 public:
  NameDialog(NameMode mode, std::string_view name);

  Label* lblDescription;
  TextBox* txtRinomina;
  PushButton* cmdAdd;
  PushButton* cmdRename;
  PushButton* cmdCancel;

 private:
  void Build();
  void Wire(PushButton* accept);
};

}  // namespace zarvo

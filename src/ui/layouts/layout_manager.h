// The window of the layout manager, frmOptions.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/layouts/layout_store.h"
#include "ui/layouts/layout_tools.h"
#include "ui/layouts/name_dialog.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/combo_box.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/list_box.h"
#include "ui/toolkit/push_button.h"

namespace zarvo {

// Both combos hold the names of the layouts in the same order; the buttons act on the one selected
// in `cboListaLayout`, `cboListaLayout2` shows the one for the autoload.
class LayoutManager : public Window {
 public:
  // Fills the controls from the two files; what can't be read leaves the rest as it is.
  explicit LayoutManager(const LayoutTools& tools);

  Frame* Frame4;
  ComboBox* cboListaLayout;
  ListBox* lstEmulatori;
  ListBox* lstEmulatoriSize;
  PushButton* cmdAdd;
  PushButton* cmdRemove;
  PushButton* cmdRename;
  PushButton* cmdLoadLayout;
  PushButton* cmdSaveLayout;
  Frame* Frame5;
  CheckBox* chkEnableAutoload;
  Label* Label1;
  ComboBox* cboListaLayout2;
  CheckBox* chkAlwaysOnTop;
  PushButton* cmdOk;

 private:
  void Build();
  void BuildLayouts();
  void BuildDefault();
  void Wire();
  void Load();
  Status FillNames();
  bool LoadSettings();
  // Tells what couldn't be read; always false.
  bool EndLoad(const Error& error);

  void ShowPanels();
  void AskName(NameMode mode, std::string_view name);
  void AddLayout(NameDialog& dialog);
  void RenameLayout(NameDialog& dialog);
  void Rename(const std::string& old_name, const std::string& new_name);
  void RemoveLayout();
  void SaveLayout();
  void LoadLayout();
  void SaveSettings();

  // Whether the name that was typed can be a layout's; tells the player if not.
  bool CanBeName(const NameDialog& dialog);
  // Walks `cboListaLayout` from its last item to its first, selecting each; true if it stopped at
  // the item that equals `name`, which the player is then told.
  bool IsTaken(std::string_view name);
  void TellFailure(const Error& error);
  // After a failed write: the combos show what the file holds, with these selected if they can be.
  void ShowFile(std::string_view selected, std::string_view default_layout);

  LayoutTools tools_;
  LayoutStore store_;
};

}  // namespace zarvo

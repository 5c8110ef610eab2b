// The help page: the keys of the emulator, and on some panels a list above them.
#pragma once

#include <string>
#include <vector>

#include "core/catalogue/game_details.h"
#include "core/emulators/emulator.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/list_box.h"

namespace zarvo {

class HelpPage : public PictureBox {
 public:
  HelpPage(QWidget* parent, const Emulator& emulator);

  // Replaces the content of the list.
  void SetLines(const std::vector<std::string>& lines) const;

  ListBox* lstHelp = nullptr;  // nullptr: this panel has keys alone

 private:
  int BuildList(const Emulator& emulator);
  void BuildKeys(int top, const HelpPageTable& layout);
  void BuildRow(const KeyRow& row, const TwipRect& place, const HelpPageTable& layout);
};

}  // namespace zarvo

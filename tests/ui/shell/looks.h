// What lists and message boxes show, in texts that are easy to compare.
#pragma once

#include <string>
#include <vector>

#include "fakes/recorded_boxes.h"
#include "ui/toolkit/combo_box.h"
#include "ui/toolkit/list_box.h"

namespace zarvo {

// The entries of a list or a combo, with "|" between them.
template <typename ListOrCombo>
std::string Entries(const ListOrCombo* list) {
  std::string all;
  for (int i = 0; i < list->ListCount(); ++i) {
    if (i > 0) all += '|';
    if constexpr (requires { list->List(i); }) {
      all += list->List(i);
    } else {
      all += list->Items().At(i);
    }
  }
  return all;
}

// What the boxes since the last call said: "i", "!" or "?" by their kind, a title that isn't the
// usual one in brackets, then the text with "|" for a line break.
inline std::vector<std::string> Take(RecordedBoxes& boxes) {
  std::vector<std::string> told;
  for (const RecordedBoxes::Shown& box : boxes.shown) {
    std::string line = "i ";
    if (box.icon == BoxIcon::kExclamation) line = "! ";
    if (box.buttons == BoxButtons::kYesNo) line = "? ";
    if (box.title != "Zarvo v0.1") line += "[" + box.title + "] ";
    for (const char c : box.text) line += c == '\r' ? '|' : c;
    told.push_back(line);
  }
  boxes.shown.clear();
  return told;
}

}  // namespace zarvo

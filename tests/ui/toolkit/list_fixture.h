// A list of 200 x 96 pixels, which are six whole rows, or five over a scroll bar; and what it
// tells.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fakes/stage.h"
#include "ui/toolkit/list_box.h"

namespace zarvo {

// The entries of a list, each with a "|" behind it; the selected one is in brackets.
inline std::string EntriesOf(const ListBox& list) {
  std::string all;
  for (int i = 0; i < list.ListCount(); ++i) {
    const std::string entry(list.Items().At(i));
    all += (i == list.ListIndex() ? "[" + entry + "]" : entry) + "|";
  }
  return all;
}

class ListTest : public testing::Test {
 protected:
  ListTest() {
    list.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 1440});
    list.Click.Connect([this] { log.text += " click " + list.Text(); });
    list.DblClick.Connect([this] { log.text += " double " + list.Text(); });
    list.MouseDown.Connect([this](const MouseArgs& mouse) {
      log.text += " down " + std::to_string(static_cast<int>(mouse.button));
    });
  }

  void Fill(const std::vector<std::string>& names) {
    for (const std::string& name : names) list.AddItem(name);
  }
  void OpenWith(int count) {
    for (int i = 0; i < count; ++i) list.AddItem(std::to_string(i));
    stage.Open();
  }

  Stage stage;
  std::unique_ptr<ListBox> owned = std::make_unique<ListBox>(&stage);
  ListBox& list = *owned;
  EventLog log;
};

}  // namespace zarvo

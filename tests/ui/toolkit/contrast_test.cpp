// Every text is read well on its ground, in each state that has colours of its own.
#include "fakes/contrast.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "fakes/stage.h"
#include "ui/toolkit/check_box.h"
#include "ui/toolkit/frame.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/list_box.h"
#include "ui/toolkit/push_button.h"
#include "ui/toolkit/text_box.h"

namespace zarvo {
namespace {

constexpr double kReadable = 4.5;

TEST(ContrastTest, ThePaletteIsReadable) {
  const QPalette palette = QApplication::palette();
  for (const auto& [text, ground] :
       std::initializer_list<std::pair<QPalette::ColorRole, QPalette::ColorRole>>{
           {QPalette::WindowText, QPalette::Window},
           {QPalette::Link, QPalette::Window},
           {QPalette::Text, QPalette::Base},
           {QPalette::Text, QPalette::AlternateBase},
           {QPalette::ButtonText, QPalette::Button},
           {QPalette::HighlightedText, QPalette::Highlight},
           {QPalette::ToolTipText, QPalette::ToolTipBase},
       }) {
    EXPECT_GE(Contrast(palette.color(text), palette.color(ground)), kReadable) << text;
  }
}

TEST(ContrastTest, ControlsAreReadableInEveryState) {
  Stage stage;
  PictureBox card(&stage);
  card.SetBackColor(kCard);
  card.SetPlace({.left = 0, .top = 3000, .width = 6000, .height = 1500});
  ListBox list(&stage);
  list.SetPlace({.left = 0, .top = 0, .width = 3000, .height = 1500});
  for (int i = 0; i < 3; ++i) list.AddItem("MMMHHH");
  PushButton button(&stage);
  button.SetPlace({.left = 3000, .top = 0, .width = 1500, .height = 375});
  button.SetCaption("MMMHHH");
  TextBox text(&stage);
  text.SetPlace({.left = 3000, .top = 750, .width = 1500, .height = 300});
  text.SetText("MMMHHH");
  CheckBox check(&card);
  check.SetCaption("MMMHHH");
  check.SetPlace({.left = 150, .top = 150, .width = 1500, .height = 300});
  stage.Open();
  const auto in_list = [&](int index) { return list.EntryRect(index).adjusted(2, 2, -2, -1); };
  const auto inside = [&](const QWidget& widget, int left = 3) {
    return QRect(widget.mapTo(&stage, QPoint()), widget.size()).adjusted(left, 3, -3, -3);
  };
  const auto least = [&](const QRect& place) { return EnlargedLook(&stage).TextContrast(place); };
  const std::pair<const char*, std::function<double()>> states[] = {
      {"row", [&] { return least(in_list(0)); }},
      {"other row", [&] { return least(in_list(1)); }},
      {"selected row",
       [&] {
         list.SetListIndex(1);
         button.setFocus();
         return least(in_list(1));
       }},
      {"selected row with the focus",
       [&] {
         list.setFocus();
         return least(in_list(1));
       }},
      {"button", [&] { return least(inside(button)); }},
      {"default button",
       [&] {
         button.SetDefault(true);
         return least(inside(button));
       }},
      {"default button under the mouse",
       [&] {
         button.setAttribute(Qt::WA_UnderMouse);
         return least(inside(button));
       }},
      {"button under the mouse",
       [&] {
         button.SetDefault(false);
         return least(inside(button));
       }},
      {"pressed button",
       [&] {
         button.setDown(true);
         return least(inside(button));
       }},
      {"text box", [&] { return least(inside(text)); }},
      {"check box", [&] { return least(inside(check, 13)); }},
  };
  for (const auto& [state, contrast] : states) EXPECT_GE(contrast(), kReadable) << state;
}

}  // namespace
}  // namespace zarvo

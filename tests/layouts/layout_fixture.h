// A layout manager over a drive of its own, with windows that are nothing but their places.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "fakes/failing_files.h"
#include "fakes/key_press.h"
#include "fakes/modal.h"
#include "fakes/recorded_boxes.h"
#include "fakes/temp_drive.h"
#include "layouts/layout_manager.h"
#include "layouts/layout_window.h"
#include "layouts/recording_sections.h"

namespace zarvo {

inline constexpr std::string_view kTwoLayouts =
    "[Evening]\r\nMAIN,400,500\r\nMAME,10,20,6345,7260\r\nRAINE,30,40,2415,4620\r\n-\r\n"
    "[Night]\r\nMAIN,1,2\r\nM72,5,6,6345,4620\r\n-\r\n";

inline std::string Ini(int on_top, int autoload, const std::string& name) {
  return "[Layouts]\r\nLayoutAlwaysOnTop = " + std::to_string(on_top) +
         "\r\nAutoloadOnStartup = " + std::to_string(autoload) + "\r\nDefaultLayout = " + name +
         "\r\n";
}

inline std::vector<std::string> ItemsOf(const ComboBox& combo) {
  std::vector<std::string> items;
  items.reserve(static_cast<std::size_t>(combo.ListCount()));
  for (int i = 0; i < combo.ListCount(); ++i) items.push_back(combo.List(i));
  return items;
}

inline std::vector<std::string> ItemsOf(const ListBox& list) {
  std::vector<std::string> items;
  items.reserve(static_cast<std::size_t>(list.ListCount()));
  for (int i = 0; i < list.ListCount(); ++i) items.emplace_back(list.Items().At(i));
  return items;
}

class LayoutWindowTest : public testing::Test {
 protected:
  LayoutWindowTest() { app_.ProgramFolder = R"(C:\Zarvo)"; }

  void GivenFiles(std::string_view layouts, std::string_view ini) {
    drive_.Write(R"(C:\Zarvo\layouts.dat)", layouts);
    drive_.Write(R"(C:\Zarvo\zarvo.ini)", ini);
  }
  LayoutManager& Open() {
    window_ = MakeLayoutWindow(tools_);
    window_->ShowModeless();
    return dynamic_cast<LayoutManager&>(*window_);
  }
  [[nodiscard]] std::string Layouts() const { return drive_.Read(R"(C:\Zarvo\layouts.dat)"); }

  // Types a name into the dialog that `button` opens and presses Enter.
  static void Name(PushButton* button, std::string_view name) {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      dialog.txtRinomina->SetText(name);
      PressKey(dialog.txtRinomina, Qt::Key_Return);
    });
    button->click();
  }

  // The texts of the warnings shown since the last look.
  std::vector<std::string> Warnings() {
    std::vector<std::string> texts;
    for (const RecordedBoxes::Shown& box : std::exchange(boxes_.shown, {})) {
      EXPECT_EQ(box.icon, BoxIcon::kExclamation);
      EXPECT_EQ(box.title, "Zarvo v0.1");
      texts.push_back(box.text);
    }
    return texts;
  }
  void TearDown() override { EXPECT_THAT(Warnings(), testing::IsEmpty()); }

  TempDrive drive_;
  FailingFiles files_{drive_.files()};
  AppState app_;
  RecordedBoxes boxes_;
  RecordingSections sections_{app_};
  LayoutTools tools_{files_, app_, boxes_, sections_, sections_};
  std::unique_ptr<Window> window_;
};

}  // namespace zarvo

// A layout manager over a drive of its own, with windows that are nothing but their places.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "fakes/failing_files.h"
#include "fakes/key_press.h"
#include "fakes/modal.h"
#include "fakes/recorded_boxes.h"
#include "fakes/temp_drive.h"
#include "layouts/layout_manager.h"
#include "layouts/layout_window.h"
#include "layouts/recording_sections.h"
#include "shell/looks.h"

namespace zarvo {

inline constexpr std::string_view kTwoLayouts =
    "[Evening]\r\nMAIN,400,500\r\nMAME,10,20,6345,7260\r\nRAINE,30,40,2415,4620\r\n-\r\n"
    "[Night]\r\nMAIN,1,2\r\nM72,5,6,6345,4620\r\n-\r\n";

inline std::string Ini(int on_top, int autoload, const std::string& name) {
  return "[Layouts]\r\nLayoutAlwaysOnTop = " + std::to_string(on_top) +
         "\r\nAutoloadOnStartup = " + std::to_string(autoload) + "\r\nDefaultLayout = " + name +
         "\r\n";
}

class LayoutWindowTest : public testing::Test {
 protected:
  LayoutWindowTest() { app_.ProgramFolder = R"(C:\Zarvo)"; }
  void TearDown() override { EXPECT_THAT(Take(boxes_), testing::IsEmpty()); }

  // The manager over these files, on the screen.
  LayoutManager& Open(std::string_view layouts, std::string_view ini) {
    drive_.Write(R"(C:\Zarvo\layouts.dat)", layouts);
    drive_.Write(R"(C:\Zarvo\zarvo.ini)", ini);
    return Open();
  }
  LayoutManager& Open() {
    window_ = MakeLayoutWindow(tools_);
    window_->ShowModeless();
    return dynamic_cast<LayoutManager&>(*window_);
  }
  [[nodiscard]] std::string Layouts() const { return drive_.Read(R"(C:\Zarvo\layouts.dat)"); }

  // What the window shows: the switches that are on, "default" if that can be chosen, the layouts,
  // the chosen one, the default one, the panels of the chosen one, their sizes.
  static std::string Look(const LayoutManager& manager) {
    EXPECT_EQ(Entries(manager.cboListaLayout2), Entries(manager.cboListaLayout));
    return std::string(manager.chkAlwaysOnTop->Value() == 1 ? "top " : "") +
           (manager.chkEnableAutoload->Value() == 1 ? "autoload " : "") +
           (manager.cboListaLayout2->Enabled() ? "default " : "") +
           Entries(manager.cboListaLayout) + "; " + manager.cboListaLayout->Text() + "; " +
           manager.cboListaLayout2->Text() + "; " + Entries(manager.lstEmulatori) + "; " +
           Entries(manager.lstEmulatoriSize);
  }

  // Types a name into the dialog that `button` opens and presses Enter.
  static void Name(PushButton* button, std::string_view name) {
    const ModalPlay<NameDialog> play([&](NameDialog& dialog) {
      dialog.txtRinomina->SetText(name);
      PressKey(dialog.txtRinomina, Qt::Key_Return);
    });
    button->click();
  }

  TempDrive drive_;
  FailingFiles files_{drive_.files()};
  AppState app_;
  RecordedBoxes boxes_;
  RecordingSections sections_{app_};
  LayoutTools tools_{files_, app_, boxes_, sections_, sections_};
  std::unique_ptr<Window> window_;
};

}  // namespace zarvo

// The main window, frmMain: the narrow front of the cabinet that selects the emulator.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/dos_files.h"
#include "core/platform/message_boxes.h"
#include "core/platform/program.h"
#include "ui/shell/section_host.h"
#include "ui/shell/window_menu.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/timer.h"
#include "ui/toolkit/window.h"

namespace zarvo {

// What the main window asks of the rest of the program.
struct MainActions {
  std::function<SectionHost&()> sections;
  std::function<void()> show_layouts;  // not modal
  std::function<void()> show_about;    // modal
  std::function<void()> autoload;      // applies the layout of the start, silent whatever fails
  std::function<void()> end_program;
  // Makes ready for texts while the window stands already; then calls back.
  std::function<void(std::function<void()> done)> load_font = [](const auto& done) { done(); };
};

// Reads the header lines of an emulator's data file, each without its first character, as far as
// the file gives them.
using HeaderReader = std::function<std::vector<std::string>(const Emulator&)>;

class MainWindow : public Window, public MainPlace {
 public:
  MainWindow(DosFiles& files, ProgramFolders& folders, MessageBoxes& boxes,
             HeaderReader read_header, MainActions actions);

  // The start of the program, in its order: state, welcome box, folders, place, autoload, ticker.
  void StartUp();
  // After that: shows the window.
  void Appear();

  // MainPlace:
  [[nodiscard]] int MainLeft() const override { return Left(); }
  [[nodiscard]] int MainTop() const override { return Top(); }
  void SetMainPlace(int top, int left) override;
  void TellSection(const Emulator& emulator, bool open) override;
  void ResetCommands() override;

  ImageBox* imgZarvo;
  ImageBox* Image4;
  Label* lblVersion;
  Label* lblMiscText;
  Label* lblExit;
  Label* lblLays;
  Label* lblAbout;
  std::vector<Label*> selector;  // lblMame and its sisters, in the order of the emulators
  Label* lblNeoRageX;
  std::array<Label*, 17> facts;  // lblName to lblContrib, in the order of the header

  Timer Timer1;  // turns the ticker

  // Invisible: the position of the ticker line on show, from 1.
  std::string lblNumerillo = "1";

 private:
  // main_window_build.cpp
  void Build();
  void BuildHead();
  void BuildSelector();
  void BuildFacts();
  Label* Text(const TwipRect& place, std::string_view caption, Colour colour);
  Label* Command(const TwipRect& place, std::string_view caption, std::string_view name);
  void Wire();
  static void WireCommand(Label* command, Label* neighbour, std::function<void()> action);
  void WireSelector(const Emulator& emulator);

  static void ResetCommand(Label* command);
  static void ResetSelector(Label* name);
  void Hover(const Emulator& emulator);
  void HoverGround(const MouseArgs& mouse);
  void MoveByMouse(const MouseArgs& mouse);
  void PutAtStart();
  void TellFact(std::size_t index);
  void Turn();
  void ConfirmEnd(bool& refuse);

  DosFiles& files_;
  ProgramFolders& folders_;
  MessageBoxes& boxes_;
  HeaderReader read_header_;
  MainActions actions_;
  std::unique_ptr<WindowMenu> window_menu_;
};

}  // namespace zarvo

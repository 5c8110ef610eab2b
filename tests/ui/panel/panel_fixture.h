// A drive with small data files, and the five sections on top of it, for the tests of the panels.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/emulators.h"
#include "fakes/failing_files.h"
#include "fakes/key_press.h"
#include "fakes/modal.h"
#include "fakes/mouse.h"
#include "fakes/recorded_boxes.h"
#include "fakes/temp_drive.h"
#include "ui/panel/sections.h"
#include "ui/shell/looks.h"

namespace zarvo {

// A main window that stands at 400, 500 and counts what the panels ask of it.
struct FakeMain : MainPlace {
  [[nodiscard]] int MainLeft() const override { return left; }
  [[nodiscard]] int MainTop() const override { return top; }
  void SetMainPlace(int new_top, int new_left) override {
    top = new_top;
    left = new_left;
  }
  void ResetCommands() override { ++resets; }

  int top = 400;
  int left = 500;
  int resets = 0;
};

// A record from its fields up to the year; the rest is "Yes" and so on.
inline std::string Game(std::string_view up_to_year) {
  return std::string(up_to_year) +
         ";Yes;Near;Yes(1);Hi;Tail;drv.c;[Z80];M68000;n/a;n/a;YM2151;n/a;n/a;n/a;\r\n";
}

// Seventeen header lines; the eighth, the total, holds `total`.
inline std::string DataHead(std::string_view total) {
  std::string head = "# a comment\r\n\r\n";
  for (int line = 1; line <= 17; ++line) {
    head += "*" + (line == 8 ? std::string(total) : "fact " + std::to_string(line)) + "\r\n";
  }
  return head;
}

class PanelTest : public testing::Test {
 protected:
  PanelTest() {
    QObject::connect(&watch_, &QTimer::timeout, &watch_, [this] { CloseUnexpected(); });
    watch_.start(3000);
    folders_.ProgramFolder = R"(C:\Zarvo)";
    PutData("Mame", DataHead("200") + Game("Aliens;aliens;O;-;Shooter;Konami;1990") +
                        Game("Aliens (JP);aliensj;C;aliens;Shooter;Konami;1990") +
                        Game("Metal Slug;mslug;C;neogeo;Action;Nazca;1996") +
                        Game("Puck Man;puckman;O;-;Labyrinth;Namco;1980") +
                        Game("Zaxxon;zaxxon;O;-;Shooter;Sega;1990"));
    PutData("Callus", DataHead("50") + Game("1941;1941;O;-;Shooter;Capcom;1990") +
                          Game("Final Fight;ffight;O;-;Fighting;Capcom;1989") +
                          Game("Strider;strider;O;-;Action;Capcom;1989"));
    PutData("Raine", DataHead("30") + Game("Bubble Bobble;bublbobl;O;-;Platform;Taito;1986") +
                         Game("Rainbow Islands;rainbow;O;-;Platform;Taito;1987"));
    PutData("System16", DataHead("20") + Game("Aurail;aurail;O;-;Shooter;Sega;1990") +
                            Game("Shinobi;shinobi;O;-;Action;Sega;1987"));
    PutData("M72", DataHead("12") + Game("Battle Chopper;bchopper;O;-;Shooter;Irem;1987") +
                       Game("Dragon Breed;dbreed;O;-;Shooter;Irem;1989"));
  }
  ~PanelTest() override {
    EXPECT_THAT(TakeBoxes(), testing::IsEmpty()) << "an unexpected box";
    DropClosed();
  }
  // Panels that were closed go with the next turn of the event loop.
  static void DropClosed() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

  void PutData(std::string_view word, std::string_view bytes) {
    drive_.Write(R"(C:\Zarvo\Data\)" + std::string(word) + ".dat", bytes);
  }
  // A configuration file in which the emulator stands in C:\Emu\<word>, with these favourites.
  void PutCfg(const Emulator& emulator, const std::vector<std::string>& favourites = {},
              std::string_view layout_word = "up") {
    const std::string word(emulator.word);
    const std::string folder = R"(C:\Emu\)" + word;
    drive_.Write(CfgPath(emulator),
                 Lines({folder + "\\" + word + ".exe", folder + R"(\Roms)", R"(C:\Snaps)", "GIF",
                        folder, std::string(layout_word)}) +
                     Lines(favourites));
  }
  void PutSettings(const Emulator& emulator, std::string_view bytes) {
    drive_.Write(SetPath(emulator), bytes);
  }
  static std::string CfgPath(const Emulator& emulator) {
    return R"(C:\Zarvo\cfg\)" + std::string(emulator.word) + ".cfg";
  }
  static std::string SetPath(const Emulator& emulator) {
    return R"(C:\Zarvo\cfg\)" + std::string(emulator.word) + ".set";
  }
  static std::string Lines(const std::vector<std::string>& values) {
    std::string text;
    for (const std::string& value : values) text += "\"" + value + "\"\r\n";
    return text;
  }
  // The keys of a settings store, in its order and with "|" behind each; "(none)" without a store.
  [[nodiscard]] std::string Keys(const Emulator& emulator) const {
    if (!drive_.Exists(SetPath(emulator))) return "(none)";
    std::string keys;
    for (const std::string& line : Split(drive_.Read(SetPath(emulator)))) {
      keys += line.substr(1, line.find('"', 1) - 1) + "|";
    }
    return keys;
  }
  static std::vector<std::string> Split(std::string_view text, std::string_view by = "\r\n") {
    std::vector<std::string> parts;
    while (!text.empty()) {
      parts.emplace_back(text.substr(0, text.find(by)));
      text.remove_prefix(std::min(text.size(), parts.back().size() + by.size()));
    }
    return parts;
  }

  EmulatorPanel& Open(const Emulator& emulator) {
    sections_.OpenSection(emulator);
    return sections_.Panel(emulator);
  }
  // With a configuration file, so that no message comes.
  EmulatorPanel& OpenConfigured(const Emulator& emulator,
                                const std::vector<std::string>& favourites = {}) {
    PutCfg(emulator, favourites);
    return Open(emulator);
  }

  std::vector<std::string> TakeBoxes() { return Take(boxes_); }

  // The pages that are visible, for one look.
  static std::string Pages(const EmulatorPanel& panel) {
    const std::pair<const Control*, const char*> all[] = {
        {panel.pages->picSnap->imgSnap, "img"}, {panel.pages->picSnap, "snap"},
        {panel.pages->picSettings, "settings"}, {panel.pages->picInfo, "info"},
        {panel.pages->picHelp, "help"},         {panel.pages->picConf, "conf"}};
    std::string pages;
    for (const auto& [page, name] : all) {
      if (page->Visible()) pages.append(pages.empty() ? "" : " ").append(name);
    }
    return pages;
  }
  static std::string Caption(const EmulatorPanel& panel) { return panel.lblRomSettings->Caption(); }
  static void Press(Control* control) { ClickMouse(control->Widget()); }
  // Presses an entry of a list with the mouse.
  static void PressEntry(ListBox* list, int index) {
    ClickMouse(list->viewport(), list->EntryRect(index).center());
  }
  static ComboBox* Combo(const EmulatorPanel& panel, std::string_view name) {
    return panel.pages->picSettings->Option(OptionIndex(panel.ItsEmulator(), name)).combo;
  }
  // The game in the caption, what a combo of its settings shows, and its rom folder.
  static std::string Current(const EmulatorPanel& panel, std::string_view combo) {
    return Caption(panel) + " " + std::to_string(Combo(panel, combo)->ListIndex()) + " " +
           panel.pages->picSettings->txtRomPath->Text();
  }
  static CheckBox* Check(const EmulatorPanel& panel, std::string_view name) {
    return panel.pages->picSettings->Option(OptionIndex(panel.ItsEmulator(), name)).check;
  }

  TempDrive drive_;
  FailingFiles files_{drive_.files()};
  ProgramFolders folders_;
  RecordedBoxes boxes_;
  FakeMain main_;
  std::vector<std::string> runs_;  // the batch file at each run, and its folder
  std::function<void()> during_run_;
  Sections sections_{
      files_,
      folders_,
      boxes_,
      main_,
      [this](std::string_view command_line) { return Run(command_line); },
      [] {
        return ClockTime{.year = 1999, .month = 6, .day = 23, .hour = 9, .minute = 7, .second = 3};
      }};

 private:
  // A window that nobody plays would hang the test; it is one that stands through two looks.
  void CloseUnexpected() {
    auto* const window = dynamic_cast<Window*>(QApplication::activeModalWidget());
    const bool stands = window != nullptr && window == seen_;
    seen_ = window;
    if (!stands) return;
    ADD_FAILURE() << "Nobody expected the window " << window->Caption();
    window->UnloadWindow();
  }

  Status Run(std::string_view command_line) {
    EXPECT_EQ(command_line, "command.com /c lancia.bat");
    const auto batch = ReadAll(files_, "lancia.bat");
    runs_.push_back(files_.CurrentFolder().Text() + "> " + (batch ? *batch : "(no batch file)"));
    if (during_run_) during_run_();
    return Success();
  }

  QTimer watch_;
  const Window* seen_ = nullptr;  // modal at the last look
};

}  // namespace zarvo

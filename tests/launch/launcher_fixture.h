// A launch on a drive of its own, with a panel, boxes and a run that the test can read.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "fakes/recorded_boxes.h"
#include "fakes/temp_drive.h"
#include "launch/launcher.h"

namespace zarvo {

inline constexpr std::string_view kCommand = "command.com /c lancia.bat";

// A panel whose answers the test sets, and that notes what it is asked.
class ScriptedPanel : public LaunchPanel {
 public:
  bool knows_game = true;
  std::string rom = "sf2";
  std::string parent = "-";
  std::string emulator_path;
  std::string emulator_folder;
  OptionValues options;
  std::vector<std::string> calls;

  void SaveCfg() override { calls.emplace_back("save cfg"); }
  bool FindRom(std::string_view game) override {
    calls.push_back("find " + std::string(game));
    return knows_game;
  }
  [[nodiscard]] std::string RomName() const override { return rom; }
  [[nodiscard]] std::string ParentRom() const override { return parent; }
  [[nodiscard]] std::string EmulatorPath() const override { return emulator_path; }
  [[nodiscard]] std::string EmulatorFolder() const override { return emulator_folder; }
  [[nodiscard]] CommandInput Command() const override {
    return {.emulator_path = "", .rom_name = "", .options = options, .recording = "", .now = {}};
  }
  void ShowEmulatorPicker() override { calls.emplace_back("emulator picker"); }
  void ShowRomPicker() override { calls.emplace_back("rom picker"); }
};

// Each emulator stands in C:\Emu\<word>; the archives that a game's record names in C:\Mine.
class LauncherTest : public testing::Test {
 protected:
  LauncherTest() { app_.ProgramFolder = "C:\\Zarvo"; }

  void Use(Emulator emulator) {
    profile_ = &ProfileOf(emulator);
    panel_ = ScriptedPanel();
    boxes_.shown.clear();
    folder_ = "C:\\Emu\\" + std::string(profile_->word);
    own_ = folder_ + std::string(profile_->rom_sub_folder);
    panel_.emulator_folder = folder_;
    panel_.emulator_path = folder_ + "\\Emu.exe";
    panel_.options = DefaultValues(*profile_, "C:\\Mine");
    drive_.Write(panel_.emulator_path, "program");
    drive_.MakeFolder(own_);
    drive_.MakeFolder("C:\\Mine");
    batch_.clear();
    archives_.clear();
  }

  void UseOwnFolder() { panel_.options.rom_folder = own_; }

  LaunchEnd Start() { return StartWith(drive_.files()); }
  LaunchEnd StartWith(DosFiles& files) {
    const LaunchTools tools{
        .files = files, .boxes = boxes_, .app = app_, .run = [this, &files](std::string_view line) {
          EXPECT_EQ(line, kCommand);
          return Run(files);
        }};
    return Launch(*profile_, "Street Fighter II", panel_, tools);
  }

  // What the emulator finds when it starts.
  Status Run(DosFiles& files) {
    EXPECT_TRUE(EqualNoCase(files.CurrentFolder(), folder_)) << files.CurrentFolder();
    batch_ = drive_.Read(folder_ + "\\lancia.bat");
    archives_ = Archives();
    return run_result_;
  }

  [[nodiscard]] std::vector<std::string> Archives() const {
    std::vector<std::string> archives;
    const DosWorld& files = drive_.files();
    for (const FolderEntry& entry : files.ListFolder(own_).value()) {
      if (!entry.name.ends_with(".zip")) continue;
      archives.push_back(entry.name + "=" + drive_.Read(JoinPath(own_, entry.name)));
    }
    std::sort(archives.begin(), archives.end());
    return archives;
  }

  [[nodiscard]] std::vector<std::string> Questions() const {
    std::vector<std::string> texts;
    for (const auto& box : boxes_.shown) {
      if (box.buttons == BoxButtons::kYesNo) texts.push_back(box.title + "|" + box.text);
    }
    return texts;
  }

  // The one plain warning of a launch that has ended early: "title|text".
  [[nodiscard]] std::string Warning() const {
    if (boxes_.shown.size() != 1 || boxes_.shown[0].icon != BoxIcon::kExclamation ||
        boxes_.shown[0].buttons != BoxButtons::kOk) {
      return "not one warning";
    }
    return boxes_.shown[0].title + "|" + boxes_.shown[0].text;
  }

  void ExpectNothingRan() {
    EXPECT_EQ(batch_, "");
    EXPECT_FALSE(drive_.Exists(folder_ + "\\lancia.bat"));
  }

  [[nodiscard]] std::string Overwrite(const std::string& rom) const {
    return "Zarvo v0.1|" + rom + ": " + app_.messages.MsgRomOverwrite;
  }

  mutable TempDrive drive_;
  AppState app_;
  RecordedBoxes boxes_;
  const EmulatorProfile* profile_ = nullptr;
  ScriptedPanel panel_;
  std::string folder_;
  std::string own_;
  Status run_result_ = Success();
  std::string batch_;
  std::vector<std::string> archives_;
};

}  // namespace zarvo

#include "launch/command_line.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "platform/text.h"

namespace zarvo {
namespace {

// What one option says at one of its values.
struct Saying {
  std::string value;
  std::string item;  // of a list
  std::string piece;
};

// A file expected_<emulator>.txt: the head of every line, then the options in the order of the
// line, each with all its values.
struct Expected {
  std::string head;
  std::vector<std::pair<std::string, std::vector<Saying>>> options;
};

Saying ParseSaying(const std::string& line) {
  const std::size_t arrow = line.find("=>");
  const std::string left = line.substr(0, arrow - 1);
  const std::size_t blank = left.find(' ');
  const std::string item = blank == std::string::npos ? "" : left.substr(blank + 1);
  return {left.substr(0, blank), item, line.substr(arrow + 2)};
}

Expected ReadExpected(const EmulatorProfile& profile) {
  std::ifstream file(ZARVO_EXPECTED_COMMANDS + FoldCase(profile.word) + ".txt");
  Expected expected;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with('#')) continue;
    if (line.starts_with("head ")) {
      expected.head = line.substr(5);
    } else if (line.starts_with('[')) {
      expected.options.push_back({line.substr(1, line.size() - 2), {}});
    } else {
      expected.options.back().second.push_back(ParseSaying(line));
    }
  }
  return expected;
}

class CommandLineOf : public testing::TestWithParam<Emulator> {
 protected:
  CommandLineOf() : profile_(ProfileOf(GetParam())), expected_(ReadExpected(profile_)) {
    const std::string word(profile_.word);
    input_.emulator_path = "C:\\Emu\\" + word + "\\" + word + ".exe";
    input_.rom_name = "agsofdk";
    input_.options = DefaultValues(profile_, "C:\\Roms");
    input_.recording = "first.inp";
    input_.now = {.year = 1999, .month = 6, .day = 23, .hour = 9, .minute = 7, .second = 3};
  }

  static const OptionSpec& OptionOf(const std::string& name) {
    return OptionsOf(GetParam())[OptionIndex(GetParam(), name)];
  }

  void Set(const std::string& name, const std::string& value) {
    OptionValue& option = input_.options.values[OptionIndex(GetParam(), name)];
    if (OptionOf(name).kind == OptionKind::kText) {
      option.text = value;
    } else {
      option.number = std::stoi(value);
    }
  }

  static std::string DefaultOf(const std::string& name) {
    const OptionSpec& declared = OptionOf(name);
    return declared.kind == OptionKind::kText ? std::string(declared.default_text)
                                              : std::to_string(declared.default_value);
  }

  // The line of the expectations with every option at its default but one.
  [[nodiscard]] std::string LineWith(const std::string& name, const Saying& saying) const {
    std::string line = expected_.head;
    for (const auto& [option, sayings] : expected_.options) {
      if (option == name) {
        line += saying.piece;
        continue;
      }
      for (const Saying& one : sayings) {
        if (one.value == DefaultOf(option)) line += one.piece;
      }
    }
    return line;
  }

  const EmulatorProfile& profile_;
  Expected expected_;
  CommandInput input_;
};

TEST_P(CommandLineOf, EveryValueOfEveryOptionSaysItsPieceInItsPlace) {
  for (const auto& [name, sayings] : expected_.options) {
    for (const Saying& saying : sayings) {
      // Without sound the sample rate is silent; that is a line of its own below.
      if (name == "cboSoundCard" && saying.value == "0") continue;
      if (name == "chkNoSound" && saying.value == "1") continue;
      const CommandInput before = input_;
      Set(name, saying.value);
      EXPECT_EQ(CommandLine(profile_, input_), LineWith(name, saying))
          << name << " at " << saying.value;
      input_ = before;
    }
  }
}

TEST_P(CommandLineOf, ListsHoldTheItemsOfTheExpectations) {
  std::size_t options = 0;
  for (const auto& [name, sayings] : expected_.options) {
    ++options;
    if (OptionOf(name).kind != OptionKind::kCombo) continue;
    std::vector<std::string> items;
    for (const Saying& saying : sayings) {
      if (saying.value != "-1") items.push_back(saying.item);
    }
    EXPECT_EQ(items,
              std::vector<std::string>(OptionOf(name).items.begin(), OptionOf(name).items.end()))
        << name;
  }
  EXPECT_EQ(options, OptionsOf(GetParam()).size());
}

INSTANTIATE_TEST_SUITE_P(All, CommandLineOf,
                         testing::Values(Emulator::kMame, Emulator::kCallus, Emulator::kRaine,
                                         Emulator::kSystem16, Emulator::kM72),
                         [](const auto& named) {
                           return std::string(ProfileOf(named.param).word);
                         });

// Whole lines, from options that act on one another.
struct WholeLine {
  Emulator emulator;
  std::map<std::string, int> numbers;
  std::string line;
};

TEST(CommandLine, WholeLines) {
  const std::vector<WholeLine> rows = {
      {Emulator::kMame, {}, "emu.exe sf2 -ignorecfg -soundcard 1"},
      {Emulator::kMame,
       {{"cboSoundCard", 0}, {"cboSampleRate", 0}},
       "emu.exe sf2 -ignorecfg -soundcard 0"},
      {Emulator::kMame,
       {{"chkL90", 1}, {"chkR90", 1}, {"cboVesaMode", 2}, {"chkTweaked", 1}, {"cboGamma", 10}},
       "emu.exe sf2 -ignorecfg -soundcard 1 -gamma 1.00 -tweak -vesamode vesa2b -ror -rol"},
      {Emulator::kMame, {{"chkPlayback", 1}}, "emu.exe sf2 -ignorecfg -soundcard 1"},
      {Emulator::kCallus,
       {},
       "emu.exe sf2 -resv 640 480 -res 640 480 -frameskip AUTO -sndrate 22050 -setinput 1 KEY1"
       " -setinput 2 KEY1 -setinput 3 KEY1 -setinput 4 KEY1"},
      {Emulator::kCallus,
       {{"chkNoSound", 1}, {"cboVR", 2}, {"cboHR", 13}, {"cboDevice2", -1}, {"chkStereo", 1}},
       "emu.exe sf2 -resv 384 224 -res 800 600 -frameskip AUTO -nosound -setinput 1 KEY1"
       " -setinput 3 KEY1 -setinput 4 KEY1 -stereo ON"},
      {Emulator::kRaine,
       {},
       "emu.exe -game sf2 -nogui -screenmode 0 -screenx 320 -screeny 200 -joystick -1"},
      {Emulator::kSystem16,
       {},
       "emu.exe sf2 -RX 320 -RY 240 -SCANLINES -NOTITLE -SOUNDCARD 0 -R 22050 -JOYTYPE 3"},
      {Emulator::kSystem16,
       {{"chkAnalogJoy", 1}, {"cboControls", 5}},
       "emu.exe sf2 -RX 320 -RY 240 -SCANLINES -NOTITLE -SOUNDCARD 0 -R 22050 -JOYTYPE 12 -JOY"},
      {Emulator::kM72, {}, "emu.exe sf2 -r 22050"},
      {Emulator::kM72, {{"cboVR", 1}}, "emu.exe sf2 -r 22050"}};
  for (const WholeLine& row : rows) {
    const EmulatorProfile& profile = ProfileOf(row.emulator);
    CommandInput input{.emulator_path = "emu.exe",
                       .rom_name = "sf2",
                       .options = DefaultValues(profile, ""),
                       .recording = "",
                       .now = {}};
    for (const auto& [name, number] : row.numbers) {
      input.options.values[OptionIndex(row.emulator, name)].number = number;
    }
    EXPECT_EQ(CommandLine(profile, input), row.line);
  }
}

TEST(CommandLine, TheDisplayModeOfM72IsToldWhileItCanBeChosen) {
  const EmulatorProfile& m72 = ProfileOf(Emulator::kM72);
  CommandInput input{.emulator_path = "m72.exe",
                     .rom_name = "rtype",
                     .options = DefaultValues(m72, ""),
                     .recording = "",
                     .now = {}};
  input.options.values[OptionIndex(Emulator::kM72, "chkVertDisplay")].number = 1;
  OptionValue& mode = input.options.values[OptionIndex(Emulator::kM72, "cboVR")];
  mode.enabled = true;
  mode.number = 1;
  input.options.values[OptionIndex(Emulator::kM72, "cboFrameSkip")].number = 3;
  EXPECT_EQ(CommandLine(m72, input), "m72.exe rtype -res 512x384 -skip 3 -vert -r 22050");
  mode.number = 0;
  EXPECT_EQ(CommandLine(m72, input), "m72.exe rtype -res 400x300 -skip 3 -vert -r 22050");
  mode.number = -1;
  EXPECT_EQ(CommandLine(m72, input), "m72.exe rtype -skip 3 -vert -r 22050");
}

TEST(CommandLine, RecordingsAreNamedAfterTheMomentInTwiceSixDigits) {
  const EmulatorProfile& mame = ProfileOf(Emulator::kMame);
  CommandInput input{.emulator_path = "mame.exe",
                     .rom_name = "pacman",
                     .options = DefaultValues(mame, ""),
                     .recording = "",
                     .now = {.year = 2004, .month = 12, .day = 1, .hour = 23, .minute = 59}};
  input.options.values[OptionIndex(Emulator::kMame, "chkRecord")].number = 1;
  EXPECT_EQ(CommandLine(mame, input),
            "mame.exe pacman -ignorecfg -soundcard 1 -record pacman_235900-011204");
}

}  // namespace
}  // namespace zarvo

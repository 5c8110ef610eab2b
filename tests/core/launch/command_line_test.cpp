#include "core/launch/command_line.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "core/platform/text.h"
#include "fakes/emulators.h"

namespace zarvo {
namespace {

// What one option says at one of its values.
struct Saying {
  std::string option;
  std::string value;
  std::string item;  // of a list
  std::string piece;
};

// A file expected_<emulator>.txt: the head of every line, then the options in the order of the
// line, each with all its values.
struct Expected {
  std::string head;
  std::vector<Saying> sayings;
};

Expected ReadExpected(const Emulator& emulator) {
  std::ifstream file(ZARVO_EXPECTED_COMMANDS + FoldCase(emulator.word) + ".txt");
  Expected expected;
  std::string option;
  for (std::string line; std::getline(file, line);) {
    const std::size_t arrow = line.find("=>");
    if (line.starts_with("head ")) {
      expected.head = line.substr(5);
    } else if (line.starts_with('[')) {
      option = line.substr(1, line.size() - 2);
    } else if (!option.empty() && !line.empty()) {
      const std::string left = line.substr(0, arrow);
      const std::size_t blank = left.find(' ');
      const std::string item = left.substr(blank + 1);
      expected.sayings.push_back({option, left.substr(0, blank),
                                  item.substr(0, item.find_last_not_of(' ') + 1),
                                  line.substr(arrow + 2)});
    }
  }
  return expected;
}

// Each at each of its values, all others at their defaults.
void ExpectPieces(const Emulator& emulator) {
  const std::string word(emulator.word);
  const CommandInput defaults{
      .emulator_path = "C:\\Emu\\" + word + "\\" + word + ".exe",
      .rom_name = "agsofdk",
      .options = DefaultValues(emulator, "C:\\Roms"),
      .recording = "first.inp",
      .now = {.year = 2004, .month = 12, .day = 1, .hour = 23, .minute = 7, .second = 30}};
  const auto [head, sayings] = ReadExpected(emulator);
  const auto options = emulator.options;
  std::map<std::string, std::vector<std::string>> items;
  for (const Saying& saying : sayings) {
    const std::size_t index = OptionIndex(emulator, saying.option);
    const bool is_text = options[index].kind == OptionKind::kText;
    auto& listed = items[saying.option];
    if (options[index].kind == OptionKind::kCombo && saying.value != "-1") {
      listed.push_back(saying.item);
    }
    // Without sound the sample rate is silent; that is a line of its own below.
    if (saying.option == "cboSoundCard" && saying.value == "0") continue;
    if (saying.option == "chkNoSound" && saying.value == "1") continue;
    CommandInput input = defaults;
    OptionValue& value = input.options.values[index];
    value = {.number = is_text ? 0 : std::stoi(saying.value), .text = saying.value};
    std::string line = head;
    for (const Saying& one : sayings) {
      const std::size_t other = OptionIndex(emulator, one.option);
      const OptionValue& at = input.options.values[other];
      const bool says = options[other].kind == OptionKind::kText
                            ? one.value == at.text
                            : one.value == std::to_string(at.number);
      if (says && at.enabled) line += one.piece;
    }
    EXPECT_EQ(CommandLine(emulator, input), line) << saying.option << " at " << saying.value;
  }
  EXPECT_EQ(items.size(), options.size());
  for (const OptionSpec& option : options) {
    EXPECT_EQ(items[std::string(option.name)],
              std::vector<std::string>(option.items.begin(), option.items.end()))
        << option.name;
  }
}

TEST(CommandLine, EveryValueOfEveryOptionSaysItsPieceInItsPlace) {
  for (const Emulator& emulator : kTested) ExpectPieces(emulator);
}

// Whole lines, from options that act on one another.
struct WholeLine {
  const Emulator& emulator;
  std::map<std::string, int> numbers;
  std::string line;
};

TEST(CommandLine, WholeLines) {
  const std::vector<WholeLine> rows = {
      {kMame, {{"cboSoundCard", 0}, {"cboSampleRate", 0}}, " -ignorecfg -soundcard 0"},
      {kMame, {{"chkPlayback", 1}}, " -ignorecfg -soundcard 1"},
      {kCallus,
       {{"chkNoSound", 1}, {"cboVR", 2}, {"cboHR", 13}, {"cboDevice2", -1}, {"chkStereo", 1}},
       " -resv 384 224 -res 800 600 -frameskip AUTO -nosound -setinput 1 KEY1"
       " -setinput 3 KEY1 -setinput 4 KEY1 -stereo ON"},
      {kM72, {{"cboVR", 1}}, " -r 22050"}};
  for (const WholeLine& row : rows) {
    CommandInput input{.emulator_path = "emu.exe",
                       .rom_name = "sf2",
                       .options = DefaultValues(row.emulator, ""),
                       .recording = "",
                       .now = {}};
    for (const auto& [name, number] : row.numbers) {
      input.options.values[OptionIndex(row.emulator, name)].number = number;
    }
    EXPECT_EQ(CommandLine(row.emulator, input), "emu.exe sf2" + row.line);
  }
}

}  // namespace
}  // namespace zarvo

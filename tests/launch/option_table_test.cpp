#include "launch/option_table.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/twips.h"

namespace zarvo {
namespace {

constexpr TwipRect kPage{.left = 0, .top = 0, .width = 3855, .height = 3885};
// The rom folder with its three buttons stands above the options.
constexpr int kFirstOption = 390;

bool Inside(const TwipRect& place) {
  return place.left >= kPage.left && place.top >= kFirstOption &&
         place.left + place.width <= kPage.width && place.top + place.height <= kPage.height;
}

bool Overlap(const TwipRect& a, const TwipRect& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

std::vector<TwipRect> PlacesOf(const OptionSpec& option) {
  if (option.kind == OptionKind::kCheck) return {option.place};
  return {option.place, option.caption_place};
}

TEST(OptionTable, EveryControlHasARoomOfItsOwnOnWholePixels) {
  for (const EmulatorProfile& profile : Profiles()) {
    std::vector<std::pair<std::string_view, TwipRect>> taken;
    for (const OptionSpec& option : OptionsOf(profile.emulator)) {
      for (const TwipRect& place : PlacesOf(option)) {
        EXPECT_TRUE(Inside(place)) << profile.word << " " << option.name;
        for (const int edge : {place.left, place.top, place.width, place.height}) {
          EXPECT_EQ(edge % kTwipsPerPixel, 0) << profile.word << " " << option.name;
        }
        EXPECT_GT(place.width * place.height, 0) << profile.word << " " << option.name;
        for (const auto& [name, other] : taken) {
          EXPECT_FALSE(Overlap(place, other)) << profile.word << " " << option.name << " " << name;
        }
        taken.emplace_back(option.name, place);
      }
    }
  }
}

TEST(OptionTable, EveryControlSaysWhatItIs) {
  for (const EmulatorProfile& profile : Profiles()) {
    for (const OptionSpec& option : OptionsOf(profile.emulator)) {
      EXPECT_FALSE(option.caption.empty()) << profile.word << " " << option.name;
      EXPECT_TRUE(option.tool_tip.starts_with(' ')) << profile.word << " " << option.name;
    }
  }
}

TEST(OptionTable, DefaultsTakeTheConfiguredRomFolderOrTheFixedOne) {
  const EmulatorProfile& callus = ProfileOf(Emulator::kCallus);
  EXPECT_EQ(DefaultValues(callus, "C:\\Mine").rom_folder, "C:\\Mine");
  EXPECT_EQ(DefaultValues(callus, "").rom_folder, "C:\\emu\\callus");
}

TEST(OptionTable, OnlyTheDisplayModeOfM72WaitsForItsCheckBox) {
  for (const EmulatorProfile& profile : Profiles()) {
    const auto options = OptionsOf(profile.emulator);
    const OptionValues defaults = DefaultValues(profile, "");
    for (std::size_t i = 0; i < options.size(); ++i) {
      const bool waits = profile.emulator == Emulator::kM72 && options[i].name == "cboVR";
      EXPECT_EQ(defaults.values[i].enabled, !waits) << profile.word << " " << options[i].name;
    }
  }
}

TEST(OptionTable, PresetsOfTheSettingsPage) {
  struct Row {
    Emulator emulator;
    std::vector<std::pair<std::string_view, int>> presets;
  };
  const std::vector<Row> rows = {
      {Emulator::kMame,
       {{"cboScreenRes", 0},
        {"cboMonitor", 0},
        {"cboFrames", 0},
        {"cboSoundCard", 1},
        {"cboSampleRate", 1},
        {"cboControls", 0},
        {"cboBeam", 0},
        {"cboFlicker", 0}}},
      {Emulator::kCallus,
       {{"cboHR", 0},
        {"cboVR", 0},
        {"cboFrameSkip", 0},
        {"cboSampleRate", 1},
        {"cboDevice1", 0},
        {"cboDevice2", 0},
        {"cboDevice3", 0},
        {"cboDevice4", 0}}},
      {Emulator::kRaine, {{"cboScreenMode", 0}, {"cboScreenRes", 0}, {"cboJoystick", 0}}},
      {Emulator::kSystem16,
       {{"cboHR", 2},
        {"cboVR", 2},
        {"cboFrameSkip", 0},
        {"cboSoundcard", 0},
        {"cboSampleRate", 1},
        {"cboControls", 0}}},
      {Emulator::kM72,
       {{"cboVR", 0}, {"cboFrameSkip", 0}, {"cboSampleRate", 1}, {"cboQuickFire", 0}}}};
  for (const Row& row : rows) {
    std::vector<std::pair<std::string_view, int>> found;
    for (const OptionSpec& option : OptionsOf(row.emulator)) {
      if (option.preset) found.emplace_back(option.name, *option.preset);
    }
    EXPECT_EQ(found, row.presets) << ProfileOf(row.emulator).word;
  }
}

}  // namespace
}  // namespace zarvo

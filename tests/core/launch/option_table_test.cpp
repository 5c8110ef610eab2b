#include <gtest/gtest.h>

#include <vector>

#include "core/emulators/emulator.h"
#include "core/platform/twips.h"
#include "fakes/emulators.h"

namespace zarvo {
namespace {

// On the settings page, below the rom folder with its three buttons.
bool Inside(const TwipRect& place) {
  return place.left >= 0 && place.top >= 390 && place.left + place.width <= 3855 &&
         place.top + place.height <= 3885;
}

bool Overlap(const TwipRect& a, const TwipRect& b) {
  return a.left < b.left + b.width && b.left < a.left + a.width && a.top < b.top + b.height &&
         b.top < a.top + a.height;
}

TEST(OptionTable, EveryControlSaysWhatItIsInARoomOfItsOwnOnWholePixels) {
  for (const Emulator& emulator : kTested) {
    std::vector<TwipRect> taken;
    for (const OptionSpec& option : emulator.options) {
      SCOPED_TRACE(testing::Message() << emulator.word << " " << option.name);
      EXPECT_FALSE(option.caption.empty());
      EXPECT_TRUE(option.tool_tip.starts_with(' '));
      std::vector<TwipRect> places = {option.place};
      if (option.kind != OptionKind::kCheck) places.push_back(option.caption_place);
      for (const TwipRect& place : places) {
        EXPECT_TRUE(Inside(place));
        for (const int edge : {place.left, place.top, place.width, place.height}) {
          EXPECT_EQ(edge % kTwipsPerPixel, 0);
        }
        EXPECT_GT(place.width * place.height, 0);
        for (const TwipRect& other : taken) EXPECT_FALSE(Overlap(place, other));
        taken.push_back(place);
      }
    }
  }
}

TEST(OptionTable, PresetsOfTheSettingsPageAndTheFixedRomFolder) {
  const std::pair<Emulator, std::string> rows[] = {
      {kMame,
       " cboScreenRes=0 cboMonitor=0 cboFrames=0 cboSoundCard=1 cboSampleRate=1 cboControls=0"
       " cboBeam=0 cboFlicker=0"},
      {kCallus,
       " cboHR=0 cboVR=0 cboFrameSkip=0 cboSampleRate=1 cboDevice1=0 cboDevice2=0 cboDevice3=0"
       " cboDevice4=0"},
      {kRaine, " cboScreenMode=0 cboScreenRes=0 cboJoystick=0"},
      {kSystem16, " cboHR=2 cboVR=2 cboFrameSkip=0 cboSoundcard=0 cboSampleRate=1 cboControls=0"},
      {kM72, " cboVR=0 (waits) cboFrameSkip=0 cboSampleRate=1 cboQuickFire=0"}};
  for (const auto& [emulator, presets] : rows) {
    std::string found;
    for (const OptionSpec& option : emulator.options) {
      if (option.preset) {
        found += " " + std::string(option.name) + "=" + std::to_string(*option.preset);
      }
      if (!option.enabled_at_start) found += " (waits)";
    }
    EXPECT_EQ(found, presets);
  }
  EXPECT_EQ(DefaultValues(kCallus, "").rom_folder, "C:\\emu\\callus");
}

}  // namespace
}  // namespace zarvo

// The options of MAME, in the order of their fields in the stored record.
#pragma once

#include <array>
#include <string_view>

#include "core/launch/option_layout.h"
#include "core/launch/option_table.h"

namespace zarvo::mame {

inline constexpr auto kScreenResItems = std::to_array<std::string_view>(
    {"Auto", "320 x 240", "400 x 300", "512 x 384", "640 x 480", "800 x 600", "1024 x 768"});

inline constexpr auto kMonitorItems = std::to_array<std::string_view>(
    {"PC Monitor", "NTSC Monitor", "PAL Monitor", "ARCADE Monitor"});

inline constexpr auto kVesaModeItems = std::to_array<std::string_view>(
    {"Auto", "Vesa 1.0", "Vesa 2.0 (B)", "Vesa 2.0 (L)", "Vesa 3.0"});

inline constexpr auto kFramesItems =
    std::to_array<std::string_view>({"Auto", "1/12", "2/12", "3/12", "4/12", "5/12", "6/12", "7/12",
                                     "8/12", "9/12", "10/12", "11/12"});

inline constexpr auto kSoundCardItems = std::to_array<std::string_view>(
    {"No Sound", "Sound Blaster", "P.Audio Spectrum", "Ultrasound MAX", "Ultrasound",
     "Windows S.System", "Ensoniq Soundscape"});

inline constexpr auto kSampleRateItems =
    std::to_array<std::string_view>({"11.025 Khz", "22.050 Khz", "44.100 Khz"});

inline constexpr auto kControlsItems = std::to_array<std::string_view>(
    {"Keyboard", "Joystick", "Dual Joystick", "Pad 4 Buttons", "Pad 6 Buttons", "Pad 8 Buttons",
     "CH Flightstick", "Wingman Extr.", "MS Sidewinder", "Gravis PadPro", "Snes Pad LPT1",
     "Snes Pad LPT2", "Snes Pad LPT3"});

inline constexpr auto kVgaFreqItems = std::to_array<std::string_view>({"0", "1", "2", "3"});

inline constexpr auto kBeamItems = std::to_array<std::string_view>(
    {"1.00", "2.00", "3.00", "4.00", "5.00", "6.00", "7.00", "8.00", "9.00", "10.00", "11.00",
     "12.00", "13.00", "14.00", "15.00", "16.00"});

inline constexpr auto kFlickerItems = std::to_array<std::string_view>(
    {"None", "5 %",  "10 %", "15 %", "20 %", "25 %", "30 %", "35 %", "40 %", "45 %", "50 %",
     "55 %", "60 %", "65 %", "70 %", "75 %", "80 %", "85 %", "90 %", "95 %", "100 %"});

inline constexpr auto kGammaItems = std::to_array<std::string_view>(
    {"0.50", "0.55", "0.60", "0.65", "0.70", "0.75", "0.80", "0.85", "0.90", "0.95", "1.00",
     "1.05", "1.10", "1.15", "1.20", "1.25", "1.30", "1.35", "1.40", "1.45", "1.50", "1.55",
     "1.60", "1.65", "1.70", "1.75", "1.80", "1.85", "1.90", "1.95", "2.00"});

// Lists stand in six rows of two columns, the short ones left; three short fields share the last
// row. Check boxes stand in three columns: video, picture, sound and recording.
inline constexpr Rows kLists{.top = 390, .pitch = 285, .height = 255};
inline constexpr Rows kChecks{.top = 2145, .pitch = 210, .height = 195};
inline constexpr Field kLeft{.label = {60, 720}, .box = {780, 1035}};
inline constexpr Field kRight{.label = {1860, 630}, .box = {2490, 1335}};
inline constexpr Field kGamma{.label = {60, 720}, .box = {780, 675}};
inline constexpr Field kSkipRow{.label = {1515, 705}, .box = {2220, 420}};
inline constexpr Field kSkipColumn{.label = {2715, 675}, .box = {3390, 435}};
inline constexpr std::array<Span, 3> kColumns = {{{60, 1410}, {1470, 1200}, {2670, 1155}}};

inline constexpr std::array<OptionSpec, 35> kOptions = {{
    {.name = "cboScreenRes",
     .kind = OptionKind::kCombo,
     .caption = "Screen",
     .tool_tip = " Choose the Screen Resolution (X-Y) ",
     .items = kScreenResItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft.box, 0),
     .caption_place = kLists.At(kLeft.label, 0)},
    {.name = "cboMonitor",
     .kind = OptionKind::kCombo,
     .caption = "Monitor",
     .tool_tip = " Selects the monitor type ",
     .items = kMonitorItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight.box, 0),
     .caption_place = kLists.At(kRight.label, 0)},
    {.name = "cboVesaMode",
     .kind = OptionKind::kCombo,
     .caption = "Vesa",
     .tool_tip = " In conjunction with Vesa, selects the VESA modes to try ",
     .items = kVesaModeItems,
     .default_value = 0,
     .place = kLists.At(kRight.box, 1),
     .caption_place = kLists.At(kRight.label, 1)},
    {.name = "cboFrames",
     .kind = OptionKind::kCombo,
     .caption = "Frames",
     .tool_tip = " Skip frames to speed up the emulation ",
     .items = kFramesItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft.box, 1),
     .caption_place = kLists.At(kLeft.label, 1)},
    {.name = "cboSoundCard",
     .kind = OptionKind::kCombo,
     .caption = "Sound",
     .tool_tip = " Select SoundCard ",
     .items = kSoundCardItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kRight.box, 2),
     .caption_place = kLists.At(kRight.label, 2)},
    {.name = "cboSampleRate",
     .kind = OptionKind::kCombo,
     .caption = "Rate",
     .tool_tip = " Set the audio sample rate. 11025khz will cause lower audio quality but faster "
                 "emulation speed ",
     .items = kSampleRateItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kRight.box, 3),
     .caption_place = kLists.At(kRight.label, 3)},
    {.name = "cboControls",
     .kind = OptionKind::kCombo,
     .caption = "Controls",
     .tool_tip = " Allows joystick input ",
     .items = kControlsItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight.box, 4),
     .caption_place = kLists.At(kRight.label, 4)},
    {.name = "cboVgaFreq",
     .kind = OptionKind::kCombo,
     .caption = "VGA freq.",
     .tool_tip = " Use different frequencies for the custom video modes. WARNING! Read readme.txt!",
     .items = kVgaFreqItems,
     .default_value = 0,
     .place = kLists.At(kLeft.box, 2),
     .caption_place = kLists.At(kLeft.label, 2)},
    {.name = "cboBeam",
     .kind = OptionKind::kCombo,
     .caption = "Beam",
     .tool_tip = " Sets the width in pixels of the vectors ",
     .items = kBeamItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft.box, 3),
     .caption_place = kLists.At(kLeft.label, 3)},
    {.name = "cboFlicker",
     .kind = OptionKind::kCombo,
     .caption = "Flicker",
     .tool_tip = " Make the vectors flicker ",
     .items = kFlickerItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft.box, 4),
     .caption_place = kLists.At(kLeft.label, 4)},
    {.name = "txtSkipR",
     .kind = OptionKind::kText,
     .caption = "Skip Row",
     .tool_tip = " Use these two parameters to set the initial screen position. You can specify "
                 "negative offsets.",
     .default_text = "0",
     .most_characters = 4,
     .place = kLists.At(kSkipRow.box, 5),
     .caption_place = kLists.At(kSkipRow.label, 5)},
    {.name = "txtSkipC",
     .kind = OptionKind::kText,
     .caption = "Skip Col.",
     .tool_tip = " Use these two parameters to set the initial screen position. You can specify "
                 "negative offsets.",
     .default_text = "0",
     .place = kLists.At(kSkipColumn.box, 5),
     .caption_place = kLists.At(kSkipColumn.label, 5)},
    {.name = "cboGamma",
     .kind = OptionKind::kCombo,
     .caption = "Gamma",
     .tool_tip = " Set the initial gamma correction value ",
     .items = kGammaItems,
     .default_value = 14,
     .place = kLists.At(kGamma.box, 5),
     .caption_place = kLists.At(kGamma.label, 5)},
    {.name = "chkScanlines",
     .kind = OptionKind::kCheck,
     .caption = "No ScanLines",
     .tool_tip = " If the default mode doesn't work with your monitor/video card use this or Vesa ",
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkNTSC",
     .kind = OptionKind::kCheck,
     .caption = "NTSC Mode",
     .tool_tip = " 288x224 mode with standard NTSC frequencies. You need some additional hardware ",
     .place = kChecks.At(kColumns[0], 1)},
    {.name = "chkDepth",
     .kind = OptionKind::kCheck,
     .caption = "Depth 8-Bit",
     .tool_tip = " To improve speed you can use this option which limits to the standard 256 color "
                 "modes (for 65k games) ",
     .place = kChecks.At(kColumns[1], 0)},
    {.name = "chkAlwaysSync",
     .kind = OptionKind::kCheck,
     .caption = "Always Synced",
     .tool_tip = " Use this option with VSync if you have frequencies problems ",
     .place = kChecks.At(kColumns[0], 2)},
    {.name = "chkTweaked",
     .kind = OptionKind::kCheck,
     .caption = "Tweaked",
     .tool_tip = " This look MUCH better than VESA modes (and usually faster), but may have "
                 "compatibility problems with some video cards and monitors ",
     .place = kChecks.At(kColumns[1], 1)},
    {.name = "chkNoStretch",
     .kind = OptionKind::kCheck,
     .caption = "No Stretch",
     .tool_tip =
         " Use NoStretch to disable pixel doubling in VESA modes (faster,but smaller picture) ",
     .place = kChecks.At(kColumns[1], 2)},
    {.name = "chkTripleBuffer",
     .kind = OptionKind::kCheck,
     .caption = "Triple Buffer",
     .tool_tip = " Enables triple buffering with VESA modes. This is faster than -vsync, but "
                 "doesn't work on all cards and  it might not be as smooth as VSync ",
     .place = kChecks.At(kColumns[0], 5)},
    {.name = "chkWaitInterlace",
     .kind = OptionKind::kCheck,
     .caption = "Wait Interlace",
     .tool_tip = " Forces update of both odd and even fields of an interlaced low scanrate display "
                 "(monitor=ntsc,pal,arcade) for each game loop ",
     .place = kChecks.At(kColumns[0], 4)},
    {.name = "chkVsync",
     .kind = OptionKind::kCheck,
     .caption = "Enable V-Sync",
     .tool_tip =
         " Synchronize video display with the video beam instead of using the timer (slower) ",
     .place = kChecks.At(kColumns[0], 3)},
    {.name = "chkAntiA",
     .kind = OptionKind::kCheck,
     .caption = "Anti Aliasing",
     .tool_tip = " Antialiasing for the Vector Games ",
     .place = kChecks.At(kColumns[0], 6)},
    {.name = "chkNoTrans",
     .kind = OptionKind::kCheck,
     .caption = "No Transluc.",
     .tool_tip = " Enables vector translucency ",
     .place = kChecks.At(kColumns[1], 3)},
    {.name = "chkR90",
     .kind = OptionKind::kCheck,
     .caption = "Rotate +90",
     .tool_tip = " Rotate the display clockwise by 90 degrees ",
     .place = kChecks.At(kColumns[1], 4)},
    {.name = "chkL90",
     .kind = OptionKind::kCheck,
     .caption = "Rotate -90",
     .tool_tip = " Rotate display anticlockwise ",
     .place = kChecks.At(kColumns[1], 5)},
    {.name = "chkFlipH",
     .kind = OptionKind::kCheck,
     .caption = "Flip Horizon.",
     .tool_tip = " Flip display horizontally ",
     .place = kChecks.At(kColumns[1], 6)},
    {.name = "chkFlipV",
     .kind = OptionKind::kCheck,
     .caption = "Flip Vertical",
     .tool_tip = " Flip display vertically ",
     .place = kChecks.At(kColumns[1], 7)},
    {.name = "chkNoRot",
     .kind = OptionKind::kCheck,
     .caption = "No Rotation",
     .tool_tip = " This is supposed to disable all internal rotations of the image therefore "
                 "displaying the video output as it is supposed to be ",
     .place = kChecks.At(kColumns[2], 4)},
    {.name = "chkCheat",
     .kind = OptionKind::kCheck,
     .caption = "Enable Cheat",
     .tool_tip = " Cheats like the speedup in Pac Man or the level skip in many other games are "
                 "disabled by default. Use this switch to turn them On ",
     .place = kChecks.At(kColumns[0], 7)},
    {.name = "chkRecord",
     .kind = OptionKind::kCheck,
     .caption = "Record",
     .tool_tip = " Record joystick input. The format is: romname_TIME_DATE.inp",
     .place = kChecks.At(kColumns[2], 6)},
    {.name = "chkStereo",
     .kind = OptionKind::kCheck,
     .caption = "No Stereo",
     .tool_tip = " Disable stereo output for games supporting it ",
     .place = kChecks.At(kColumns[2], 0)},
    {.name = "chk16Bit",
     .kind = OptionKind::kCheck,
     .caption = "16 Bits",
     .tool_tip = " Set the audio sample to 16 bits. Better audio quality but less speed.",
     .place = kChecks.At(kColumns[2], 1)},
    {.name = "chkYm3812",
     .kind = OptionKind::kCheck,
     .caption = "No Ym3812",
     .tool_tip = " Disable the SoundBlaster OPL chip for music emulation of the YM3812 chip ",
     .place = kChecks.At(kColumns[2], 2)},
    {.name = "chkPlayback",
     .kind = OptionKind::kCheck,
     .caption = "Playback",
     .tool_tip = R"( Playback joystick input from file "*.inp" )",
     .stored = false,
     .place = kChecks.At(kColumns[2], 7)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 36);

}  // namespace zarvo::mame

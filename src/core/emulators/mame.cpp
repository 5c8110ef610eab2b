// MAME: all in which it differs from the other emulators.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/emulators/emulator.h"
#include "core/emulators/option_layout.h"
#include "core/emulators/pieces.h"

namespace zarvo {
namespace {

// The options, in the order of their fields in the stored record.

constexpr auto kScreenResItems = std::to_array<std::string_view>(
    {"Auto", "320 x 240", "400 x 300", "512 x 384", "640 x 480", "800 x 600", "1024 x 768"});

constexpr auto kMonitorItems = std::to_array<std::string_view>(
    {"PC Monitor", "NTSC Monitor", "PAL Monitor", "ARCADE Monitor"});

constexpr auto kVesaModeItems = std::to_array<std::string_view>(
    {"Auto", "Vesa 1.0", "Vesa 2.0 (B)", "Vesa 2.0 (L)", "Vesa 3.0"});

constexpr auto kFramesItems =
    std::to_array<std::string_view>({"Auto", "1/12", "2/12", "3/12", "4/12", "5/12", "6/12", "7/12",
                                     "8/12", "9/12", "10/12", "11/12"});

constexpr auto kSoundCardItems = std::to_array<std::string_view>(
    {"No Sound", "Sound Blaster", "P.Audio Spectrum", "Ultrasound MAX", "Ultrasound",
     "Windows S.System", "Ensoniq Soundscape"});

constexpr auto kSampleRateItems =
    std::to_array<std::string_view>({"11.025 Khz", "22.050 Khz", "44.100 Khz"});

constexpr auto kControlsItems = std::to_array<std::string_view>(
    {"Keyboard", "Joystick", "Dual Joystick", "Pad 4 Buttons", "Pad 6 Buttons", "Pad 8 Buttons",
     "CH Flightstick", "Wingman Extr.", "MS Sidewinder", "Gravis PadPro", "Snes Pad LPT1",
     "Snes Pad LPT2", "Snes Pad LPT3"});

constexpr auto kVgaFreqItems = std::to_array<std::string_view>({"0", "1", "2", "3"});

constexpr auto kBeamItems = std::to_array<std::string_view>(
    {"1.00", "2.00", "3.00", "4.00", "5.00", "6.00", "7.00", "8.00", "9.00", "10.00", "11.00",
     "12.00", "13.00", "14.00", "15.00", "16.00"});

constexpr auto kFlickerItems = std::to_array<std::string_view>(
    {"None", "5 %",  "10 %", "15 %", "20 %", "25 %", "30 %", "35 %", "40 %", "45 %", "50 %",
     "55 %", "60 %", "65 %", "70 %", "75 %", "80 %", "85 %", "90 %", "95 %", "100 %"});

constexpr auto kGammaItems = std::to_array<std::string_view>(
    {"0.50", "0.55", "0.60", "0.65", "0.70", "0.75", "0.80", "0.85", "0.90", "0.95", "1.00",
     "1.05", "1.10", "1.15", "1.20", "1.25", "1.30", "1.35", "1.40", "1.45", "1.50", "1.55",
     "1.60", "1.65", "1.70", "1.75", "1.80", "1.85", "1.90", "1.95", "2.00"});

// Lists stand in seven rows of two columns, numbers left and words right. Check boxes stand in
// three columns: video, picture, sound and recording.
constexpr Rows kLists{.top = 390, .pitch = 255, .height = 240};
constexpr Rows kChecks{.top = 2175, .pitch = 210, .height = 195};
constexpr LabelledBox kLeft{.label = {45, 720}, .box = {765, 660}};
constexpr LabelledBox kRight{.label = {1455, 615}, .box = {2070, 1755}};
constexpr std::array<Span, 3> kColumns = {{{60, 1410}, {1470, 1200}, {2670, 1155}}};

constexpr std::array<OptionSpec, 35> kOptions = {{
    {.name = "cboScreenRes",
     .kind = OptionKind::kCombo,
     .caption = "Screen",
     .tool_tip = " Choose the Screen Resolution (X-Y) ",
     .items = kScreenResItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight.box, 0),
     .caption_place = kLists.At(kRight.label, 0)},
    {.name = "cboMonitor",
     .kind = OptionKind::kCombo,
     .caption = "Monitor",
     .tool_tip = " Selects the monitor type ",
     .items = kMonitorItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight.box, 1),
     .caption_place = kLists.At(kRight.label, 1)},
    {.name = "cboVesaMode",
     .kind = OptionKind::kCombo,
     .caption = "Vesa",
     .tool_tip = " In conjunction with Vesa, selects the VESA modes to try ",
     .items = kVesaModeItems,
     .default_value = 0,
     .place = kLists.At(kRight.box, 2),
     .caption_place = kLists.At(kRight.label, 2)},
    {.name = "cboFrames",
     .kind = OptionKind::kCombo,
     .caption = "Frames",
     .tool_tip = " Skip frames to speed up the emulation ",
     .items = kFramesItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft.box, 0),
     .caption_place = kLists.At(kLeft.label, 0)},
    {.name = "cboSoundCard",
     .kind = OptionKind::kCombo,
     .caption = "Sound",
     .tool_tip = " Select SoundCard ",
     .items = kSoundCardItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kRight.box, 3),
     .caption_place = kLists.At(kRight.label, 3)},
    {.name = "cboSampleRate",
     .kind = OptionKind::kCombo,
     .caption = "Rate",
     .tool_tip = " Set the audio sample rate. 11025khz will cause lower audio quality but faster "
                 "emulation speed ",
     .items = kSampleRateItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kRight.box, 4),
     .caption_place = kLists.At(kRight.label, 4)},
    {.name = "cboControls",
     .kind = OptionKind::kCombo,
     .caption = "Controls",
     .tool_tip = " Allows joystick input ",
     .items = kControlsItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight.box, 5),
     .caption_place = kLists.At(kRight.label, 5)},
    {.name = "cboVgaFreq",
     .kind = OptionKind::kCombo,
     .caption = "VGA freq.",
     .tool_tip = " Use different frequencies for the custom video modes. WARNING! Read readme.txt!",
     .items = kVgaFreqItems,
     .default_value = 0,
     .place = kLists.At(kLeft.box, 1),
     .caption_place = kLists.At(kLeft.label, 1)},
    {.name = "cboBeam",
     .kind = OptionKind::kCombo,
     .caption = "Beam",
     .tool_tip = " Sets the width in pixels of the vectors ",
     .items = kBeamItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft.box, 2),
     .caption_place = kLists.At(kLeft.label, 2)},
    {.name = "cboFlicker",
     .kind = OptionKind::kCombo,
     .caption = "Flicker",
     .tool_tip = " Make the vectors flicker ",
     .items = kFlickerItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft.box, 3),
     .caption_place = kLists.At(kLeft.label, 3)},
    {.name = "txtSkipR",
     .kind = OptionKind::kText,
     .caption = "Skip Row",
     .tool_tip = " Use these two parameters to set the initial screen position. You can specify "
                 "negative offsets.",
     .default_text = "0",
     .most_characters = 4,
     .is_number = true,
     .wrong_key_title = "Warning!",
     .place = kLists.At(kLeft.box, 5),
     .caption_place = kLists.At(kLeft.label, 5)},
    {.name = "txtSkipC",
     .kind = OptionKind::kText,
     .caption = "Skip Col.",
     .tool_tip = " Use these two parameters to set the initial screen position. You can specify "
                 "negative offsets.",
     .default_text = "0",
     .is_number = true,
     .place = kLists.At(kLeft.box, 6),
     .caption_place = kLists.At(kLeft.label, 6)},
    {.name = "cboGamma",
     .kind = OptionKind::kCombo,
     .caption = "Gamma",
     .tool_tip = " Set the initial gamma correction value ",
     .items = kGammaItems,
     .default_value = 14,
     .place = kLists.At(kLeft.box, 4),
     .caption_place = kLists.At(kLeft.label, 4)},
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

// The command line.

consteval std::size_t Of(std::string_view name) { return IndexIn(kOptions, name); }

// Without sound there is no sample rate to tell.
bool HasSound(const OptionValues& options) {
  return options.values[Of("cboSoundCard")].number != 0;
}

// Two digits of a number below 100.
std::string TwoDigits(int number) {
  return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

// The recording is named after the rom and the moment: rom_HHMMSS-DDMMYY.
std::string RecordPiece(const CommandInput& input) {
  const ClockTime& now = input.now;
  return " -record " + input.rom_name + "_" + TwoDigits(now.hour) + TwoDigits(now.minute) +
         TwoDigits(now.second) + "-" + TwoDigits(now.day) + TwoDigits(now.month) +
         TwoDigits(now.year);
}

// The emulator is told the recording without its extension, ".inp".
std::string PlaybackPiece(const CommandInput& input) {
  constexpr std::size_t kExtension = 4;
  if (input.recording.size() <= kExtension) return "";
  return " -playback " + input.recording.substr(0, input.recording.size() - kExtension);
}

constexpr auto kResolutions = std::to_array<std::string_view>(
    {"", "320x240", "400x300", "512x384", "640x480", "800x600", "1024x768"});
constexpr auto kMonitors = std::to_array<std::string_view>({"", "ntsc", "pal", "arcade"});
constexpr auto kVesaModes =
    std::to_array<std::string_view>({"", "vesa1", "vesa2b", "vesa2l", "vesa3"});
constexpr auto kFrames =
    std::to_array<std::string_view>({"", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"});
// The emulator knows no sound card 2.
constexpr auto kSoundCards = std::to_array<std::string_view>({"0", "1", "3", "4", "5", "6", "7"});
constexpr auto kSampleRates = std::to_array<std::string_view>({"11025", "", "44100"});
constexpr auto kJoysticks = std::to_array<std::string_view>(
    {"", "standard", "dual", "button4", "button6", "button8", "fspro", "wingex", "sidewinder",
     "gamepadpro", "sneslpt1", "sneslpt2", "sneslpt3"});
constexpr auto kFlicker = std::to_array<std::string_view>(
    {"",      "5.00",  "10.00", "15.00", "20.00", "25.00", "30.00",
     "35.00", "40.00", "45.00", "50.00", "55.00", "60.00", "65.00",
     "70.00", "75.00", "80.00", "85.00", "90.00", "95.00", "100.00"});

// For today's MAME.
constexpr auto kFramesToday =
    std::to_array<std::string_view>({"", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "10"});
constexpr auto kSoundToday =
    std::to_array<std::string_view>({" -sound none", "", "", "", "", "", ""});
constexpr auto kFlickerToday = std::to_array<std::string_view>(
    {"",     "0.05", "0.10", "0.15", "0.20", "0.25", "0.30", "0.35", "0.40", "0.45", "0.50",
     "0.55", "0.60", "0.65", "0.70", "0.75", "0.80", "0.85", "0.90", "0.95", "1.00"});

constexpr auto kPieces = std::to_array<Piece>({
    Each(Of("cboScreenRes"), " -resolution ", kResolutions, As(" -resolution %")),
    Each(Of("cboMonitor"), " -monitor ", kMonitors, NothingFor("monitors of DOS")),
    Each(Of("cboFrames"), " -frameskip ", kFrames, As(" -frameskip %", kFramesToday)),
    Each(Of("cboSoundCard"), " -soundcard ", kSoundCards, As("%", kSoundToday)),
    When(HasSound, Each(Of("cboSampleRate"), " -sr ", kSampleRates, As(" -samplerate %"))),
    Each(Of("cboControls"), " -joy ", kJoysticks, As(" -joystick")),
    EachBut(0, Of("cboVgaFreq"), " -vgafreq ", kVgaFreqItems,
            NothingFor("frequencies of a VGA card")),
    EachBut(0, Of("cboBeam"), " -beam ", kBeamItems, As(" -beam_width_max %")),
    Each(Of("cboFlicker"), " -flicker ", kFlicker, As(" -flicker %", kFlickerToday)),
    Text(Of("txtSkipR"), " -skiplines ", NothingFor("the whole picture is shown")),
    Text(Of("txtSkipC"), " -skipcolumns ", NothingFor("the whole picture is shown")),
    EachBut(14, Of("cboGamma"), " -gamma ", kGammaItems, As(" -gamma %")),
    On(Of("chkScanlines"), " -noscanlines",
       NothingFor("there are none, unless mame.ini asks for an effect")),
    On(Of("chkNTSC"), " -ntsc", NothingFor("monitors of DOS")),
    On(Of("chkDepth"), " -depth 8", NothingFor("colours are never reduced")),
    On(Of("chkAlwaysSync"), " -alwayssynced", As(" -syncrefresh")),
    On(Of("chkTweaked"), " -tweak", NothingFor("modes of a VGA card")),
    Each(Of("cboVesaMode"), " -vesamode ", kVesaModes, NothingFor("modes of a VESA card")),
    On(Of("chkNoStretch"), " -nostretch", As(" -nounevenstretch")),
    On(Of("chkTripleBuffer"), " -trpilebuffer", NothingFor("the desktop does it")),
    On(Of("chkWaitInterlace"), " -waitinterlace", NothingFor("monitors of DOS")),
    On(Of("chkVsync"), " -vsync", As(" -waitvsync")),
    On(Of("chkAntiA"), " -aa", As(" -filter")),
    On(Of("chkNoTrans"), " -notranslucency", NothingFor("artwork is drawn as its layout says")),
    On(Of("chkR90"), " -ror", As(" -ror")),
    On(Of("chkL90"), " -rol", As(" -rol")),
    On(Of("chkFlipH"), " -flipx", As(" -flipx")),
    On(Of("chkFlipV"), " -flipy", As(" -flipy")),
    On(Of("chkNoRot"), " -norotate", As(" -norotate")),
    On(Of("chkCheat"), " -cheat", As(" -cheat")),
    Made(Of("chkRecord"), " -record ", RecordPiece, As(" -input_directory INP -record %.inp")),
    Made(Of("chkPlayback"), " -playback ", PlaybackPiece,
         As(" -input_directory INP -playback %.inp")),
    On(Of("chkStereo"), " -nostereo", NothingFor("sound has the channels of the machine")),
    On(Of("chk16Bit"), " -sb 16", NothingFor("sound cards of DOS")),
    On(Of("chkYm3812"), " -noym3812opl", NothingFor("sound cards of DOS")),
});

static_assert(SpeakForAll(kPieces, kOptions));

// What stands in the filters.

constexpr auto kGenres = std::to_array<std::string_view>({
    "- Genre",
    "n/a",
    "Action",
    "Arcade",
    "Breakout",
    "Fighting",
    "Gambling",
    "Labyrinth",
    "Pinball",
    "Platform",
    "Pool",
    "Puzzle",
    "Racing",
    "Shooter",
    "Shooter 3D",
    "Space",
    "Sports",
});

constexpr auto kManufactors = std::to_array<std::string_view>({
    "- Manufactor",
    "?\??\??",
    "[Jaleco] (Williams license)",
    "[Konami] (Sega license)",
    "[Konami] (Stern license)",
    "[Kural] (Williams license)",
    "[Namco] (Atari license)",
    "[Namco] (Bally Midway license)",
    "[Namco] (Midway license)",
    "[Namco] (Rock-ola license)",
    "[Orca] Thunderbolt",
    "[SNK] (Taito America license)",
    "[Stern] (Tago license)",
    "[Sun Electronics] (Atari license)",
    "[Taito] World Games",
    "[Technos] Taito (Memetron license)",
    "[Toaplan] (Taito license)",
    "<unknown>",
    "ADK",
    "ADK / SNK",
    "Aicom",
    "Alpha Denshi Co",
    "Alpha Denshi Co.",
    "Amenip",
    "Amenip/Centuri",
    "Amstar",
    "Armenia",
    "Atari",
    "Atari + Gencomp",
    "Atari Games",
    "Bally Midway",
    "bootleg",
    "bootleg?",
    "Capcom",
    "Capcom (Compile license)",
    "Capcom (Data East USA license)",
    "Capcom (Memetron license)",
    "Capcom (Romstar license)",
    "Capcom (Taito America license)",
    "Centuri",
    "Chu Co. Ltd",
    "Cinematronics",
    "Cinematronics + Advanced Microcompute",
    "Comad",
    "Comsoft",
    "Coreland / Sega",
    "D. R. Korea",
    "Data Amusement",
    "Data East",
    "Data East (Bally Midway license)",
    "Data East (Technos license)",
    "Data East Corporation",
    "Data East Corporation (I-Vics license",
    "Data East Corporation (licensed from",
    "Data East USA",
    "Data East USA (Bally Midway license)",
    "Denki Onkyo",
    "Digitrex Techstar (Rock-ola license)",
    "Dooyong",
    "Eastern Micro Electronics, Inc.",
    "Eighting / Hudson",
    "Epos Corporation",
    "Exidy",
    "Face",
    "Falcon",
    "Game Plan, Inc. (Taito)",
    "GamePlan",
    "GamePlan (Centuri license)",
    "GDI + Irem",
    "Gottlieb",
    "Gottlieb (Konami license)",
    "Gottlieb / Premier Technology",
    "Gremlin",
    "H.A.R. Management",
    "hack",
    "Hara Industries",
    "Hara Industries?\?",
    "Hudson",
    "Incredible Technologies",
    "Irem",
    "Irem (Data East license)",
    "Irem (Data East USA license)",
    "Irem (licensed from Broderbund)",
    "Irem (licensed from Tokuma Shoten)",
    "Irem (Williams license)",
    "Jaleco",
    "Jaleco (Cinematronics license)",
    "Jaleco (Kitkorp license)",
    "Jaleco (Taito America license)",
    "Kaneko",
    "Kaneko (Namco license)",
    "Karateco",
    "KH Video",
    "KKI",
    "Konami",
    "Konami (Centuri license)",
    "Konami (Olympia license)",
    "Konami (Stern license)",
    "Konami / Interlogic + Kosuka",
    "Konami + Kosuka",
    "Kural Electric",
    "Kural Esco Electric",
    "Kural Samno Electric",
    "LAX",
    "Leijac Corporation",
    "Meadows",
    "Meadows Games, Inc.",
    "Midway",
    "Mitchell",
    "Mitchell + Capcom",
    "Monolith Corp.",
    "Mylstar",
    "Namco",
    "Namco (Atari license)",
    "Nazca",
    "Nichibutsu",
    "Nichibutsu + Alice",
    "Nichibutsu USA",
    "Nintendo",
    "Nintendo / Fortrek",
    "Nintendo of America",
    "Nippon Amuse Co-Ltd",
    "NMK",
    "Nova Games Ltd.",
    "Olympia",
    "Olympia (Centuri license)",
    "Orca",
    "Orca (Eastern Commerce Inc. license)",
    "Orca (Esco Trading Co license)",
    "Orca (Esco Trading Co, Inc)",
    "Orca Corporation",
    "P & P Marketing",
    "Pacific Novelty",
    "Philko",
    "Ramtek",
    "Rock-ola",
    "Rock-Ola",
    "Sammy",
    "Saurus",
    "Sega",
    "Sega (Escape license)",
    "Sega / Alpha Denshi",
    "Sega / Coreland",
    "Sega / Vic Tokai",
    "Seibu Denshi",
    "Seibu Denshi [Cinematronics license]",
    "Seibu Kaihatsu",
    "Sesame Japan",
    "Shoei",
    "Sigma Ent. Inc.",
    "SNK",
    "SNK (Centuri license)",
    "SNK / Pallas",
    "SNK Corp.",
    "SNK Corp. of America",
    "Stern",
    "Sun a Electronics",
    "Sun Electronics",
    "Sunsoft",
    "Tad",
    "Tad (Fabtek license)",
    "Taito",
    "Taito (Fox Video Games license)",
    "Taito (Universal license?)",
    "Taito (Visco license)",
    "Taito America",
    "Taito America (Romstar license)",
    "Taito America Corp (Romstar license)",
    "Taito Corp Japan",
    "Taito Japan",
    "Taito of America",
    "Taito of America (Romstar license)",
    "Takara",
    "Tamtex",
    "Tecfri",
    "Technos",
    "Technos (Taito America license)",
    "Technos (Taito license)",
    "Technos + California Dreams",
    "Technos Japan + Roller Tron",
    "Techstar (Sunn license)",
    "Tecmo",
    "Tehkan",
    "Tehkan (Centuri license)",
    "Tehkan (Video Ware license)",
    "Telko",
    "Toaplan",
    "Toaplan (Romstar license)",
    "Toaplan (Taito license)",
    "Tong Electronic",
    "Universal",
    "Universal (ADP Automaten license)",
    "Universal (Taito license)",
    "Universal USA",
    "UPL",
    "UPL (Kawakus license)",
    "UPL (World Games license)",
    "Valadon Automation",
    "Valadon Automation (Stern license)",
    "Vectorbeam",
    "Video System Co.",
    "Visco",
    "Vision / Artic",
    "Williams",
    "Woodplace Inc.",
    "Yumekobo",
    "Zaccaria",
    "Zenitone Microsec",
    "Zenitone Microsec (Dutchford license)",
    "Zilec Games",
    "Zilec-Zenitone",
});

constexpr auto kYears = std::to_array<std::string_view>({
    "- Year", "?\??\?", "1975", "1976", "1977", "1978", "1979", "1980", "1981",
    "1982",   "1983",   "1984", "1985", "1986", "1987", "1988", "1989", "1990",
    "1991",   "1992",   "1993", "1994", "1995", "1996", "1997", "1998", "1999",
});

static_assert(kManufactors.size() == 1 + 210);

// The help page.

constexpr auto kKeys = std::to_array<KeyRow>({
    {"", "Hot-keys:", ""},
    {"TILDE", " Toggles the On Screen Display", ""},
    {"F3", " Reset the machine", ""},
    {"F4", " Show the game graphics. Use cursors to change", ""},
    {"F9", " Change frame skip on the fly", ""},
    {"F10", " Toggle speed throttling", ""},
    {"F11", " Toggle speed display", ""},
    {"F12", " Save a screen snapshot", ""},
    {"TAB", " Toggles the configuration menu", ""},
    {"P", "Pause", ""},
    {"ESC", "Exit", ""},
});

constexpr std::string_view kNotInGameList = "Game info not found in gamelist.txt!";
constexpr auto kNoGameList =
    std::to_array<std::string_view>({"gamelist.txt not found in Mame directory!"});

constexpr std::size_t kItemWidth = 52;  // what a line of the help list shows

// The name without its part in parentheses and the one character before that part. A name that
// begins with the parenthesis stays whole.
std::string_view WithoutRegion(std::string_view name) {
  const std::size_t parenthesis = name.find('(');
  if (parenthesis == std::string_view::npos || parenthesis == 0) return name;
  return name.substr(0, parenthesis - 1);
}

void AddCut(std::string_view line, std::vector<std::string>& items) {
  items.emplace_back(line.substr(0, kItemWidth));
  if (line.size() > kItemWidth) items.emplace_back(line.substr(kItemWidth));
}

// The block that begins with a line which begins with the name; two empty lines end it.
void ReadBlock(LineReader& lines, std::string_view game, std::vector<std::string>& items) {
  const std::string_view name = WithoutRegion(game);
  std::string_view line;
  bool more = lines.Next(line);
  while (more && !line.starts_with(name)) more = lines.Next(line);
  if (!more) {
    items.emplace_back(kNotInGameList);
    return;
  }
  items.emplace_back(line);
  bool after_empty = false;
  while (lines.Next(line)) {
    AddCut(line, items);
    if (line.empty() && after_empty) return;
    after_empty = line.empty();
  }
}

}  // namespace

extern const Emulator kMame;
constinit const Emulator kMame = {
    .word = "Mame",
    .selector_caption = "M.A.M.E.",
    .default_rom_folder = R"(C:\emu\mame\roms)",
    .rom_sub_folder = R"(\roms)",
    .start = {.exe_path = R"(C:\Emu\Mame\Mame.exe)",
              .rom_path = R"(C:\Emu\Mame\Roms)",
              .snap_path = R"(C:\Emu\Snapshot\Mame)",
              .emulator_folder = R"(C:\Emu\Mame)"},
    .has_scan = true,
    .has_filters = true,
    .has_game_list = true,
    .has_favourites = true,
    .knows_parents = true,
    .has_bare_names = true,
    .launch = {.tests_emulator_first = true,
               .archive_look = ArchiveLook::kAlways,
               .no_emulator_title = "",
               .no_rom_title = ""},
    .panel =
        {
            .rom_drive_from_rom_path = true,
            .snap_drive_from_emulator = true,
            .second_rom_folder = false,
            .no_emulator_hides_snap = true,
            .no_rom_hides_snap = true,
            .shown_before_first_game = false,
            .fixed_rom_folder_at_load = true,
            .shift_resets_filters = true,
            .docks_on_click = false,
            .has_arrangements = true,
            .has_large_size = true,
            .clear_rests_with_main = true,
            .percent_tip = PercentTip::kNever,
            .height = 7260,
            .game_list = {90, 5010, 6165, 2175},
            .start_columns = 2,
            .combos = {{{120, 1515}, {1710, 1275}, {3060, 1665}, {4800, 795}}},
            .genre_left_up = 1690,
        },
    .texts = {.snap_tip = "Press F12 during the game to grab your snap!",
              .conf_heading = "MAME - File and Directory Locations",
              .exe_caption = "Full Mame Path",
              .scan_caption = "Roms are",
              .count_caption = "F:",
              .total_caption = "T:",
              .design_total = "1107"},
    .filters = {.states = kStateItems,
                .genres = kGenres,
                .manufactors = kManufactors,
                .years = kYears},
    .fixed_games = {},
    .help = {.keys = kKeys,
             .list_height = 1440,
             .title = "Game Details",
             .columns = 1,
             .row_height = 180,
             .key_width = 495,
             .text_size = 10,
             .fixed_list = nullptr,
             .game_list = {.no_file = kNoGameList, .read = ReadBlock}},
    .options = kOptions,
    .enablings = {},
    .recording = {{.record = Of("chkRecord"), .playback = Of("chkPlayback")}},
    .command = {.before_rom = " ", .behind_rom = " -ignorecfg", .pieces = kPieces},
};

}  // namespace zarvo

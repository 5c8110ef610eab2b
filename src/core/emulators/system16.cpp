// System16: all in which it differs from the other emulators.
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

constexpr auto kHRItems = std::to_array<std::string_view>(
    {"224", "254", "320", "384", "400", "512", "640", "800", "1024"});

constexpr auto kVRItems = std::to_array<std::string_view>(
    {"200", "224", "240", "257", "300", "350", "384", "400", "480", "600", "768"});

constexpr auto kFrameSkipItems =
    std::to_array<std::string_view>({"1 (Def.)", "2", "3", "4", "5", "6", "7", "8"});

constexpr auto kSoundcardItems = std::to_array<std::string_view>(
    {"Disabled", "Soundblaster", "ProAudio Spectrum", "Ultrasound Max", "Ultrasound",
     "Windows SoundSystem", "Ensoniq Soundscape"});

constexpr auto kSampleRateItems =
    std::to_array<std::string_view>({"11.025 Khz", "22.050 Khz", "44.100 Khz"});

constexpr auto kControlsItems =
    std::to_array<std::string_view>({"Normal Joystick", "MS SideWinder", "Gravis GamePadPro",
                                     "SNESPAD at LPT1", "SNESPAD at LPT2", "SNESPAD at LPT3"});

// Two columns of lists with their labels above, then three columns of check boxes.
constexpr Rows kLabels{.top = 390, .pitch = 525, .height = 195};
constexpr Rows kLists{.top = 585, .pitch = 525, .height = 255};
constexpr Rows kChecks{.top = 2100, .pitch = 300, .height = 195};
constexpr Span kLeft{60, 1950};
constexpr Span kRight{2040, 1785};
constexpr std::array<Span, 3> kColumns = {{{60, 1455}, {1545, 1185}, {2760, 1065}}};

constexpr std::array<OptionSpec, 19> kOptions = {{
    {.name = "cboHR",
     .kind = OptionKind::kCombo,
     .caption = "Width",
     .tool_tip = " Set default resolution for horizontal games ",
     .items = kHRItems,
     .default_value = 2,
     .preset = 2,
     .place = kLists.At(kLeft, 0),
     .caption_place = kLabels.At(kLeft, 0)},
    {.name = "cboVR",
     .kind = OptionKind::kCombo,
     .caption = "Height",
     .tool_tip = " Set default resolution for vertical games ",
     .items = kVRItems,
     .default_value = 2,
     .preset = 2,
     .place = kLists.At(kRight, 0),
     .caption_place = kLabels.At(kRight, 0)},
    {.name = "cboFrameSkip",
     .kind = OptionKind::kCombo,
     .caption = "Frame skip",
     .tool_tip = " Skip frame value, default is 1 (display every possible frames) ",
     .items = kFrameSkipItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 1),
     .caption_place = kLabels.At(kLeft, 1)},
    {.name = "chkVSync",
     .kind = OptionKind::kCheck,
     .caption = "V-Sync",
     .tool_tip = " Wait for the vertical sync to draw frames ",
     .place = kChecks.At(kColumns[1], 0)},
    {.name = "chkNoJoy",
     .kind = OptionKind::kCheck,
     .caption = "Disable Joy",
     .tool_tip = " Disable joystick support ",
     .place = kChecks.At(kColumns[1], 2)},
    {.name = "chkScanlines",
     .kind = OptionKind::kCheck,
     .caption = "Scanlines",
     .tool_tip = " Enable scanlines ",
     .default_value = 1,
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkRDTSC",
     .kind = OptionKind::kCheck,
     .caption = "No RDTSC",
     .tool_tip = " Disable codes using RDTSC instruction ",
     .place = kChecks.At(kColumns[1], 1)},
    {.name = "chkEagle",
     .kind = OptionKind::kCheck,
     .caption = "Eagled Graphic",
     .tool_tip = " Enabled the eagled graphics ",
     .place = kChecks.At(kColumns[0], 2)},
    {.name = "chkScanlines2",
     .kind = OptionKind::kCheck,
     .caption = "Double Scanl.",
     .tool_tip = " Enable double scanlines ",
     .place = kChecks.At(kColumns[0], 1)},
    {.name = "chkOld2151",
     .kind = OptionKind::kCheck,
     .caption = "Old 2151",
     .tool_tip = " Use the old emulation of the YM2151 ",
     .place = kChecks.At(kColumns[2], 0)},
    {.name = "chkESC",
     .kind = OptionKind::kCheck,
     .caption = "ESC - Exit",
     .tool_tip = " Uses key ESC to exit the emulator ",
     .place = kChecks.At(kColumns[2], 3)},
    {.name = "chkRevX",
     .kind = OptionKind::kCheck,
     .caption = "Reverse X",
     .tool_tip = " Reverse X direction of the analog joystick ",
     .place = kChecks.At(kColumns[1], 3)},
    {.name = "chkNoLeds",
     .kind = OptionKind::kCheck,
     .caption = "No Leds",
     .tool_tip = " Disable keyboard led control ",
     .place = kChecks.At(kColumns[2], 1)},
    {.name = "chkNoTitle",
     .kind = OptionKind::kCheck,
     .caption = "No-Title",
     .tool_tip = " Bypass the title screen ",
     .default_value = 1,
     .place = kChecks.At(kColumns[2], 2)},
    {.name = "chkRevY",
     .kind = OptionKind::kCheck,
     .caption = "Reverse Y",
     .tool_tip = " Reverse Y direction of the analog joystick. This is useful for Space Harrier "
                 "and Hang On ",
     .place = kChecks.At(kColumns[1], 4)},
    {.name = "chkAnalogJoy",
     .kind = OptionKind::kCheck,
     .caption = "Analog Joystick",
     .tool_tip = " Enable analog joystick support (for driving games and Space Harrier) ",
     .place = kChecks.At(kColumns[0], 3)},
    {.name = "cboSoundcard",
     .kind = OptionKind::kCombo,
     .caption = "Sound card",
     .tool_tip = " Choose a sound card ",
     .items = kSoundcardItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 2),
     .caption_place = kLabels.At(kLeft, 2)},
    {.name = "cboSampleRate",
     .kind = OptionKind::kCombo,
     .caption = "Sample rate",
     .tool_tip = " Change the sample rate for the YM2151, the default value is 22050 ",
     .items = kSampleRateItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kRight, 2),
     .caption_place = kLabels.At(kRight, 2)},
    {.name = "cboControls",
     .kind = OptionKind::kCombo,
     .caption = "Joystick type",
     .tool_tip = " Set joystick device type ",
     .items = kControlsItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight, 1),
     .caption_place = kLabels.At(kRight, 1)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 21);

// The command line.

consteval std::size_t Of(std::string_view name) { return IndexIn(kOptions, name); }

constexpr auto kFrameSkips =
    std::to_array<std::string_view>({"", "2", "3", "4", "5", "6", "7", "8"});
// The emulator knows no sound card 2.
constexpr auto kSoundCards = std::to_array<std::string_view>({"0", "1", "3", "4", "5", "6", "7"});
constexpr auto kSampleRates = std::to_array<std::string_view>({"11025", "22050", "44100"});
constexpr auto kJoysticks = std::to_array<std::string_view>({"3", "8", "9", "10", "11", "12"});

// For today's MAME.
constexpr auto kFrameSkipsToday =
    std::to_array<std::string_view>({"", "1", "2", "3", "4", "5", "6", "7"});
constexpr auto kSoundToday =
    std::to_array<std::string_view>({" -sound none", "", "", "", "", "", ""});

constexpr auto kPieces = std::to_array<Piece>({
    Each(Of("cboHR"), " -RX ", kHRItems, As(" -resolution %")),
    Each(Of("cboVR"), " -RY ", kVRItems, As("x%")),
    Each(Of("cboFrameSkip"), " -FRAME ", kFrameSkips, As(" -frameskip %", kFrameSkipsToday)),
    On(Of("chkVSync"), " -VSYNC", As(" -waitvsync")),
    On(Of("chkRDTSC"), " -NORDTSC", NothingFor("time is taken from the system")),
    On(Of("chkNoJoy"), " -NOJOY", As(" -nojoystick")),
    On(Of("chkEagle"), " -EAGLE", As(" -filter")),
    On(Of("chkScanlines"), " -SCANLINES", As(" -effect scanlines")),
    On(Of("chkScanlines2"), " -SCANLINES2", As(" -effect scanlines")),
    On(Of("chkOld2151"), " -OLD2151", NothingFor("there is one emulation of the chip")),
    On(Of("chkNoLeds"), " -NOLEDS", NothingFor("the leds are left alone")),
    On(Of("chkESC"), " -ESCEXIT", NothingFor("ESC ends the game anyway")),
    On(Of("chkNoTitle"), " -NOTITLE", As(" -skip_gameinfo")),
    On(Of("chkRevX"), " -REVERSEX", NothingFor("directions are chosen in the game, with TAB")),
    On(Of("chkRevY"), " -REVERSEY", NothingFor("directions are chosen in the game, with TAB")),
    Each(Of("cboSoundcard"), " -SOUNDCARD ", kSoundCards, As("%", kSoundToday)),
    Each(Of("cboSampleRate"), " -R ", kSampleRates, As(" -samplerate %")),
    Each(Of("cboControls"), " -JOYTYPE ", kJoysticks,
         NothingFor("the kind of joystick is found out")),
    On(Of("chkAnalogJoy"), " -JOY", As(" -joystick")),
});

static_assert(SpeakForAll(kPieces, kOptions));

// The help page.

constexpr auto kKeys = std::to_array<KeyRow>({
    {"F1", " DIP Switch", ""},
    {"F2", " Redefine keys", ""},
    {"F5", " Save game to disk", ""},
    {"F6", " Restore game", ""},
    {"F9", " Record Movie", ""},
    {"F11", " Play the Movie", ""},
    {"F10", " Reset Game", ""},
    {"ESC", " Back to emulator", ""},
    {"END", " Quit to DOS", ""},
    {"", "Other keys:", ""},
    {"1", " Start Player 1", ""},
    {"2", " Start Player 2", ""},
    {"3", " Insert Coin Slot 1", ""},
    {"4", " Insert Coin Slot 2", ""},
    {"9", " Service Switch", ""},
    {"0", " Test Switch", ""},
    {"P", " Pause the game", ""},
    {"S", " Save a ScreenShot", ""},
});

struct GameKeys {
  std::string_view game;
  std::string_view keys;
};

constexpr auto kGameKeys = std::to_array<GameKeys>({
    {"Shinobi",
     "CTRL - Attack\n"
     "ALT - Jump\n"
     "SPACE - Magic\n"},
    {"Altered Beast",
     "CTRL - Punch\n"
     "ALT - Kick\n"
     "SPACE - Jump\n"},
    {"Golden Axe",
     "CTRL - Attack\n"
     "ALT - Jump\n"
     "SPACE - Magic\n"},
    {"Time Scanner",
     "Z - Left Flipper\n"
     "N - Right Flipper\n"
     "SPACE - Push Down\n"
     "LEFT - Push Right\n"
     "RIGHT - Push Left\n"},
    {"Quartet II",
     "CTRL - Shoot\n"
     "ALT - Jump\n"},
    {"Space Harrier",
     "CTRL - Shoot\n"
     "ALT - Shoot\n"
     "SPACE - Shoot\n"},
    {"Hang-On",
     "ALT - Accelerate\n"
     "CTRL - Decelerate\n"
     "RIGHT - Turn Right\n"
     "LEFT - Turn Left\n"},
    {"Wrestle War",
     "CTRL - Punch\n"
     "ALT - Kick\n"},
    {"Alien Storm",
     "CTRL - Attack\n"
     "ALT - Roll\n"
     "SPACE - Special\n"},
    {"Shadow Dancer",
     "CTRL - Attack  + Jp version\n"
     "ALT - Jump\n"
     "SPACE - Magic\n"},
    {"Out Run",
     "CTRL - Accelerator\n"
     "ALT - Shift LO (it's HI by default)\n"
     "DOWN - Break\n"
     "LEFT - Turn left\n"
     "RIGHT - Turn right\n"},
    {"Tetris",
     "SPACE - Turn piece\n"
     "UP - Turn piece\n"
     "CTRL - Turn piece\n"},
    {"Alien Syndrome", "CTRL - Shot\n"},
    {"Super Hang-On",
     "CTRL - Accelerator\n"
     "ALT - Turbo\n"
     "DOWN - Break\n"
     "RIGHT - Turn right\n"
     "LEFT - Turn left\n"
     "TEST - removed (it crashes)\n"},
    {"Moon Walker",
     "CTRL - SHOT\n"
     "ALT - DANCE\n"},
    {"Fantasy Zone",
     "CTRL - SHOT\n"
     "ALT - BOMB\n"},
    {"Flash Point", "CTRL - Turn piece\n"},
    {"Alexkidd",
     "CTRL - SHOT\n"
     "ALT - JUMP\n"},
    {"Aurail",
     "CTRL - SHIELD\n"
     "ALT - SHOT\n"
     "SPACE - TURN\n"},
});

// The keys of each game, below its underlined name.
std::vector<std::string> GameKeysList() {
  std::vector<std::string> items;
  for (const GameKeys& game : kGameKeys) {
    items.emplace_back(game.game);
    items.emplace_back(game.game.size(), '-');
    for (std::string_view rest = game.keys; !rest.empty();) {
      const std::size_t end = rest.find('\n');
      items.emplace_back(rest.substr(0, end));
      rest.remove_prefix(end + 1);
    }
    items.emplace_back();
  }
  return items;
}

}  // namespace

extern const Emulator kSystem16;
constinit const Emulator kSystem16 = {
    .word = "System16",
    .selector_caption = "SYSTEM16",
    .default_rom_folder = R"(C:\emu\system16\ziproms)",
    .rom_sub_folder = R"(\ziproms)",
    .start = {.exe_path = R"(C:\Emu\System16\System16.exe)",
              .rom_path = R"(C:\Emu\System16\Ziproms)",
              .snap_path = R"(C:\Emu\System16\Snapshot)",
              .emulator_folder = R"(D:\Emu\Arcade\System16)"},
    .has_scan = false,
    .has_filters = false,
    .has_game_list = true,
    .has_favourites = true,
    .knows_parents = false,
    .has_bare_names = false,
    .launch = {.tests_emulator_first = true,
               .archive_look = ArchiveLook::kNever,
               .no_emulator_title = "",
               .no_rom_title = ""},
    .panel =
        {
            .rom_drive_from_rom_path = false,
            .snap_drive_from_emulator = false,
            .second_rom_folder = false,
            .no_emulator_hides_snap = false,
            .no_rom_hides_snap = false,
            .shown_before_first_game = true,
            .fixed_rom_folder_at_load = false,
            .shift_resets_filters = false,
            .docks_on_click = false,
            .has_arrangements = true,
            .has_large_size = true,
            .clear_rests_with_main = false,
            .percent_tip = PercentTip::kOnClick,
            .height = 7260,
            .game_list = {90, 4770, 6165, 2340},
            .start_columns = 2,
            .combos = {{{120, 1485}, {1680, 1245}, {3000, 1545}, {4620, 795}}},
            .genre_left_up = 1660,
        },
    .texts = {.snap_tip = "Press \"S\" during the game to grab your snap!",
              .conf_heading = "SYSTEM 16 - File and Directory Locations",
              .exe_caption = "Full System16-DOS Path",
              .scan_caption = "",
              .count_caption = "",
              .total_caption = "Total:",
              .design_total = "1107"},
    .filters = {.states = {}, .genres = {}, .manufactors = {}, .years = {}},
    .fixed_games = {},
    .help = {.keys = kKeys,
             .list_height = 1500,
             .title = "Game Details",
             .columns = 2,
             .row_height = 210,
             .key_width = 420,
             .text_size = 10,
             .fixed_list = GameKeysList,
             .game_list = {.no_file = {}, .read = nullptr}},
    .options = kOptions,
    .enablings = {},
    .recording = {},
    .command = {.before_rom = " ", .behind_rom = "", .pieces = kPieces},
};

}  // namespace zarvo

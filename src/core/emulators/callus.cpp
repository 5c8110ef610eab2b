// Callus: all in which it differs from the other emulators.
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
    {"320x200", "320x240", "384x224", "384x257", "400x300", "320x400", "320x480", "512x384",
     "640x350", "640x400", "640x480", "224x384", "254x384", "800x600", "1024x768"});

constexpr auto kFrameSkipItems =
    std::to_array<std::string_view>({"Auto", "1", "2", "3", "4", "5", "6", "7", "8"});

constexpr auto kSampleRateItems =
    std::to_array<std::string_view>({"11.025 Khz", "22.050 Khz", "44.100 Khz"});

constexpr auto kDevice1Items = std::to_array<std::string_view>(
    {"Keyboard Lay. 1", "Keyboard Lay. 2", "Keyboard Lay. 3", "Keyboard Lay. 4", "Joystick 1 (2B)",
     "Joystick 2 (2B)", "4 Buttton Joy", "6 Button Joy", "MS Sidewinder 1", "MS Sidewinder 2",
     "Grip 1 (8 Buttons)", "Grip 2 (8 Buttons)", "Snes Pad 1 (LPT1)", "Snes Pad 2 (LPT1)"});

constexpr auto kDevice2Items = std::to_array<std::string_view>(
    {"Keyboard L.1", "Keyboard L.2", "Keyboard L.3", "Keyboard L.4", "Joystick 1 (2B)",
     "Joystick 2 (2B)", "4 Buttton Joy", "6 Button Joy", "MS Sidewinder 1", "MS Sidewinder 2",
     "Grip 1 (8 Buttons)", "Grip 2 (8 Buttons)", "Snes Pad 1 (LPT1)", "Snes Pad 2 (LPT1)"});

// Two columns of lists with their labels above, then three columns of check boxes.
constexpr Rows kLabels{.top = 390, .pitch = 510, .height = 195};
constexpr Rows kLists{.top = 585, .pitch = 510, .height = 255};
constexpr Rows kChecks{.top = 2580, .pitch = 285, .height = 195};
constexpr Span kLeft{60, 1845};
constexpr Span kRight{1980, 1845};
constexpr std::array<Span, 3> kColumns = {{{60, 1230}, {1320, 1230}, {2580, 1245}}};

constexpr std::array<OptionSpec, 19> kOptions = {{
    {.name = "cboHR",
     .kind = OptionKind::kCombo,
     .caption = "Horizontal games",
     .tool_tip = " Sets the resolution for horizontal games ",
     .items = kHRItems,
     .default_value = 10,
     .preset = 0,
     .place = kLists.At(kLeft, 0),
     .caption_place = kLabels.At(kLeft, 0)},
    {.name = "cboVR",
     .kind = OptionKind::kCombo,
     .caption = "Vertical games",
     .tool_tip = " Sets the resolution for vertical games ",
     .items = kHRItems,
     .default_value = 10,
     .preset = 0,
     .place = kLists.At(kRight, 0),
     .caption_place = kLabels.At(kRight, 0)},
    {.name = "cboFrameSkip",
     .kind = OptionKind::kCombo,
     .caption = "Frame skip",
     .tool_tip = R"( Sets frameskip (1-8 or "AUTO" for autoskipping) )",
     .items = kFrameSkipItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 1),
     .caption_place = kLabels.At(kLeft, 1)},
    {.name = "chkVSync",
     .kind = OptionKind::kCheck,
     .caption = "V-Sync",
     .tool_tip = " Wait for the vertical sync to draw frames ",
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkHiColor",
     .kind = OptionKind::kCheck,
     .caption = "Hi-Color",
     .tool_tip =
         " Use 16-bit hicolor mode in DOS. The GUI is not available in hicolor modes in DOS ",
     .place = kChecks.At(kColumns[0], 1)},
    {.name = "chkFPU",
     .kind = OptionKind::kCheck,
     .caption = "Fpu Copy",
     .tool_tip = " Uses the FPU to do pageflips, only faster on Intel Pentium processors ",
     .place = kChecks.At(kColumns[0], 2)},
    {.name = "chkNoVesa",
     .kind = OptionKind::kCheck,
     .caption = "No Vesa",
     .tool_tip = " Don't use VESA extensions ",
     .place = kChecks.At(kColumns[1], 0)},
    {.name = "chkLinear",
     .kind = OptionKind::kCheck,
     .caption = "Linear",
     .tool_tip = " Force linear VESA mode ",
     .place = kChecks.At(kColumns[1], 1)},
    {.name = "chkBanked",
     .kind = OptionKind::kCheck,
     .caption = "Banked",
     .tool_tip = " Force banked VESA mode ",
     .place = kChecks.At(kColumns[1], 2)},
    {.name = "chkAltStart",
     .kind = OptionKind::kCheck,
     .caption = "Alt.Key",
     .tool_tip = " Alternate player start/coin input ",
     .place = kChecks.At(kColumns[1], 3)},
    {.name = "chk2To3",
     .kind = OptionKind::kCheck,
     .caption = "2To3",
     .tool_tip = R"( Passes the option "-map2to3" to the emulator )",
     .place = kChecks.At(kColumns[2], 3)},
    {.name = "chkMultiTask",
     .kind = OptionKind::kCheck,
     .caption = "Exclusive",
     .tool_tip = " This switch will disable windows multitasking ",
     .place = kChecks.At(kColumns[0], 3)},
    {.name = "cboSampleRate",
     .kind = OptionKind::kCombo,
     .caption = "Sample rate",
     .tool_tip = " Sets sound sampling rate ",
     .items = kSampleRateItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kRight, 1),
     .caption_place = kLabels.At(kRight, 1)},
    {.name = "chkNoSound",
     .kind = OptionKind::kCheck,
     .caption = "No sound",
     .tool_tip = " Disable sound and Z80 totally for slow computers ",
     .place = kChecks.At(kColumns[2], 0)},
    {.name = "chkStereo",
     .kind = OptionKind::kCheck,
     .caption = "Stereo",
     .tool_tip = " Sets stereo for QSound games ",
     .place = kChecks.At(kColumns[2], 1)},
    {.name = "cboDevice1",
     .kind = OptionKind::kCombo,
     .caption = "Input device 1",
     .tool_tip = " Sets input device 1 ",
     .items = kDevice1Items,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 2),
     .caption_place = kLabels.At(kLeft, 2)},
    {.name = "cboDevice2",
     .kind = OptionKind::kCombo,
     .caption = "Input device 2",
     .tool_tip = " Sets input device 2 ",
     .items = kDevice2Items,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight, 2),
     .caption_place = kLabels.At(kRight, 2)},
    {.name = "cboDevice3",
     .kind = OptionKind::kCombo,
     .caption = "Input device 3",
     .tool_tip = " Sets input device 3 ",
     .items = kDevice2Items,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kLeft, 3),
     .caption_place = kLabels.At(kLeft, 3)},
    {.name = "cboDevice4",
     .kind = OptionKind::kCombo,
     .caption = "Input device 4",
     .tool_tip = " Sets input device 4 ",
     .items = kDevice2Items,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kRight, 3),
     .caption_place = kLabels.At(kRight, 3)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 21);

// The command line.

consteval std::size_t Of(std::string_view name) { return IndexIn(kOptions, name); }

bool HasSound(const OptionValues& options) { return options.values[Of("chkNoSound")].number != 1; }

// Width and height as the item of the list says them.
constexpr auto kResolutions = std::to_array<std::string_view>(
    {"320 200", "320 240", "384 224", "384 257", "400 300", "320 400", "320 480", "512 384",
     "640 350", "640 400", "640 480", "224 384", "254 384", "800 600", "1024 768"});
constexpr auto kFrameSkips =
    std::to_array<std::string_view>({"AUTO", "1", "2", "3", "4", "5", "6", "7", "8"});
constexpr auto kSampleRates = std::to_array<std::string_view>({"11025", "22050", "44100"});
constexpr auto kDevices = std::to_array<std::string_view>(
    {"KEY1", "KEY2", "KEY3", "KEY4", "JOY1", "JOY2", "4BUTTON", "6BUTTON", "SIDEWINDER1",
     "SIDEWINDER2", "GRIP1", "GRIP2", "SNESPAD1", "SNESPAD2"});

// For today's MAME.
constexpr auto kResolutionsToday = std::to_array<std::string_view>(
    {"320x200", "320x240", "384x224", "384x257", "400x300", "320x400", "320x480", "512x384",
     "640x350", "640x400", "640x480", "224x384", "254x384", "800x600", "1024x768"});
constexpr auto kFrameSkipsToday = std::to_array<std::string_view>(
    {" -autoframeskip", " -frameskip 1", " -frameskip 2", " -frameskip 3", " -frameskip 4",
     " -frameskip 5", " -frameskip 6", " -frameskip 7", " -frameskip 8"});
constexpr auto kDevicesToday = std::to_array<std::string_view>(
    {"", "", "", "", " -joystick", " -joystick", " -joystick", " -joystick", " -joystick",
     " -joystick", " -joystick", " -joystick", " -joystick", " -joystick"});

constexpr auto kPieces = std::to_array<Piece>({
    WithoutChoice(Each(Of("cboVR"), " -resv ", kResolutions,
                       NothingFor("one resolution serves all games: that of the other list")),
                  " -resv 640 480"),
    WithoutChoice(
        Each(Of("cboHR"), " -res ", kResolutions, As(" -resolution %", kResolutionsToday)),
        " -res 384 257"),
    WithoutChoice(Each(Of("cboFrameSkip"), " -frameskip ", kFrameSkips, As("%", kFrameSkipsToday)),
                  " -frameskip AUTO"),
    On(Of("chkNoSound"), " -nosound", As(" -sound none")),
    When(HasSound,
         WithoutChoice(Each(Of("cboSampleRate"), " -sndrate ", kSampleRates, As(" -samplerate %")),
                       " -sndrate 22050")),
    On(Of("chkVSync"), " -vsync ON", As(" -waitvsync")),
    On(Of("chkNoVesa"), " -novesa", NothingFor("modes of a VESA card")),
    On(Of("chkLinear"), " -linear", NothingFor("modes of a VESA card")),
    On(Of("chkBanked"), " -banked", NothingFor("modes of a VESA card")),
    On(Of("chkMultiTask"), " -exclusive", NothingFor("there is no DOS to multitask with")),
    On(Of("chkAltStart"), " -altkey", NothingFor("keys are chosen in the game, with TAB")),
    On(Of("chkFPU"), " -fpucopy", NothingFor("the program copies as it likes")),
    WithoutChoice(Each(Of("cboDevice1"), " -setinput 1 ", kDevices, As("%", kDevicesToday)),
                  " -setinput 1 KEY1"),
    Each(Of("cboDevice2"), " -setinput 2 ", kDevices, As("%", kDevicesToday)),
    Each(Of("cboDevice3"), " -setinput 3 ", kDevices, As("%", kDevicesToday)),
    Each(Of("cboDevice4"), " -setinput 4 ", kDevices, As("%", kDevicesToday)),
    On(Of("chkStereo"), " -stereo ON", NothingFor("sound has the channels of the machine")),
    On(Of("chkHiColor"), " -hicolor", NothingFor("colours are never reduced")),
    On(Of("chk2To3"), " -map2to3", NothingFor("keys are chosen in the game, with TAB")),
});

static_assert(SpeakForAll(kPieces, kOptions));

// What stands in the filters.

constexpr auto kGenres = std::to_array<std::string_view>({
    "- Genre",
    "Action",
    "Fighting",
    "Puzzle",
    "Shooter",
    "Trivia",
});

constexpr auto kManufactors = std::to_array<std::string_view>({
    "- Manufactor",
    "Capcom",
});

constexpr auto kYears = std::to_array<std::string_view>({
    "- Year",
    "1988",
    "1989",
    "1990",
    "1991",
    "1992",
    "1993",
    "1994",
    "1995",
});

// The help page.

constexpr auto kKeys = std::to_array<KeyRow>({
    {"F1/F2", " Player 1/2 start", ""},
    {"F3/F4", " Coin 1/2", ""},
    {"F5", " Save state", ""},
    {"F6", " Decrem. state slot", ""},
    {"F7", " Load state", ""},
    {"F8", " Increm. state slot", ""},
    {"F9", " Save snapshot", ""},
    {"F10", " Reset emulation", ""},
    {"F11", " Test mode button", ""},
    {"F12", " Service mode", ""},
    {"ESC", " Quit", ""},
    {"SPACE", " Toggle GUI", ""},
    {"+ / -", " Adjust frameskip", ""},
    {"ALT-V", " Toggle V-Sync", ""},
    {"ALT-M", " Toggle FM music", ""},
    {"ALT-D", " Toggle Sound FX", ""},
    {"ALT-P", " Pause emulation", ""},
    {"ALT-I", " Toggle Pal. intens.", ""},
    {"ALT-Q", " Quit", ""},
});

constexpr std::string_view kNotInGameList = "Game info not found in gamelist.txt!";
constexpr auto kNoGameList =
    std::to_array<std::string_view>({"Gamelist.txt not found", "in Callus directory!"});

// The lines behind the one that holds the name. An empty line is shown twice, and the line behind
// it isn't shown: it ends the block if it is empty too.
void ReadBlock(LineReader& lines, std::string_view name, std::vector<std::string>& items) {
  const auto begins = [name](std::string_view line) {
    return !line.empty() && line.find(name) != std::string_view::npos;
  };
  std::string_view line;
  bool more = lines.Next(line);
  while (more && !begins(line)) more = lines.Next(line);
  if (!more) {
    items.emplace_back(kNotInGameList);
    return;
  }
  while (lines.Next(line)) {
    items.emplace_back(line);
    if (!line.empty()) continue;
    items.emplace_back();
    if (!lines.Next(line) || line.empty()) return;
  }
}

}  // namespace

extern const Emulator kCallus;
constinit const Emulator kCallus = {
    .word = "Callus",
    .selector_caption = "CALLUS",
    .default_rom_folder = R"(C:\emu\callus)",
    .rom_sub_folder = "",
    .start = {.exe_path = R"(C:\Emu\Callus\Callus.exe)",
              .rom_path = R"(C:\Emu\Callus)",
              .snap_path = R"(C:\Emu\Callus\Snapshot)",
              .emulator_folder = R"(D:\Emu\Arcade\CallusD)"},
    .has_scan = true,
    .has_filters = true,
    .has_game_list = true,
    .has_favourites = true,
    .knows_parents = false,
    .has_bare_names = false,
    .launch = {.tests_emulator_first = false,
               .archive_look = ArchiveLook::kNever,
               .no_emulator_title = "",
               .no_rom_title = ""},
    .panel =
        {
            .rom_drive_from_rom_path = false,
            .snap_drive_from_emulator = false,
            .second_rom_folder = false,
            .no_emulator_hides_snap = true,
            .no_rom_hides_snap = false,
            .shown_before_first_game = true,
            .fixed_rom_folder_at_load = false,
            .shift_resets_filters = false,
            .docks_on_click = false,
            .has_arrangements = true,
            .has_large_size = true,
            .clear_rests_with_main = true,
            .percent_tip = PercentTip::kOnMove,
            .height = 7260,
            .game_list = {90, 5010, 6165, 2175},
            .start_columns = 2,
            .combos = {{{120, 1485}, {1680, 1245}, {3000, 1545}, {4620, 795}}},
            .genre_left_up = 1660,
        },
    .texts = {.snap_tip = "Press F9 during the game to grab your snap!",
              .conf_heading = "CALLUS - File and Directory Locations",
              .exe_caption = "Full Callus-DOS Path",
              .scan_caption = "Roms Scan:",
              .count_caption = "Filtered:",
              .total_caption = "Total:",
              .design_total = ""},
    .filters = {.states = std::span(kStateItems).first(kCommonStates),
                .genres = kGenres,
                .manufactors = kManufactors,
                .years = kYears},
    .fixed_games = {},
    .help = {.keys = kKeys,
             .list_height = 1410,
             .title = "Game Details",
             .columns = 2,
             .row_height = 192,
             .key_width = 570,
             .text_size = 10,
             .fixed_list = nullptr,
             .game_list = {.no_file = kNoGameList, .read = ReadBlock}},
    .options = kOptions,
    .enablings = {},
    .recording = {},
    .command = {.before_rom = " ", .behind_rom = "", .pieces = kPieces},
};

}  // namespace zarvo

// Raine: all in which it differs from the other emulators.
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

constexpr auto kScreenModeItems =
    std::to_array<std::string_view>({"Autodetect", "VGA", "Mode-X", "VESA 1.x", "VESA 2.0 (B)",
                                     "VESA 2.0 (L)", "VESA 3.0", "VBE/AF", "Xtended Mode"});

constexpr auto kScreenResItems = std::to_array<std::string_view>(
    {"320 x 200", "320 x 240", "400 x 300", "512 x 384", "640 x 400", "640 x 480", "800 x 600",
     "1024 x 768", "1280 x 1024", "1600 x 1200"});

constexpr auto kJoystickItems = std::to_array<std::string_view>(
    {"Autodetect", "None", "Standard Joystick", "Joystick with 2 Pads", "Joystick with 4 Buttons",
     "Joystick with 6 Buttons", "Joystick with 8 Buttons", "FlightStick Pro", "Wing Extreme",
     "Sidewinder", "Gamepad Pro", "SNES Pad (LPT1)", "SNES Pad (LPT2)", "SNES Pad (LPT3)",
     "WingMan Warrior", "SEGA Isa", "Sidewinder Alt."});

// One column of lists with their labels beside them, then two columns of check boxes.
constexpr Rows kLists{.top = 480, .pitch = 375, .height = 255};
constexpr Rows kChecks{.top = 1740, .pitch = 285, .height = 195};
constexpr LabelledBox kList{.label = {60, 1065}, .box = {1125, 2400}};
constexpr std::array<Span, 2> kColumns = {{{60, 1845}, {1980, 1845}}};

constexpr std::array<OptionSpec, 5> kOptions = {{
    {.name = "cboScreenMode",
     .kind = OptionKind::kCombo,
     .caption = "Screen mode",
     .tool_tip = " Choose screen type (see list in raine.cfg) ",
     .items = kScreenModeItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 0),
     .caption_place = kLists.At(kList.label, 0)},
    {.name = "cboScreenRes",
     .kind = OptionKind::kCombo,
     .caption = "Screen size",
     .tool_tip = " Choose screen width ",
     .items = kScreenResItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 1),
     .caption_place = kLists.At(kList.label, 1)},
    {.name = "cboJoystick",
     .kind = OptionKind::kCombo,
     .caption = "Joystick",
     .tool_tip = " Choose joystick type (see list in raine.cfg) ",
     .items = kJoystickItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 2),
     .caption_place = kLists.At(kList.label, 2)},
    {.name = "chkLimitSpeed",
     .kind = OptionKind::kCheck,
     .caption = "Limit to 60 fps",
     .tool_tip = " Limit Emulation speed (to 60fps) ",
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkEnableGUI",
     .kind = OptionKind::kCheck,
     .caption = "Enable GUI",
     .tool_tip = " Enable GUI ;)",
     .place = kChecks.At(kColumns[1], 0)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 7);

// The command line.

consteval std::size_t Of(std::string_view name) { return IndexIn(kOptions, name); }

constexpr auto kModes = std::to_array<std::string_view>(
    {"0", "VGA", "MODX", "VBE1", "VB2B", "VB2L", "VB3", "VBAF", "XTND"});
constexpr auto kSizes = std::to_array<std::string_view>(
    {"320 -screeny 200", "320 -screeny 240", "400 -screeny 300", "512 -screeny 384",
     "640 -screeny 400", "640 -screeny 480", "800 -screeny 600", "1024 -screeny 768",
     "1280 -screeny 1024", "1600 -screeny 1200"});
constexpr auto kJoysticks = std::to_array<std::string_view>(
    {"-1", "0", "STD", "2PAD", "4BUT", "6BUT", "8BUT", "FPRO", "WING", "SW", "GPRO", "SNE1", "SNE2",
     "SNE3", "WWAR", "SEGI", "SWB"});

// For today's MAME.
constexpr auto kSizesToday =
    std::to_array<std::string_view>({"320x200", "320x240", "400x300", "512x384", "640x400",
                                     "640x480", "800x600", "1024x768", "1280x1024", "1600x1200"});
constexpr auto kJoysticksToday = std::to_array<std::string_view>(
    {"", " -nojoystick", " -joystick", " -joystick", " -joystick", " -joystick", " -joystick",
     " -joystick", " -joystick", " -joystick", " -joystick", " -joystick", " -joystick",
     " -joystick", " -joystick", " -joystick", " -joystick"});

constexpr auto kPieces = std::to_array<Piece>({
    Off(Of("chkEnableGUI"), " -nogui", NothingFor("a game that is named starts without a menu")),
    Each(Of("cboScreenMode"), " -screenmode ", kModes, NothingFor("modes of VGA and VESA cards")),
    Each(Of("cboScreenRes"), " -screenx ", kSizes, As(" -resolution %", kSizesToday)),
    On(Of("chkLimitSpeed"), " -limitspeed", As(" -throttle")),
    Each(Of("cboJoystick"), " -joystick ", kJoysticks, As("%", kJoysticksToday)),
});

static_assert(SpeakForAll(kPieces, kOptions));

// What stands in the filters.

constexpr auto kGenres = std::to_array<std::string_view>({
    "- Genre",
    "Action",
    "Fighting",
    "Maze",
    "Platform",
    "Puzzle",
    "Racing",
    "Shooter",
    "Sports",
});

constexpr auto kManufactors = std::to_array<std::string_view>({
    "- Manufactor",
    "Bear",
    "Comad",
    "Datsu",
    "Jaleco",
    "Nichibutsu",
    "NMK",
    "Red Corp",
    "Ryoutou",
    "Sakowa",
    "Seyetu",
    "Tad Corp",
    "Taito",
    "Taito/Bally",
    "Taito+Sega",
    "Technos",
    "Tecmo",
});

constexpr auto kYears = std::to_array<std::string_view>({
    "- Year",
    "1985",
    "1986",
    "1987",
    "1988",
    "1989",
    "1990",
    "1991",
    "1992",
    "1993",
    "1994",
    "1995",
    "1996",
    "1997",
});

// The help page.

constexpr auto kKeys = std::to_array<KeyRow>({
    {"", "General in game keys:", ""},
    {"0", " Save ScreenShot", ""},
    {"F2", " Save Game State", ""},
    {"F3", " Switch Save State", ""},
    {"F4", " Load Game State", ""},
    {"F11", "FPS Display (5 M.)", ""},
    {"PGUP", " Incr. FrameSkip", ""},
    {"PGDN", " Decr. FrameSkip", ""},
    {"ESC", " Quit emulation", ""},
    {"P", " Pause game", ""},
    {"", "Keys in Pause mode:", ""},
    {"P", " Unpause", ""},
    {"ESC", " Quit emulation", ""},
    {"UP", " Scroll Up", ""},
    {"DOWN", " Scroll Down", ""},
    {"LEFT", " Scroll Left", ""},
    {"RGHT", " Scroll RIght", ""},
    {"", "Default Player keys:", ""},
    {"3", " Coin A", ""},
    {"4", " Coin B", ""},
    {"T", " Tilt", ""},
    {"Y", " Service", ""},
    {"1", " Player 1 Start", ""},
    {"UP", " Player 1 Up", ""},
    {"DOWN", " Player 1 Down", ""},
    {"LEFT", " Player 1 Left", ""},
    {"RIGHT", " Player 1 Right", ""},
    {"B-N-M", " Player 1 Buttons", ""},
    {"2", " Player 2 Start", ""},
    {"S", " Player 2 Up", ""},
    {"X", " Player 2 Down", ""},
    {"Z", " Player 2 Left", ""},
    {"C", " Player 2 Right", ""},
    {"Q-W-E", " Player 2 Buttons", ""},
});

}  // namespace

extern const Emulator kRaine;
constinit const Emulator kRaine = {
    .word = "Raine",
    .selector_caption = "R.A.I.N.E.",
    .default_rom_folder = R"(C:\emu\raine\ziproms)",
    .rom_sub_folder = R"(\ZipRoms)",
    .start = {.exe_path = R"(C:\Emu\Raine\Raine.exe)",
              .rom_path = R"(C:\Emu\Raine\ZipRoms)",
              .snap_path = R"(C:\Emu\Raine\Snapshot)",
              .emulator_folder = R"(D:\Emu\Arcade\Raine)"},
    .has_scan = true,
    .has_filters = true,
    .has_game_list = true,
    .has_favourites = true,
    .knows_parents = false,
    .has_bare_names = false,
    .launch = {.tests_emulator_first = false,
               .archive_look = ArchiveLook::kNever,
               .no_emulator_title = "Warning! - No EXE found!",
               .no_rom_title = "Warning! - No Rom found!"},
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
            .docks_on_click = true,
            .has_arrangements = true,
            .has_large_size = true,
            .clear_rests_with_main = false,
            .percent_tip = PercentTip::kOnClick,
            .height = 7260,
            .game_list = {90, 5010, 6165, 2175},
            .start_columns = 3,
            .combos = {{{120, 1485}, {1680, 1245}, {3000, 1545}, {4620, 795}}},
            .genre_left_up = 1660,
        },
    .texts = {.snap_tip = "Press 0 during the game to grab your snap!",
              .conf_heading = "RAINE - File and Directory Locations",
              .exe_caption = "Full Raine Path",
              .scan_caption = "Roms Scan:",
              .count_caption = "Filtered:",
              .total_caption = "Total:",
              .design_total = "107"},
    .filters = {.states = std::span(kStateItems).first(kCommonStates),
                .genres = kGenres,
                .manufactors = kManufactors,
                .years = kYears},
    .fixed_games = {},
    .help = {.keys = kKeys,
             .list_height = 0,
             .title = "",
             .columns = 2,
             .row_height = 216,
             .key_width = 510,
             .text_size = 10,
             .fixed_list = nullptr,
             .game_list = {.no_file = {}, .read = nullptr}},
    .options = kOptions,
    .enablings = {},
    .recording = {},
    .command = {.before_rom = " -game ", .behind_rom = "", .pieces = kPieces},
};

}  // namespace zarvo

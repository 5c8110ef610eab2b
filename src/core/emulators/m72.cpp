// M72: all in which it differs from the other emulators.
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

constexpr auto kVRItems = std::to_array<std::string_view>({"400 x 300", "512 x 384"});

constexpr auto kFrameSkipItems =
    std::to_array<std::string_view>({"0 (Def.)", "1", "2", "3", "4", "5", "6", "7", "8"});

constexpr auto kSampleRateItems =
    std::to_array<std::string_view>({"11.025 Khz", "22.050 Khz", "44.100 Khz"});

constexpr auto kQuickFireItems =
    std::to_array<std::string_view>({"None", "But. 1", "But. 2", "But. 3", "But. 4"});

// One column of lists with their labels beside them, then two columns of check boxes.
constexpr Rows kLists{.top = 480, .pitch = 375, .height = 255};
constexpr Rows kChecks{.top = 2115, .pitch = 285, .height = 195};
constexpr LabelledBox kList{.label = {60, 1065}, .box = {1125, 2400}};
constexpr std::array<Span, 2> kColumns = {{{60, 1845}, {1980, 1845}}};

constexpr std::array<OptionSpec, 10> kOptions = {{
    {.name = "cboVR",
     .kind = OptionKind::kCombo,
     .caption = "Display mode",
     .tool_tip = " Set display mode for vertical mode ",
     .items = kVRItems,
     .default_value = 0,
     .preset = 0,
     .enabled_at_start = false,
     .place = kLists.At(kList.box, 0),
     .caption_place = kLists.At(kList.label, 0)},
    {.name = "cboFrameSkip",
     .kind = OptionKind::kCombo,
     .caption = "Frame skip",
     .tool_tip = " Skip frame ",
     .items = kFrameSkipItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 1),
     .caption_place = kLists.At(kList.label, 1)},
    {.name = "chkVertDisplay",
     .kind = OptionKind::kCheck,
     .caption = "Vertical Display",
     .tool_tip = " Enable vertical display ",
     .place = kChecks.At(kColumns[0], 0)},
    {.name = "chkScanlines",
     .kind = OptionKind::kCheck,
     .caption = "Enable Scanlines",
     .tool_tip = " Enable scanline display mode ",
     .place = kChecks.At(kColumns[0], 1)},
    {.name = "chkVSync",
     .kind = OptionKind::kCheck,
     .caption = "Enable V-Sync",
     .tool_tip = " Syncronize video output with the vertical retrace signal ",
     .place = kChecks.At(kColumns[0], 2)},
    {.name = "chkPerformance",
     .kind = OptionKind::kCheck,
     .caption = "Show performance",
     .tool_tip = " Show performance counter (only works on Pentium series CPU) ",
     .place = kChecks.At(kColumns[1], 0)},
    {.name = "chkPPro",
     .kind = OptionKind::kCheck,
     .caption = "PPro Optimized",
     .tool_tip = " Use Pentium-pro optimized routines ",
     .place = kChecks.At(kColumns[1], 1)},
    {.name = "chkNoJoy",
     .kind = OptionKind::kCheck,
     .caption = "Disable Joy",
     .tool_tip = " Disable joystick support ",
     .place = kChecks.At(kColumns[1], 2)},
    {.name = "cboSampleRate",
     .kind = OptionKind::kCombo,
     .caption = "Sample rate",
     .tool_tip = " Change sampling rate ",
     .items = kSampleRateItems,
     .default_value = 1,
     .preset = 1,
     .place = kLists.At(kList.box, 2),
     .caption_place = kLists.At(kList.label, 2)},
    {.name = "cboQuickFire",
     .kind = OptionKind::kCombo,
     .caption = "Quick fire",
     .tool_tip = " Set quick fire button (1-4) ",
     .items = kQuickFireItems,
     .default_value = 0,
     .preset = 0,
     .place = kLists.At(kList.box, 3),
     .caption_place = kLists.At(kList.label, 3)},
}};

static_assert(AreSound(kOptions));
// Key and rom folder stand in front of the options in a record.
static_assert(StoredCount(kOptions) + 2 == 12);

// The command line.

consteval std::size_t Of(std::string_view name) { return IndexIn(kOptions, name); }

// The list of display modes counts only while it can be used.
bool HasDisplayMode(const OptionValues& options) { return options.values[Of("cboVR")].enabled; }

constexpr auto kDisplayModes = std::to_array<std::string_view>({"400x300", "512x384"});
constexpr auto kFrameSkips =
    std::to_array<std::string_view>({"", "1", "2", "3", "4", "5", "6", "7", "8"});
constexpr auto kSampleRates = std::to_array<std::string_view>({"11025", "22050", "44100"});
constexpr auto kButtons = std::to_array<std::string_view>({"", "1", "2", "3", "4"});

constexpr auto kPieces = std::to_array<Piece>({
    When(HasDisplayMode, Each(Of("cboVR"), " -res ", kDisplayModes, As(" -resolution %"))),
    Each(Of("cboFrameSkip"), " -skip ", kFrameSkips, As(" -frameskip %")),
    On(Of("chkVertDisplay"), " -vert", As(" -autoror")),
    On(Of("chkScanlines"), " -scanlines", As(" -effect scanlines")),
    On(Of("chkVSync"), " -vsync", As(" -waitvsync")),
    On(Of("chkPerformance"), " -perf", NothingFor("F11 shows it in the game")),
    On(Of("chkPPro"), " -ppro", NothingFor("processors of the time")),
    On(Of("chkNoJoy"), " -nojoy", As(" -nojoystick")),
    Each(Of("cboSampleRate"), " -r ", kSampleRates, As(" -samplerate %")),
    Each(Of("cboQuickFire"), " -qf ", kButtons, NothingFor("it is chosen in the game, with TAB")),
});

static_assert(SpeakForAll(kPieces, kOptions));

// The display mode can be chosen only for the vertical display.
constexpr auto kEnablings =
    std::to_array<Enabling>({{.by = Of("chkVertDisplay"), .option = Of("cboVR")}});

// The games, which are always the same.
constexpr auto kGames = std::to_array<std::string_view>({
    "Battle Chopper",
    "Dragon Breed",
    "Gallop - Armed Police Unit",
    "Hammerin'Harry",
    "Image Fight",
    "Legend of Hero Tonma",
    "Mr.Heli (JP)",
    "Ninja Spirit",
    "R-Type (US)",
    "R-Type (JP)",
    "R-Type 2",
    "X-Multiply",
});

// The help page.

constexpr auto kKeys = std::to_array<KeyRow>({
    {"Keyboard", "Controls", "Gamepad"},
    {"LCTRL / TAB", "BUTTON 1", "Button 1"},
    {"ALT / Q", "BUTTON 2", "Button 2"},
    {"SPACE / W", "BUTTON 3", "Button 3"},
    {"RCTRL / E", "BUTTON 4", "Button 4"},
    {"1", "Player 1 Start", "n/a"},
    {"2", "Player 2 Start", "n/a"},
    {"3", "Coin 1", "n/a"},
    {"4", "Coin 2", "n/a"},
    {"", "Other keys:", ""},
    {"F5", " Save game", ""},
    {"F6/F8", " Change save slot", ""},
    {"F7", " Restore game", ""},
    {"F9", " Start/Stop recording", ""},
    {"F10/F12", " Change record slot", ""},
    {"F11", " Start/Stop play record", ""},
    {"S", " Save a ScreenShot", ""},
    {"P", " Pause", ""},
    {"ESC", " Quit", ""},
});

}  // namespace

extern const Emulator kM72;
constinit const Emulator kM72 = {
    .word = "M72",
    .selector_caption = "M-72",
    .default_rom_folder = R"(C:\emu\m72\ziproms)",
    .rom_sub_folder = R"(\Ziproms)",
    .start = {.exe_path = R"(C:\Emu\M72\M72.exe)",
              .rom_path = R"(C:\Emu\M72\Ziproms)",
              .snap_path = R"(C:\Emu\Snapshot\M72)",
              .emulator_folder = R"(D:\Emu\Arcade\M72)"},
    .has_scan = false,
    .has_filters = false,
    .has_game_list = false,
    .has_favourites = false,
    .knows_parents = false,
    .has_bare_names = false,
    .launch = {.tests_emulator_first = false,
               .archive_look = ArchiveLook::kInOwnFolder,
               .no_emulator_title = "",
               .no_rom_title = ""},
    .panel =
        {
            .rom_drive_from_rom_path = false,
            .snap_drive_from_emulator = false,
            .second_rom_folder = true,
            .no_emulator_hides_snap = true,
            .no_rom_hides_snap = false,
            .shown_before_first_game = true,
            .fixed_rom_folder_at_load = false,
            .shift_resets_filters = false,
            .docks_on_click = false,
            .has_arrangements = false,
            .has_large_size = false,
            .clear_rests_with_main = false,
            .percent_tip = PercentTip::kNever,
            .height = 4620,
            .game_list = TwipRect{},
            .start_columns = 0,
            .combos = {},
            .genre_left_up = 0,
        },
    .texts = {.snap_tip = "Press \"S\" during the game to grab your snap!",
              .conf_heading = "M-72 - File and Directory Locations",
              .exe_caption = "Full M-72 Path",
              .scan_caption = "",
              .count_caption = "",
              .total_caption = "",
              .design_total = ""},
    .filters = {.states = {}, .genres = {}, .manufactors = {}, .years = {}},
    .fixed_games = kGames,
    .help = {.keys = kKeys,
             .list_height = 0,
             .title = "",
             .columns = 1,
             .row_height = 195,
             .key_width = 1380,
             .text_size = 11,
             .fixed_list = nullptr,
             .game_list = {.no_file = {}, .read = nullptr}},
    .options = kOptions,
    .enablings = kEnablings,
    .recording = {},
    .command = {.before_rom = " ", .behind_rom = "", .pieces = kPieces},
};

}  // namespace zarvo

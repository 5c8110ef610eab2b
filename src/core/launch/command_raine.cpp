#include <array>
#include <string_view>

#include "core/launch/command_pieces.h"
#include "core/launch/options_raine.h"

namespace zarvo {
namespace {

using raine::kOptions;

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

constexpr auto kPieces = std::to_array<Piece>({
    Off(Of("chkEnableGUI"), " -nogui"),
    Each(Of("cboScreenMode"), " -screenmode ", kModes),
    Each(Of("cboScreenRes"), " -screenx ", kSizes),
    On(Of("chkLimitSpeed"), " -limitspeed"),
    Each(Of("cboJoystick"), " -joystick ", kJoysticks),
});

static_assert(SpeakForAll(kPieces, kOptions));

}  // namespace

CommandTable RaineCommand() { return {.before_rom = " -game ", .pieces = kPieces}; }

}  // namespace zarvo

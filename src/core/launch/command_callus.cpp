#include <array>
#include <string_view>

#include "core/launch/command_pieces.h"
#include "core/launch/options_callus.h"

namespace zarvo {
namespace {

using callus::kOptions;

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

constexpr auto kPieces = std::to_array<Piece>({
    WithoutChoice(Each(Of("cboVR"), " -resv ", kResolutions), " -resv 640 480"),
    WithoutChoice(Each(Of("cboHR"), " -res ", kResolutions), " -res 384 257"),
    WithoutChoice(Each(Of("cboFrameSkip"), " -frameskip ", kFrameSkips), " -frameskip AUTO"),
    On(Of("chkNoSound"), " -nosound"),
    When(HasSound,
         WithoutChoice(Each(Of("cboSampleRate"), " -sndrate ", kSampleRates), " -sndrate 22050")),
    On(Of("chkVSync"), " -vsync ON"),
    On(Of("chkNoVesa"), " -novesa"),
    On(Of("chkLinear"), " -linear"),
    On(Of("chkBanked"), " -banked"),
    On(Of("chkMultiTask"), " -exclusive"),
    On(Of("chkAltStart"), " -altkey"),
    On(Of("chkFPU"), " -fpucopy"),
    WithoutChoice(Each(Of("cboDevice1"), " -setinput 1 ", kDevices), " -setinput 1 KEY1"),
    Each(Of("cboDevice2"), " -setinput 2 ", kDevices),
    Each(Of("cboDevice3"), " -setinput 3 ", kDevices),
    Each(Of("cboDevice4"), " -setinput 4 ", kDevices),
    On(Of("chkStereo"), " -stereo ON"),
    On(Of("chkHiColor"), " -hicolor"),
    On(Of("chk2To3"), " -map2to3"),
});

static_assert(SpeakForAll(kPieces, kOptions));

}  // namespace

CommandTable CallusCommand() { return {.pieces = kPieces}; }

}  // namespace zarvo

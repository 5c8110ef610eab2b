#include <array>
#include <string_view>

#include "core/launch/command_pieces.h"
#include "core/launch/options_system16.h"

namespace zarvo {
namespace {

using system16::kOptions;

consteval std::size_t Of(std::string_view name) { return IndexIn(kOptions, name); }

constexpr auto kFrameSkips =
    std::to_array<std::string_view>({"", "2", "3", "4", "5", "6", "7", "8"});
// The emulator knows no sound card 2.
constexpr auto kSoundCards = std::to_array<std::string_view>({"0", "1", "3", "4", "5", "6", "7"});
constexpr auto kSampleRates = std::to_array<std::string_view>({"11025", "22050", "44100"});
constexpr auto kJoysticks = std::to_array<std::string_view>({"3", "8", "9", "10", "11", "12"});

constexpr auto kPieces = std::to_array<Piece>({
    Each(Of("cboHR"), " -RX ", system16::kHRItems),
    Each(Of("cboVR"), " -RY ", system16::kVRItems),
    Each(Of("cboFrameSkip"), " -FRAME ", kFrameSkips),
    On(Of("chkVSync"), " -VSYNC"),
    On(Of("chkRDTSC"), " -NORDTSC"),
    On(Of("chkNoJoy"), " -NOJOY"),
    On(Of("chkEagle"), " -EAGLE"),
    On(Of("chkScanlines"), " -SCANLINES"),
    On(Of("chkScanlines2"), " -SCANLINES2"),
    On(Of("chkOld2151"), " -OLD2151"),
    On(Of("chkNoLeds"), " -NOLEDS"),
    On(Of("chkESC"), " -ESCEXIT"),
    On(Of("chkNoTitle"), " -NOTITLE"),
    On(Of("chkRevX"), " -REVERSEX"),
    On(Of("chkRevY"), " -REVERSEY"),
    Each(Of("cboSoundcard"), " -SOUNDCARD ", kSoundCards),
    Each(Of("cboSampleRate"), " -R ", kSampleRates),
    Each(Of("cboControls"), " -JOYTYPE ", kJoysticks),
    On(Of("chkAnalogJoy"), " -JOY"),
});

static_assert(SpeakForAll(kPieces, kOptions));

}  // namespace

CommandTable System16Command() { return {.pieces = kPieces}; }

}  // namespace zarvo

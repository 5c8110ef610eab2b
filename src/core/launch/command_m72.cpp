#include <array>
#include <string_view>

#include "core/launch/command_pieces.h"
#include "core/launch/options_m72.h"

namespace zarvo {
namespace {

using m72::kOptions;

consteval std::size_t Of(std::string_view name) { return IndexIn(kOptions, name); }

// The list of display modes counts only while it can be used.
bool HasDisplayMode(const OptionValues& options) { return options.values[Of("cboVR")].enabled; }

constexpr auto kDisplayModes = std::to_array<std::string_view>({"400x300", "512x384"});
constexpr auto kFrameSkips =
    std::to_array<std::string_view>({"", "1", "2", "3", "4", "5", "6", "7", "8"});
constexpr auto kSampleRates = std::to_array<std::string_view>({"11025", "22050", "44100"});
constexpr auto kButtons = std::to_array<std::string_view>({"", "1", "2", "3", "4"});

constexpr auto kPieces = std::to_array<Piece>({
    When(HasDisplayMode, Each(Of("cboVR"), " -res ", kDisplayModes)),
    Each(Of("cboFrameSkip"), " -skip ", kFrameSkips),
    On(Of("chkVertDisplay"), " -vert"),
    On(Of("chkScanlines"), " -scanlines"),
    On(Of("chkVSync"), " -vsync"),
    On(Of("chkPerformance"), " -perf"),
    On(Of("chkPPro"), " -ppro"),
    On(Of("chkNoJoy"), " -nojoy"),
    Each(Of("cboSampleRate"), " -r ", kSampleRates),
    Each(Of("cboQuickFire"), " -qf ", kButtons),
});

static_assert(SpeakForAll(kPieces, kOptions));

}  // namespace

CommandTable M72Command() { return {.pieces = kPieces}; }

}  // namespace zarvo

#include <array>
#include <string_view>

#include "core/launch/command_pieces.h"
#include "core/launch/options_mame.h"

namespace zarvo {
namespace {

using mame::kOptions;

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

constexpr auto kPieces = std::to_array<Piece>({
    Each(Of("cboScreenRes"), " -resolution ", kResolutions),
    Each(Of("cboMonitor"), " -monitor ", kMonitors),
    Each(Of("cboFrames"), " -frameskip ", kFrames),
    Each(Of("cboSoundCard"), " -soundcard ", kSoundCards),
    When(HasSound, Each(Of("cboSampleRate"), " -sr ", kSampleRates)),
    Each(Of("cboControls"), " -joy ", kJoysticks),
    EachBut(0, Of("cboVgaFreq"), " -vgafreq ", mame::kVgaFreqItems),
    EachBut(0, Of("cboBeam"), " -beam ", mame::kBeamItems),
    Each(Of("cboFlicker"), " -flicker ", kFlicker),
    Text(Of("txtSkipR"), " -skiplines "),
    Text(Of("txtSkipC"), " -skipcolumns "),
    EachBut(14, Of("cboGamma"), " -gamma ", mame::kGammaItems),
    On(Of("chkScanlines"), " -noscanlines"),
    On(Of("chkNTSC"), " -ntsc"),
    On(Of("chkDepth"), " -depth 8"),
    On(Of("chkAlwaysSync"), " -alwayssynced"),
    On(Of("chkTweaked"), " -tweak"),
    Each(Of("cboVesaMode"), " -vesamode ", kVesaModes),
    On(Of("chkNoStretch"), " -nostretch"),
    On(Of("chkTripleBuffer"), " -trpilebuffer"),
    On(Of("chkWaitInterlace"), " -waitinterlace"),
    On(Of("chkVsync"), " -vsync"),
    On(Of("chkAntiA"), " -aa"),
    On(Of("chkNoTrans"), " -notranslucency"),
    On(Of("chkR90"), " -ror"),
    On(Of("chkL90"), " -rol"),
    On(Of("chkFlipH"), " -flipx"),
    On(Of("chkFlipV"), " -flipy"),
    On(Of("chkNoRot"), " -norotate"),
    On(Of("chkCheat"), " -cheat"),
    Made(Of("chkRecord"), RecordPiece),
    Made(Of("chkPlayback"), PlaybackPiece),
    On(Of("chkStereo"), " -nostereo"),
    On(Of("chk16Bit"), " -sb 16"),
    On(Of("chkYm3812"), " -noym3812opl"),
});

static_assert(SpeakForAll(kPieces, kOptions));

}  // namespace

CommandTable MameCommand() { return {.behind_rom = " -ignorecfg", .pieces = kPieces}; }

}  // namespace zarvo

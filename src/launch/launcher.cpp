#include "launch/launcher.h"

#include <filesystem>
#include <optional>
#include <system_error>

#include "platform/dos_path.h"
#include "platform/enter_folder.h"
#include "platform/text.h"

namespace zarvo {
namespace {

// The set of shared roms; alone it starts no game.
constexpr std::string_view kNeoGeo = "neogeo";

// A file that belongs to one launch: deleted when the launch ends, however it ends.
class LaunchFile {
 public:
  explicit LaunchFile(DosFiles& files) : files_(files) {}
  LaunchFile(const LaunchFile&) = delete;
  LaunchFile& operator=(const LaunchFile&) = delete;
  LaunchFile(LaunchFile&&) = delete;
  LaunchFile& operator=(LaunchFile&&) = delete;
  ~LaunchFile() {
    if (!path_.empty()) Ignore(files_.DeleteFile(path_));
  }

  void Own(std::string path) { path_ = std::move(path); }

 private:
  DosFiles& files_;
  std::string path_;
};

std::string RomFolderOf(const EmulatorProfile& profile, std::string_view emulator_folder) {
  if (profile.rom_sub_folder.empty()) return std::string(emulator_folder);
  return JoinPath(emulator_folder, profile.rom_sub_folder.substr(1));
}

bool SamePath(std::string_view left, std::string_view right) {
  const auto left_parts = PathComponents(left);
  const auto right_parts = PathComponents(right);
  if (DriveLetter(left) != DriveLetter(right) || left_parts.size() != right_parts.size()) {
    return false;
  }
  for (std::size_t i = 0; i < left_parts.size(); ++i) {
    if (!EqualNoCase(left_parts[i], right_parts[i])) return false;
  }
  return true;
}

// Also by another drive, or through a link of the host.
bool SameFolder(const DosFiles& files, std::string_view left, std::string_view right) {
  if (SamePath(left, right)) return true;
  if (left.empty()) return false;  // no folder at all, not the current one
  const auto left_host = files.HostPath(left);
  const auto right_host = files.HostPath(right);
  std::error_code no_such_folder;
  return left_host && right_host &&
         std::filesystem::equivalent(*left_host, *right_host, no_such_folder);
}

class OneLaunch {
 public:
  OneLaunch(const EmulatorProfile& profile, LaunchPanel& panel, const LaunchTools& tools)
      : profile_(profile),
        panel_(panel),
        tools_(tools),
        files_(tools.files),
        copy_(tools.files),
        batch_(tools.files) {}

  LaunchEnd Run(std::string_view game);
  // What failed, for a box; after kFailed.
  [[nodiscard]] const std::string& Failure() const { return failure_; }

 private:
  // How the launch has ended, or nothing while it goes on.
  using Ended = std::optional<LaunchEnd>;

  Ended FirstSteps(std::string_view game);
  Ended TestEmulator();
  Ended FindRom(std::string_view game);
  Ended FindFolders();
  Ended LookForArchive();
  Ended BringIn();
  Ended BringInWithParent();
  Ended BringInAlone();
  Ended CopyIn(const std::string& rom);
  Ended AskToUse(const std::string& rom);
  LaunchEnd RunBatch();

  LaunchEnd NoRom();
  LaunchEnd Fail(std::string message);
  [[nodiscard]] std::string TitleOr(std::string_view title) const;

  // In the folder of the game's record, and in the emulator's own.
  [[nodiscard]] bool IsGiven(const std::string& rom) const;
  [[nodiscard]] bool StandsInOwnFolder(const std::string& rom) const;
  [[nodiscard]] bool IsNeoGeo() const { return EqualNoCase(parent_, kNeoGeo); }

  const EmulatorProfile& profile_;
  LaunchPanel& panel_;
  const LaunchTools& tools_;
  DosFiles& files_;
  CommandInput input_;
  std::string rom_;
  std::string parent_;  // empty: none
  std::string own_rom_folder_;
  bool is_own_folder_ = false;
  std::string failure_;
  LaunchFile copy_;
  LaunchFile batch_;
};

LaunchEnd OneLaunch::Run(std::string_view game) {
  panel_.SaveCfg();
  if (const Ended ended = FirstSteps(game)) return *ended;
  if (const Ended ended = FindFolders()) return *ended;
  if (const Ended ended = LookForArchive()) return *ended;
  if (const Ended ended = BringIn()) return *ended;
  return RunBatch();
}

OneLaunch::Ended OneLaunch::FirstSteps(std::string_view game) {
  Ended ended = profile_.tests_emulator_first ? TestEmulator() : FindRom(game);
  if (!ended) ended = profile_.tests_emulator_first ? FindRom(game) : TestEmulator();
  return ended;
}

OneLaunch::Ended OneLaunch::TestEmulator() {
  const std::string path = panel_.EmulatorPath();
  if (!path.empty() && files_.FileExists(path)) return std::nullopt;
  tools_.boxes.Warn(TitleOr(profile_.no_emulator_title), tools_.app.messages.MsgNoEmulator);
  panel_.ShowEmulatorPicker();
  return LaunchEnd::kNoEmulator;
}

OneLaunch::Ended OneLaunch::FindRom(std::string_view game) {
  if (!panel_.FindRom(game)) return LaunchEnd::kUnknownGame;
  rom_ = panel_.RomName();
  if (profile_.knows_parents && IsPlainName(panel_.ParentRom())) parent_ = panel_.ParentRom();
  return std::nullopt;
}

OneLaunch::Ended OneLaunch::FindFolders() {
  const std::string folder = panel_.EmulatorFolder();
  if (DriveLetter(folder) == 0) {
    return Fail("The emulator's folder isn't known.\rPlease choose the emulator in section CONF");
  }
  input_ = panel_.Command();
  input_.emulator_path = panel_.EmulatorPath();
  input_.rom_name = rom_;
  own_rom_folder_ = RomFolderOf(profile_, folder);
  is_own_folder_ = SameFolder(files_, input_.options.rom_folder, own_rom_folder_);
  return std::nullopt;
}

OneLaunch::Ended OneLaunch::LookForArchive() {
  // A name that could lead elsewhere stands for no archive at all.
  if (!IsPlainName(rom_)) return NoRom();
  const bool looks = profile_.archive_look == ArchiveLook::kAlways ||
                     (profile_.archive_look == ArchiveLook::kInOwnFolder && is_own_folder_);
  if (!looks || IsGiven(rom_) || (IsGiven(parent_) && !IsNeoGeo())) return std::nullopt;
  return NoRom();
}

OneLaunch::Ended OneLaunch::BringIn() {
  if (is_own_folder_) return std::nullopt;
  return profile_.knows_parents ? BringInWithParent() : BringInAlone();
}

OneLaunch::Ended OneLaunch::BringInWithParent() {
  const bool stood = StandsInOwnFolder(rom_);
  Ignore(files_.MakeFolder(own_rom_folder_));
  if (!stood && IsGiven(rom_)) return CopyIn(rom_);
  if (stood) {
    if (const Ended refused = AskToUse(rom_)) return refused;
  }
  if (!IsGiven(parent_)) return std::nullopt;
  if (IsNeoGeo()) return NoRom();
  if (!stood) return StandsInOwnFolder(parent_) ? AskToUse(parent_) : CopyIn(parent_);
  const bool agreed = tools_.boxes.Ask(
      tools_.app.Title(), "La rom " + rom_ +
                              " \xE8 gi\xE0 contenuta nella directory mame/roms. E' stato scelto "
                              "invece di utilizzare una rom contenuta in un altra cartella. "
                              "Proseguendo, la rom contenuta in mame/roms verr\xE0 sovrascritta, "
                              "e verr\xE0 perduta. Continuare?");
  return agreed ? Ended() : LaunchEnd::kRefused;
}

OneLaunch::Ended OneLaunch::BringInAlone() {
  if (!IsGiven(rom_)) return NoRom();
  if (StandsInOwnFolder(rom_)) return AskToUse(rom_);
  return CopyIn(rom_) ? Ended(NoRom()) : std::nullopt;
}

OneLaunch::Ended OneLaunch::CopyIn(const std::string& rom) {
  const std::string archive = rom + ".zip";
  std::string copy = JoinPath(own_rom_folder_, archive);
  const Status copied = files_.CopyFile(JoinPath(input_.options.rom_folder, archive), copy);
  if (!copied) return Fail(copy + ": " + copied.error().message);
  copy_.Own(std::move(copy));
  return std::nullopt;
}

// The archive that stands in the emulator's folder is the one that runs, if the player agrees.
OneLaunch::Ended OneLaunch::AskToUse(const std::string& rom) {
  const std::string question = rom + ": " + tools_.app.messages.MsgRomOverwrite;
  return tools_.boxes.Ask(tools_.app.Title(), question) ? Ended() : LaunchEnd::kRefused;
}

LaunchEnd OneLaunch::RunBatch() {
  const std::string folder = panel_.EmulatorFolder();
  const Status entered = EnterFolder(files_, folder);
  if (!entered) return Fail(folder + ": " + entered.error().message);
  std::string batch = JoinPath(folder, kBatchFile);
  const Status written = files_.WriteFile(kBatchFile, CommandLine(profile_, input_) + "\r\n");
  batch_.Own(batch);  // a half-written one goes too
  if (!written) return Fail(batch + ": " + written.error().message);
  const Status run = tools_.run("command.com /c " + std::string(kBatchFile));
  return run ? LaunchEnd::kRan : Fail(run.error().message);
}

LaunchEnd OneLaunch::NoRom() {
  tools_.boxes.Warn(TitleOr(profile_.no_rom_title), tools_.app.messages.MsgNoRom);
  panel_.ShowRomPicker();
  return LaunchEnd::kNoRom;
}

LaunchEnd OneLaunch::Fail(std::string message) {
  failure_ = std::move(message);
  return LaunchEnd::kFailed;
}

std::string OneLaunch::TitleOr(std::string_view title) const {
  return title.empty() ? tools_.app.Title() : std::string(title);
}

bool OneLaunch::IsGiven(const std::string& rom) const {
  const std::string& folder = input_.options.rom_folder;
  return !rom.empty() && DriveLetter(folder) != 0 &&
         files_.FileExists(JoinPath(folder, rom + ".zip"));
}

bool OneLaunch::StandsInOwnFolder(const std::string& rom) const {
  return files_.FileExists(JoinPath(own_rom_folder_, rom + ".zip"));
}

}  // namespace

LaunchEnd Launch(const EmulatorProfile& profile, std::string_view game, LaunchPanel& panel,
                 const LaunchTools& tools) {
  std::string failure;
  const auto run = [&] {
    OneLaunch launch(profile, panel, tools);
    const LaunchEnd end = launch.Run(game);
    failure = launch.Failure();
    return end;
  };
  const LaunchEnd end = run();  // its files are gone when the box comes up
  if (end == LaunchEnd::kFailed) tools.boxes.Warn(tools.app.Title(), failure);
  return end;
}

}  // namespace zarvo

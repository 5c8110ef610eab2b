#include "core/launch/launcher.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>

#include "core/launch/near_names.h"
#include "core/platform/dos_path.h"
#include "core/platform/dosbox.h"
#include "core/platform/enter_folder.h"
#include "core/platform/messages.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

// The set of shared roms; alone it starts no game.
constexpr std::string_view kNeoGeo = "neogeo";

constexpr std::string_view kArchive = ".zip";

DosPath RomFolderOf(const Emulator& emulator, const DosPath& emulator_folder) {
  if (emulator.rom_sub_folder.empty()) return emulator_folder;
  return emulator_folder / FileName::Own(emulator.rom_sub_folder.substr(1));
}

bool SamePath(const DosPath& left, const DosPath& right) {
  return left.Drive() == right.Drive() &&
         std::ranges::equal(left.Components(), right.Components(), EqualNoCase);
}

// Also by another drive, or through a link of the host.
bool SameFolder(const DosFiles& files, const DosPath& left, const DosPath& right) {
  if (SamePath(left, right)) return true;
  if (left.IsEmpty()) return false;  // no folder at all, not the current one
  const auto left_host = files.HostPath(left);
  const auto right_host = files.HostPath(right);
  std::error_code no_such_folder;
  return left_host && right_host &&
         std::filesystem::equivalent(*left_host, *right_host, no_such_folder);
}

// The archive of a set, if its name is one that can't lead elsewhere.
std::optional<FileName> ArchiveOf(const std::string& rom) {
  const std::optional<FileName> set = FileName::Plain(rom);
  return set ? std::optional(set->With(kArchive)) : std::nullopt;
}

class OneLaunch {
 public:
  OneLaunch(const Emulator& emulator, const LaunchRequest& request, const LaunchCalls& calls,
            const LaunchTools& tools)
      : emulator_(emulator),
        calls_(calls),
        tools_(tools),
        files_(tools.files),
        emulator_folder_(request.emulator_folder),
        game_(request.game),
        input_(request.command),
        given_folder_(request.command.options.rom_folder),
        notes_(tools.files, tools.folders.ProgramFolder) {
    notes_.Settle();  // of a start that was cut off
  }

  LaunchEnd Run();
  // What failed, for a box; after kFailed.
  [[nodiscard]] const std::string& Failure() const { return failure_; }
  // Removes what the launch has made; what can't be removed, with the reasons.
  std::vector<std::string> Settle() { return notes_.Settle(); }

 private:
  // How the launch has ended, or nothing while it goes on.
  using Ended = std::optional<LaunchEnd>;

  Ended FirstSteps();
  Ended TestEmulator();
  Ended FindRom();
  Ended FindFolders();
  Ended LookForArchive();
  Ended BringIn();
  Ended BringInWithParent();
  Ended BringInAlone();
  Ended CopyIn(const std::string& rom);
  Ended AskToUse(const std::string& rom);
  Ended Ask(const std::string& question);
  LaunchEnd RunBatch();

  LaunchEnd NoRom();
  LaunchEnd Fail(std::string message);
  [[nodiscard]] std::string WhatWasLookedFor() const;
  [[nodiscard]] std::string TitleOr(std::string_view title) const;

  // In the folder of the game's record, and in the emulator's own.
  [[nodiscard]] bool IsGiven(const std::string& rom) const;
  [[nodiscard]] bool StandsInOwnFolder(const std::string& rom) const;
  [[nodiscard]] bool IsNeoGeo() const { return EqualNoCase(parent_, kNeoGeo); }

  const Emulator& emulator_;
  const LaunchCalls& calls_;
  const LaunchTools& tools_;
  DosFiles& files_;
  DosPath emulator_folder_;
  std::string game_;
  CommandInput input_;
  DosPath given_folder_;  // of the game's record
  std::string rom_;
  std::string parent_;  // empty: none
  DosPath own_rom_folder_;
  bool is_own_folder_ = false;
  std::string failure_;
  LaunchNotes notes_;
};

LaunchEnd OneLaunch::Run() {
  calls_.save_cfg();
  if (const Ended ended = FirstSteps()) return *ended;
  if (const Ended ended = FindFolders()) return *ended;
  if (const Ended ended = LookForArchive()) return *ended;
  if (const Ended ended = BringIn()) return *ended;
  return RunBatch();
}

OneLaunch::Ended OneLaunch::FirstSteps() {
  Ended ended = emulator_.launch.tests_emulator_first ? TestEmulator() : FindRom();
  if (!ended) ended = emulator_.launch.tests_emulator_first ? FindRom() : TestEmulator();
  return ended;
}

OneLaunch::Ended OneLaunch::TestEmulator() {
  const DosPath path(input_.emulator_path);
  if (!path.IsEmpty() && files_.FileExists(path)) return std::nullopt;
  tools_.boxes.Warn(TitleOr(emulator_.launch.no_emulator_title), MsgNoEmulator);
  calls_.show_emulator_picker();
  return LaunchEnd::kNoEmulator;
}

OneLaunch::Ended OneLaunch::FindRom() {
  const std::optional<FoundRom> found = calls_.find_rom(game_);
  if (!found) return LaunchEnd::kUnknownGame;
  rom_ = input_.rom_name = found->rom;
  if (emulator_.knows_parents) parent_ = found->parent;
  return std::nullopt;
}

OneLaunch::Ended OneLaunch::FindFolders() {
  if (emulator_folder_.Drive() == 0) {
    return Fail("The emulator's folder isn't known.\rPlease choose the emulator in section CONF");
  }
  own_rom_folder_ = RomFolderOf(emulator_, emulator_folder_);
  is_own_folder_ = SameFolder(files_, given_folder_, own_rom_folder_);
  return std::nullopt;
}

OneLaunch::Ended OneLaunch::LookForArchive() {
  // A name that could lead elsewhere stands for no archive at all.
  if (!IsPlainName(rom_)) return NoRom();
  const bool looks = emulator_.launch.archive_look == ArchiveLook::kAlways ||
                     (emulator_.launch.archive_look == ArchiveLook::kInOwnFolder && is_own_folder_);
  if (!looks || IsGiven(rom_) || (IsGiven(parent_) && !IsNeoGeo())) return std::nullopt;
  return NoRom();
}

OneLaunch::Ended OneLaunch::BringIn() {
  if (is_own_folder_) return std::nullopt;
  return emulator_.knows_parents ? BringInWithParent() : BringInAlone();
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
  return Ask("La rom " + rom_ +
             " \xE8 gi\xE0 contenuta nella directory mame/roms. E' stato scelto invece di "
             "utilizzare una rom contenuta in un altra cartella. Proseguendo, la rom contenuta in "
             "mame/roms verr\xE0 sovrascritta, e verr\xE0 perduta. Continuare?");
}

OneLaunch::Ended OneLaunch::BringInAlone() {
  if (!IsGiven(rom_)) return NoRom();
  if (StandsInOwnFolder(rom_)) return AskToUse(rom_);
  return CopyIn(rom_) ? Ended(NoRom()) : std::nullopt;
}

// The archive takes its name when it is whole, and only if nothing has it by then.
OneLaunch::Ended OneLaunch::CopyIn(const std::string& rom) {
  const std::optional<FileName> archive = ArchiveOf(rom);
  if (!archive) return NoRom();
  const DosPath copy = own_rom_folder_ / *archive;
  const DosPath half = own_rom_folder_ / FileName::Own(kHalfCopy);
  if (Status noted = notes_.AddWork({half}); !noted) return Fail(noted.error().message);
  if (files_.FileExists(half)) Ignore(files_.DeleteFile(half));
  Status done = files_.CopyFile(given_folder_ / *archive, half);
  if (!done) return Fail(copy.Text() + ": " + done.error().message);
  const auto identity = files_.Identity(half);
  if (!identity) return Fail(half.Text() + ": " + identity.error().message);
  if (Status noted = notes_.AddCopy(copy, *identity); !noted) return Fail(noted.error().message);
  done = files_.RenameFile(half, copy);
  if (!done) return Fail(copy.Text() + ": " + done.error().message);
  notes_.CopyStands();
  return std::nullopt;
}

// The archive that stands in the emulator's folder is the one that runs, if the player agrees.
OneLaunch::Ended OneLaunch::AskToUse(const std::string& rom) {
  return Ask((rom + ": ").append(MsgRomOverwrite));
}

// Both questions speak of overwriting; what is done to the archive is told below them.
OneLaunch::Ended OneLaunch::Ask(const std::string& question) {
  const bool agreed = tools_.boxes.Ask(
      ProgramTitle(), question + "\r\rYes runs the archive that stands in " +
                          own_rom_folder_.Text() + ". Zarvo overwrites and deletes nothing there.");
  return agreed ? Ended() : LaunchEnd::kRefused;
}

LaunchEnd OneLaunch::RunBatch() {
  const DosPath& folder = emulator_folder_;
  const Status entered = EnterFolder(files_, folder);
  if (!entered) return Fail(folder.Text() + ": " + entered.error().message);
  const FileName batch = FileName::Own(kBatchFile);
  // A note that can't be kept is no reason not to play: a batch file left over does no harm.
  Ignore(notes_.AddWork({folder / batch, folder / FileName::Own(kRunMark),
                         folder / FileName::Own(kLongLineProgram)}));
  const Status written = files_.WriteFile(batch, CommandLine(emulator_, input_) + "\r\n");
  if (!written) return Fail((folder / batch).Text() + ": " + written.error().message);
  const Status run = tools_.run("command.com /c " + batch.Text());
  return run ? LaunchEnd::kRan : Fail(run.error().message);
}

LaunchEnd OneLaunch::NoRom() {
  tools_.boxes.Warn(TitleOr(emulator_.launch.no_rom_title),
                    std::string(MsgNoRom) + WhatWasLookedFor());
  calls_.show_rom_picker();
  return LaunchEnd::kNoRom;
}

LaunchEnd OneLaunch::Fail(std::string message) {
  failure_ = std::move(message);
  return LaunchEnd::kFailed;
}

// Below the message: file and folder, and the sets there whose names are near.
std::string OneLaunch::WhatWasLookedFor() const {
  if (!IsPlainName(rom_))
    return "\r\rThe data file gives this game a set that no file can be called.";
  std::string text = "\r\rZarvo looked for " + rom_ + ".zip";
  if (IsPlainName(parent_) && !IsNeoGeo()) text += ", or its parent's " + parent_ + ".zip,";
  text +=
      given_folder_.IsEmpty() ? ", and no folder is given." : " in " + given_folder_.Text() + ".";
  const auto entries = files_.ListFolder(given_folder_);
  if (given_folder_.Drive() == 0 || !entries) return text;
  std::vector<std::string> sets;
  for (const FolderEntry& entry : *entries) {
    if (!entry.is_folder && MatchesPattern(entry.name, "*.zip")) {
      sets.push_back(entry.name.substr(0, entry.name.size() - kArchive.size()));
    }
  }
  const std::vector<std::string> near = NearNames(rom_, sets);
  for (const std::string& set : near) {
    text += (&set == &near.front() ? "\rThere is " : ", ") + set + ".zip";
  }
  return text;
}

std::string OneLaunch::TitleOr(std::string_view title) const {
  return title.empty() ? ProgramTitle() : std::string(title);
}

bool OneLaunch::IsGiven(const std::string& rom) const {
  const std::optional<FileName> archive = ArchiveOf(rom);
  return archive && given_folder_.Drive() != 0 && files_.FileExists(given_folder_ / *archive);
}

bool OneLaunch::StandsInOwnFolder(const std::string& rom) const {
  const std::optional<FileName> archive = ArchiveOf(rom);
  return archive && files_.FileExists(own_rom_folder_ / *archive);
}

}  // namespace

LaunchEnd Launch(const Emulator& emulator, const LaunchRequest& request, const LaunchCalls& calls,
                 const LaunchTools& tools) {
  OneLaunch launch(emulator, request, calls, tools);
  const LaunchEnd end = launch.Run();
  std::vector<std::string> told = launch.Settle();  // the files are gone when the box comes up
  for (std::string& stays : told)
    stays.insert(0, "This file was made for the run and can't be removed: ");
  if (end == LaunchEnd::kFailed) told.insert(told.begin(), launch.Failure());
  std::string text;
  for (const std::string& line : told) {
    if (!text.empty()) text += '\r';
    text += line;
  }
  if (!text.empty()) tools.boxes.Warn(ProgramTitle(), text);
  return end;
}

}  // namespace zarvo

#include "bridge/real_games.h"

#include <sys/stat.h>

#include <array>
#include <vector>

#include "core/catalogue/catalogue.h"
#include "core/panel/cfg_file.h"
#include "core/platform/dos_path.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

// Games of MAME that are circuits without a rom.
constexpr std::array<std::string_view, 4> kNeedNoRom = {"breakout", "pong", "pongd", "rebound"};

// An archive without a file in it.
constexpr std::string_view kEmptyArchive("PK\5\6\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0", 22);

class OneEmulator {
 public:
  OneEmulator(DosWorld& files, const ProgramFolders& folders, const RealGames& real,
              const Emulator& emulator)
      : files_(files),
        folders_(folders),
        real_(real),
        emulator_(emulator),
        program_(emulator.start.exe_path),
        folder_(program_.Folder()),
        mark_(folder_.Text() + ".$$$"),
        roms_(emulator.start.rom_path),
        snaps_(emulator.start.snap_path) {}

  Status Make();

 private:
  // With all folders above it.
  Status MakeFolder(const DosPath& folder);
  Status MakeProgram();
  Status MakeSettings();
  Status MakeConfiguration(const std::vector<std::string>& favourites);
  // The names of the games that can be played; each gets its archive.
  Result<std::vector<std::string>> MakeArchives();

  DosWorld& files_;
  const ProgramFolders& folders_;
  const RealGames& real_;
  const Emulator& emulator_;
  DosPath program_;
  DosPath folder_;
  DosPath mark_;  // a file that stands beside the folder until all is made
  DosPath roms_;
  DosPath snaps_;
};

Status OneEmulator::Make() {
  if (files_.FolderExists(folder_) && !files_.FileExists(mark_)) return Success();
  if (Status made = MakeFolder(folder_.Folder()); !made) return made;
  if (Status made = files_.WriteFile(mark_, ""); !made) return made;
  for (const DosPath& folder : {folder_, roms_, snaps_, folder_ / "INP"}) {
    if (Status made = MakeFolder(folder); !made) return made;
  }
  if (Status made = MakeSettings(); !made) return made;
  const auto games = MakeArchives();
  if (!games) return games.error();
  if (Status made = MakeProgram(); !made) return made;
  if (!files_.FileExists(folders_.CfgFolder() / emulator_.CfgFile())) {
    if (Status made = MakeConfiguration(*games); !made) return made;
  }
  real_.say(program_.Text() + " is today's MAME now; archives belong into " + roms_.Text());
  return files_.DeleteFile(mark_);
}

Status OneEmulator::MakeFolder(const DosPath& folder) {
  if (files_.FolderExists(folder)) return Success();
  const DosPath above = folder.Folder();
  if (above != folder) {
    if (Status made = MakeFolder(above); !made) return made;
  }
  return files_.MakeFolder(folder);
}

Status OneEmulator::MakeProgram() {
  const std::string text =
      "#!/bin/sh\nexec \"" + real_.bridge + "\" --as " + FoldCase(emulator_.word) + " -- \"$@\"\n";
  if (Status made = files_.WriteFile(program_, text); !made) return made;
  const auto host = files_.HostPath(program_);
  if (!host) return host.error();
  return chmod(host->c_str(), 0755) == 0 ? Success() : Status(Error{"It can't be made a program"});
}

Status OneEmulator::MakeSettings() {
  const auto roms = files_.HostPath(roms_);
  const auto snaps = files_.HostPath(snaps_);
  if (!roms) return roms.error();
  if (!snaps) return snaps.error();
  // Of two lines for one option the later one counts, so that what the computer has stays in front.
  std::string others = "$HOME/mame/roms;/usr/local/share/games/mame/roms";
  const std::string text = real_.mame_ini +
                           "\n#\n# Zarvo: archives from its own folder and MAME's, snapshots where "
                           "Zarvo looks for them.\n# What you change below stays.\n#\nrompath \"" +
                           roms->native() + ";" + others + "\"\nsnapshot_directory \"" +
                           snaps->native() + "\"\nsnapname %g\nskip_gameinfo 1\n";
  return files_.WriteFile(folder_ / "mame.ini", text);
}

Result<std::vector<std::string>> OneEmulator::MakeArchives() {
  std::vector<std::string> names;
  auto records = RecordReader::Open(files_, folders_.DataFolder(), emulator_);
  if (!records) return names;  // a list may come later
  std::vector<std::pair<std::string, std::string>> found;
  std::string_view line;
  while (records->Next(line)) {
    const auto name = CutField(line);
    const auto rom = CutField(line);
    if (!rom) continue;
    for (const std::string_view known : kNeedNoRom) {
      if (*rom == known) found.emplace_back(*name, known);
    }
  }
  for (const auto& [name, rom] : found) {
    const DosPath archive = roms_ / FileName::Own(rom).With(".zip");
    if (Status made = files_.WriteFile(archive, kEmptyArchive); !made) return made.error();
    names.push_back(name);
  }
  return names;
}

Status OneEmulator::MakeConfiguration(const std::vector<std::string>& favourites) {
  if (Status made = MakeFolder(folders_.CfgFolder()); !made) return made;
  return CfgFile(files_, folders_, emulator_)
      .Write({.exe_path = program_.Text(),
              .rom_path = roms_.Text(),
              .snap_path = snaps_.Text(),
              .snap_format = "GIF",
              .emulator_folder = folder_.Text(),
              .layout_word = "up",
              .favourites = {favourites.rbegin(), favourites.rend()}});
}

}  // namespace

bool LayOutRealGames(DosWorld& files, const ProgramFolders& folders, const RealGames& real) {
  bool all = true;
  for (const Emulator& emulator : Emulators()) {
    const Status made = OneEmulator(files, folders, real, emulator).Make();
    if (made) continue;
    real.say(std::string(emulator.word) + ": " + made.error().message);
    all = false;
  }
  return all;
}

}  // namespace zarvo

// The DOS world on this host: drives are folders, and names match in any case of letters.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/dos_files.h"

namespace zarvo {

class DosWorld : public DosFiles {
 public:
  // Drive letter (upper case) to absolute host folder.
  using DriveTable = std::map<char, std::filesystem::path>;

  // The drives of a program started in the host folder `program_folder`: those of `drives.ini`
  // there, or, without that file, C for the folder above and H for "/". The current drive and
  // folder are those of `program_folder`. Fails with a sentence for the player that names the line
  // of `drives.ini` that isn't understood, or if no drive reaches `program_folder`.
  static Result<DosWorld> ForProgramFolder(const std::filesystem::path& program_folder);

  // Lines "C = folder", absolute, relative to `program_folder`, or with "~" for the player's home
  // folder; ";" begins a comment. A drive whose folder isn't there gets a sentence in `missing`: it
  // may be a disc that comes later.
  static Result<DriveTable> ParseDrives(std::string_view text,
                                        const std::filesystem::path& program_folder,
                                        std::vector<std::string>& missing);

  explicit DosWorld(DriveTable drives);

  // The DOS path of a host path, told by the drive with the longest matching folder; fails if no
  // drive holds it or a component can't be said in Windows-1252.
  [[nodiscard]] Result<DosPath> DosPathOf(const std::filesystem::path& host_path) const;

  // The host folder of a drive.
  [[nodiscard]] Result<std::filesystem::path> DriveFolder(char letter) const;

  // What the player should know of drives whose folders aren't there, a line each; mostly empty.
  [[nodiscard]] const std::string& MissingFolders() const { return missing_folders_; }

  Status ChangeDrive(char letter) override;
  Status ChangeFolder(const DosPath& path) override;
  [[nodiscard]] DosPath CurrentFolder() const override;
  [[nodiscard]] std::vector<char> Drives() const override;
  [[nodiscard]] bool FileExists(const DosPath& path) const override;
  [[nodiscard]] bool FolderExists(const DosPath& path) const override;
  [[nodiscard]] Result<std::vector<FolderEntry>> ListFolder(const DosPath& path) const override;
  [[nodiscard]] Result<std::unique_ptr<ByteSource>> Open(const DosPath& path) const override;
  Status WriteFile(const DosPath& path, std::string_view bytes) override;
  Status ReplaceFile(const DosPath& path, const DosPath& temporary,
                     std::string_view bytes) override;
  Status CopyFile(const DosPath& from, const DosPath& to) override;
  Status RenameFile(const DosPath& from, const DosPath& to) override;
  Status DeleteFile(const DosPath& path) override;
  [[nodiscard]] Result<std::string> Identity(const DosPath& path) const override;
  Status MakeFolder(const DosPath& path) override;
  [[nodiscard]] Result<std::filesystem::path> HostPath(const DosPath& path) const override;

 private:
  // A full path "C:\a\b" with the spelling given, relative parts taken from the current folders.
  [[nodiscard]] DosPath FullPath(const DosPath& path) const;

  DriveTable drives_;
  std::string missing_folders_;
  std::map<char, DosPath> folders_;  // the current folder of each drive, full path
  char drive_ = 'C';
};

}  // namespace zarvo

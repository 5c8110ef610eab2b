// The DOS world on this host: drives are folders, and names match in any case of letters.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/dos_files.h"

namespace zarvo {

class DosWorld : public DosFiles {
 public:
  // Drive letter (upper case) to absolute host folder.
  using DriveTable = std::map<char, std::string>;

  // The drives of a program started in the host folder `program_folder`: those of `drives.ini`
  // there, or, without that file, C for the folder above and H for "/". The current drive and
  // folder are those of `program_folder`. Fails with a sentence for the player that names the line
  // of `drives.ini` that isn't understood, or if no drive reaches `program_folder`.
  static Result<DosWorld> ForProgramFolder(const std::string& program_folder);

  // Lines "C = folder", absolute, relative to `program_folder`, or with "~" for the player's home
  // folder; ";" begins a comment. A drive whose folder isn't there gets a sentence in `missing`: it
  // may be a disc that comes later.
  static Result<DriveTable> ParseDrives(std::string_view text, const std::string& program_folder,
                                        std::vector<std::string>& missing);

  explicit DosWorld(DriveTable drives);

  // The DOS path of a host path, told by the drive with the longest matching folder; fails if no
  // drive holds it or a component can't be said in Windows-1252.
  [[nodiscard]] Result<std::string> DosPathOf(const std::string& host_path) const;

  // The host folder of a drive.
  [[nodiscard]] Result<std::string> DriveFolder(char letter) const;

  // What the player should know of drives whose folders aren't there, a line each; mostly empty.
  [[nodiscard]] const std::string& MissingFolders() const { return missing_folders_; }

  Status ChangeDrive(char letter) override;
  Status ChangeFolder(std::string_view path) override;
  [[nodiscard]] std::string CurrentFolder() const override;
  [[nodiscard]] std::vector<char> Drives() const override;
  [[nodiscard]] bool FileExists(std::string_view path) const override;
  [[nodiscard]] bool FolderExists(std::string_view path) const override;
  [[nodiscard]] Result<std::vector<FolderEntry>> ListFolder(std::string_view path) const override;
  [[nodiscard]] Result<std::unique_ptr<ByteSource>> Open(std::string_view path) const override;
  Status WriteFile(std::string_view path, std::string_view bytes) override;
  Status ReplaceFile(std::string_view path, std::string_view temporary,
                     std::string_view bytes) override;
  Status CopyFile(std::string_view from, std::string_view to) override;
  Status RenameFile(std::string_view from, std::string_view to) override;
  Status DeleteFile(std::string_view path) override;
  [[nodiscard]] Result<std::string> Identity(std::string_view path) const override;
  Status MakeFolder(std::string_view path) override;
  [[nodiscard]] Result<std::string> HostPath(std::string_view path) const override;

 private:
  // A full path "C:\a\b" with the spelling given, relative parts taken from the current folders.
  [[nodiscard]] std::string FullPath(std::string_view path) const;

  DriveTable drives_;
  std::string missing_folders_;
  std::map<char, std::string> folders_;  // the current folder of each drive, full path
  char drive_ = 'C';
};

}  // namespace zarvo

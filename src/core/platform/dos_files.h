// The files of the DOS world, as every routine of the program reaches them.
//
// A path is full, "C:\Zarvo\cfg\Mame.cfg", or a bare name in the current folder of the current
// drive. Names match without regard to case in every component. This is a
// seam: DosWorld serves it from folders of the host, tests make single steps of it fail.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/platform/dos_path.h"
#include "core/platform/result.h"

namespace zarvo {

// The bytes of an open file, from its start to its end.
class ByteSource {
 public:
  virtual ~ByteSource() = default;
  // Reads up to `size` bytes to `buffer`; 0 at the end of the file and after a read error.
  virtual std::size_t Read(char* buffer, std::size_t size) = 0;
  // True after a read error: what was read isn't the whole file.
  [[nodiscard]] virtual bool Failed() const { return false; }
  // In bytes when it was opened; 0 if that isn't known.
  [[nodiscard]] virtual std::uint64_t Size() const { return 0; }
};

struct FolderEntry {
  std::string name;  // as the host spells it, in Windows-1252
  bool is_folder = false;
};

class DosFiles {
 public:
  virtual ~DosFiles() = default;

  // The drive that paths without a letter mean. Fails if no drive has the letter.
  virtual Status ChangeDrive(char letter) = 0;
  // The current folder of the drive that `path` names, or of the current drive. Every drive keeps
  // its own current folder, and changing it doesn't change the current drive.
  virtual Status ChangeFolder(const DosPath& path) = 0;
  // Full path of the current folder of the current drive, "C:\" or "C:\Zarvo".
  [[nodiscard]] virtual DosPath CurrentFolder() const = 0;
  // The letters of all drives in alphabetical order, upper case.
  [[nodiscard]] virtual std::vector<char> Drives() const = 0;

  // True for a plain file, also behind a link; false for folders.
  [[nodiscard]] virtual bool FileExists(const DosPath& path) const = 0;
  [[nodiscard]] virtual bool FolderExists(const DosPath& path) const = 0;
  // The files and folders in it, in no order, without "." and "..". Names that a path can't say (a
  // character outside Windows-1252, or no FileName) aren't listed. "" is the current folder.
  [[nodiscard]] virtual Result<std::vector<FolderEntry>> ListFolder(const DosPath& path) const = 0;

  // Plain files alone. The error tells if there is no such file; a link that leads nowhere is there
  // and can't be read.
  [[nodiscard]] virtual Result<std::unique_ptr<ByteSource>> Open(const DosPath& path) const = 0;

  // All that write or delete refuse a file that the player made read-only.

  // Makes a file anew, for work files: one of this name, or a link, is removed first, so that
  // nothing is ever written through it. A file that couldn't be written whole is removed.
  virtual Status WriteFile(const DosPath& path, std::string_view bytes) = 0;
  // Gives `path` the new content or leaves it as it was: the bytes go to `temporary`, are flushed
  // to the disk and take the name in one rename. A file that couldn't be replaced keeps its old
  // content, and no temporary file stays behind. A link to a plain file stays, and that file is
  // replaced; what is or leads to anything else is refused.
  virtual Status ReplaceFile(const DosPath& path, const DosPath& temporary,
                             std::string_view bytes) = 0;
  // Never overwrites: fails if `to` exists. A copy that breaks off is removed.
  virtual Status CopyFile(const DosPath& from, const DosPath& to) = 0;
  // Fails if `to` exists, but for the same file in other letters.
  virtual Status RenameFile(const DosPath& from, const DosPath& to) = 0;
  virtual Status DeleteFile(const DosPath& path) = 0;
  // A word that no other file of this computer has: it stays the same when the file is renamed, and
  // changes when the file is written or another one takes its place.
  [[nodiscard]] virtual Result<std::string> Identity(const DosPath& path) const = 0;
  // One folder; its parent must exist. An existing folder is no failure.
  virtual Status MakeFolder(const DosPath& path) = 0;

  // The host's path of a file or folder; a component that doesn't exist keeps
  // the spelling given. Fails if there is no such drive.
  [[nodiscard]] virtual Result<std::filesystem::path> HostPath(const DosPath& path) const = 0;
};

// The whole content of a file. Fails like Open, for a read error, and for a file of more than
// 64 MiB before it is read.
Result<std::string> ReadAll(const DosFiles& files, const DosPath& path);

}  // namespace zarvo

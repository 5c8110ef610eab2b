// The host's files behind the DOS world: descriptors that close themselves, and whole writes.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "core/platform/result.h"

namespace zarvo {

// The calls that put a file on the disk. Tests count them, make one fail or end the process there.
struct HostCalls {
  ssize_t (*write)(int, const void*, std::size_t);
  int (*fsync)(int);
  int (*rename)(const char*, const char*);
};
HostCalls& TheHostCalls();

// The reason for what the last call of the system refused ("No space left on device").
Error LastError();

// The same for one error number.
Error SystemError(int number);

class FileHandle {
 public:
  explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
  FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  FileHandle& operator=(FileHandle&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle();

  [[nodiscard]] bool ok() const { return descriptor_ >= 0; }
  [[nodiscard]] int get() const { return descriptor_; }
  // Some hosts tell only here that a write failed.
  Status Close();

 private:
  int descriptor_;
};

// The rights of a new file, before the player's own mask.
inline constexpr unsigned kNewFileMode = 0666;

// The kind and rights of a file, behind a link, or 0 with errno if it can't be told.
mode_t ModeOf(const std::filesystem::path& path);

// DOS refuses to write or delete a folder and a file without a write bit, also where the host would
// do it: root may write anything, and a rename asks only for the folder.
Status CheckWritable(const std::filesystem::path& path);

// Opens a plain file for reading; nothing else, since a pipe would never end.
Result<FileHandle> OpenPlainFile(const std::filesystem::path& path);

// Up to `size` bytes, 0 at the end of the file, -1 on an error.
long ReadSome(int descriptor, char* buffer, std::size_t size);

Status WriteAll(int descriptor, std::string_view bytes);

// Creates `path`, which must not exist, with the bytes, and flushes them to the disk if `flush`. A
// file that couldn't be written whole is removed.
Status CreateFile(const std::filesystem::path& path, std::string_view bytes, unsigned mode,
                  bool flush);

// Removes what has the name, if it is a plain file or a link, and creates the file with the bytes.
Status MakeFileAnew(const std::filesystem::path& path, std::string_view bytes);

// Gives `path` the bytes, or leaves it as it was: they go to `temporary`, are flushed to the disk
// and take the name in one rename. Where `path` is a link, the plain file that it leads to is
// replaced, and the temporary file stands beside that. Both paths are absolute.
Status ReplacePlainFile(const std::filesystem::path& path, const std::filesystem::path& temporary,
                        std::string_view bytes);

// Makes a rename in `folder` last.
void FlushFolder(const std::filesystem::path& folder);

}  // namespace zarvo

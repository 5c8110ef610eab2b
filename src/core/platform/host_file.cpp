#include "core/platform/host_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace zarvo {
namespace {

constexpr unsigned kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

bool IsLink(const std::filesystem::path& path) {
  struct stat state {};
  return lstat(path.c_str(), &state) == 0 && S_ISLNK(state.st_mode);
}

Error LeadsNowhere() { return Error{"It is a link that leads nowhere"}; }

// Where a link leads; other paths as they are.
Result<std::filesystem::path> BehindLinks(const std::filesystem::path& path) {
  if (!IsLink(path)) return path;
  const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.c_str(), nullptr),
                                                         &std::free);
  if (real == nullptr) return errno == ENOENT ? LeadsNowhere() : LastError();
  return std::filesystem::path(real.get());
}

// A name that is free from now on.
Status RemoveOld(const std::filesystem::path& path) {
  if (unlink(path.c_str()) != 0 && errno != ENOENT) return LastError();
  return Success();
}

}  // namespace

HostCalls& TheHostCalls() {
  static HostCalls calls = {.write = write, .fsync = fsync, .rename = std::rename};
  return calls;
}

// Not strerror: its words follow the language of the desktop and aren't in the program's code page.
Error SystemError(int number) {
  const char* const words = strerrordesc_np(number);
  return Error{words != nullptr ? words : "Unknown error", number == ENOENT};
}

Error LastError() { return SystemError(errno); }

FileHandle::~FileHandle() {
  if (ok()) close(descriptor_);
}

Status FileHandle::Close() {
  const int descriptor = std::exchange(descriptor_, -1);
  // The descriptor is gone also after EINTR.
  if (descriptor >= 0 && close(descriptor) != 0 && errno != EINTR) return LastError();
  return Success();
}

mode_t ModeOf(const std::filesystem::path& path) {
  struct stat state {};
  return stat(path.c_str(), &state) == 0 ? state.st_mode : 0;
}

Status CheckWritable(const std::filesystem::path& path) {
  const mode_t mode = ModeOf(path);
  if (mode == 0) return Success();
  if (S_ISDIR(mode)) return SystemError(EISDIR);
  if ((mode & kAnyWrite) == 0) return SystemError(EACCES);
  if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) return LastError();
  return Success();
}

Result<FileHandle> OpenPlainFile(const std::filesystem::path& path) {
  FileHandle file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (!file.ok() && errno == ENOENT && IsLink(path)) return LeadsNowhere();
  struct stat state {};
  if (!file.ok() || fstat(file.get(), &state) != 0) return LastError();
  if (S_ISDIR(state.st_mode)) return SystemError(EISDIR);
  if (!S_ISREG(state.st_mode)) return Error{"It isn't a plain file"};
  return file;
}

long ReadSome(int descriptor, char* buffer, std::size_t size) {
  ssize_t count = 0;
  do {
    count = read(descriptor, buffer, size);
  } while (count < 0 && errno == EINTR);
  return count;
}

Status WriteAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = TheHostCalls().write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return LastError();
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return Success();
}

Status CreateFile(const std::filesystem::path& path, std::string_view bytes, unsigned mode,
                  bool flush) {
  FileHandle file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (!file.ok()) return LastError();
  Status done = WriteAll(file.get(), bytes);
  if (done && flush && TheHostCalls().fsync(file.get()) != 0) done = LastError();
  if (done) done = file.Close();
  if (!done) unlink(path.c_str());
  return done;
}

Status MakeFileAnew(const std::filesystem::path& path, std::string_view bytes) {
  Status done = IsLink(path) ? Success() : CheckWritable(path);
  if (done) done = RemoveOld(path);
  return done ? CreateFile(path, bytes, kNewFileMode, false) : done;
}

Status ReplacePlainFile(const std::filesystem::path& path, const std::filesystem::path& temporary,
                        std::string_view bytes) {
  const auto target = BehindLinks(path);
  if (!target) return target.error();
  const std::filesystem::path fresh =
      *target == path ? temporary : target->parent_path() / temporary.filename();
  Status done = CheckWritable(*target);
  const mode_t old_mode = ModeOf(*target);
  if (done && old_mode != 0 && !S_ISREG(old_mode)) done = Error{"It isn't a plain file"};
  if (done) done = RemoveOld(fresh);
  if (done) done = CreateFile(fresh, bytes, kNewFileMode, true);
  if (!done) return done;
  if ((old_mode != 0 && chmod(fresh.c_str(), old_mode & 07777) != 0) ||
      TheHostCalls().rename(fresh.c_str(), target->c_str()) != 0) {
    const Error error = LastError();
    unlink(fresh.c_str());
    return error;
  }
  FlushFolder(target->parent_path());
  return done;
}

void FlushFolder(const std::filesystem::path& folder) {
  const FileHandle handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // Some file systems can't flush a folder; the rename has happened all the same.
  if (handle.ok()) TheHostCalls().fsync(handle.get());
}

}  // namespace zarvo

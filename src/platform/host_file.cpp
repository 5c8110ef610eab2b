#include "platform/host_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace zarvo {

// Not strerror: its words follow the language of the desktop and aren't in the program's code page.
Error SystemError(int number) {
  const char* const words = strerrordesc_np(number);
  return Error{words != nullptr ? words : "Unknown error"};
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

Result<FileHandle> OpenPlainFile(const std::string& path) {
  FileHandle file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat state {};
  if (!file.ok() || fstat(file.get(), &state) != 0) return LastError();
  if (S_ISDIR(state.st_mode)) return SystemError(EISDIR);
  if (!S_ISREG(state.st_mode)) return SystemError(EINVAL);
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
    const ssize_t count = write(descriptor, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return LastError();
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return Success();
}

Status CreateFile(const std::string& path, std::string_view bytes, unsigned mode, bool flush) {
  FileHandle file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (!file.ok()) return LastError();
  Status done = WriteAll(file.get(), bytes);
  if (done && flush && fsync(file.get()) != 0) done = LastError();
  if (done) done = file.Close();
  if (!done) unlink(path.c_str());
  return done;
}

void FlushFolder(const std::string& folder) {
  const FileHandle handle(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  // Some file systems can't flush a folder; the rename has happened all the same.
  if (handle.ok()) fsync(handle.get());
}

std::string HostFolder(const std::string& path) {
  const std::size_t last = path.rfind('/');
  return path.substr(0, last == 0 ? 1 : last);
}

std::string HostName(const std::string& path) { return path.substr(path.rfind('/') + 1); }

std::string JoinHostPath(const std::string& folder, std::string_view name) {
  std::string path = folder;
  if (!path.ends_with('/')) path += '/';
  path += name;
  return path;
}

}  // namespace zarvo

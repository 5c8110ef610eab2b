#include "core/platform/dos_world.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <functional>
#include <optional>
#include <utility>

#include "core/platform/dos_path.h"
#include "core/platform/host_file.h"
#include "core/platform/text.h"

namespace zarvo {
namespace {

class HostSource : public ByteSource {
 public:
  explicit HostSource(FileHandle file) : file_(std::move(file)) {}

  [[nodiscard]] std::uint64_t Size() const override {
    struct stat state {};
    return fstat(file_.get(), &state) == 0 ? static_cast<std::uint64_t>(state.st_size) : 0;
  }

  std::size_t Read(char* buffer, std::size_t size) override {
    const long count = ReadSome(file_.get(), buffer, size);
    failed_ = failed_ || count < 0;
    return count < 0 ? 0 : static_cast<std::size_t>(count);
  }
  [[nodiscard]] bool Failed() const override { return failed_; }

 private:
  FileHandle file_;
  bool failed_ = false;
};

// Also true for a link that leads nowhere: the name is taken.
bool IsTaken(const std::filesystem::path& host_path) {
  struct stat state {};
  return lstat(host_path.c_str(), &state) == 0;
}

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};

// Calls `visit` for each entry until it returns false. False if the folder can't be read.
bool WalkFolder(const std::filesystem::path& host_folder,
                const std::function<bool(const dirent&)>& visit) {
  const std::unique_ptr<DIR, CloseFolder> folder(opendir(host_folder.c_str()));
  if (folder == nullptr) return false;
  errno = 0;
  // Every call has its own folder stream, so the one thread that there is may use readdir.
  while (const dirent* entry = readdir(folder.get())) {  // NOLINT(concurrency-mt-unsafe)
    const std::string_view name = entry->d_name;
    if (name != "." && name != ".." && !visit(*entry)) return true;
    errno = 0;
  }
  return errno == 0;
}

// The host's spelling of a name that stands there in other letters. Of several the first in the
// order of bytes, so that the answer doesn't depend on the order of the folder. A folder that is
// closed to the player holds none; one that can't be read for another reason leaves it open.
Result<std::optional<std::string>> FindNoCase(const std::filesystem::path& host_folder,
                                              std::string_view name) {
  std::optional<std::string> found;
  const bool read = WalkFolder(host_folder, [&](const dirent& entry) {
    const auto said = FromUtf8(entry.d_name);
    if (said && EqualNoCase(*said, name) && (!found || *found > entry.d_name)) {
      found = entry.d_name;
    }
    return true;
  });
  if (!read && errno != ENOENT && errno != ENOTDIR && errno != EACCES) return LastError();
  return found;
}

Status CopyBytes(int from, int to) {
  constexpr std::size_t kChunk = std::size_t{256} * 1024;
  const auto buffer = std::make_unique_for_overwrite<char[]>(kChunk);
  for (;;) {
    const long count = ReadSome(from, buffer.get(), kChunk);
    if (count < 0) return LastError();
    if (count == 0) return Success();
    Status written = WriteAll(to, {buffer.get(), static_cast<std::size_t>(count)});
    if (!written) return written;
  }
}

Error NoDrive(char letter) { return Error{std::string("There is no drive ") + letter + ":"}; }

}  // namespace

DosWorld::DosWorld(DriveTable drives) : drives_(std::move(drives)) {
  for (const auto& [letter, folder] : drives_) folders_[letter] = DosPath::Root(letter);
  if (!drives_.empty() && !drives_.contains(drive_)) drive_ = drives_.begin()->first;
}

Result<std::filesystem::path> DosWorld::DriveFolder(char letter) const {
  const auto drive = drives_.find(letter);
  if (drive == drives_.end()) return NoDrive(letter);
  return drive->second;
}

DosPath DosWorld::FullPath(const DosPath& path) const {
  const char named = path.Drive();
  const char letter = named != 0 ? named : drive_;
  const std::string rest = path.Text().substr(named != 0 ? 2 : 0);
  const bool from_root = rest.starts_with('\\') || rest.starts_with('/');
  const auto folder = folders_.find(letter);
  std::string start;
  if (!from_root && folder != folders_.end()) start = folder->second.Text();

  DosPath full = DosPath::Root(letter);
  start.append("\\").append(rest);
  for (const std::string& component : DosPath(start).Components()) {
    full = full / FileName::Own(component);
  }
  return full;
}

Result<std::filesystem::path> DosWorld::HostPath(const DosPath& path) const {
  const DosPath full = FullPath(path);
  const auto drive = drives_.find(full.Drive());
  if (drive == drives_.end()) return NoDrive(full.Text().front());

  const std::vector<std::string> components = full.Components();
  std::filesystem::path exact = drive->second;
  for (const std::string& component : components) {
    if (!FileName::Of(component)) return Error{'"' + component + "\" can't be the name of a file"};
    exact /= ToUtf8(component);
  }
  if (IsTaken(exact)) return exact;

  std::filesystem::path host = drive->second;
  bool exists = true;
  for (const std::string& component : components) {
    std::filesystem::path next = host / ToUtf8(component);
    if (exists && !IsTaken(next)) {
      const auto spelling = FindNoCase(host, component);
      if (!spelling) return spelling.error();
      exists = spelling->has_value();
      if (exists) next = host / **spelling;
    }
    host = std::move(next);
  }
  return host;
}

Status DosWorld::ChangeDrive(char letter) {
  const auto upper = static_cast<char>(letter >= 'a' && letter <= 'z' ? letter - 0x20 : letter);
  if (!drives_.contains(upper)) return NoDrive(upper);
  drive_ = upper;
  return Success();
}

Status DosWorld::ChangeFolder(const DosPath& path) {
  const auto host = HostPath(path);
  if (!host) return host.error();
  const mode_t mode = ModeOf(*host);
  if (mode == 0) return LastError();
  if (!S_ISDIR(mode)) return SystemError(ENOTDIR);

  // With the host's spelling, so that later names are found at the first try.
  const char letter = FullPath(path).Drive();
  DosPath folder = DosPath::Root(letter);
  for (const std::filesystem::path& component : host->lexically_relative(drives_.at(letter))) {
    if (component == ".") continue;  // the drive's own folder
    folder = folder / FileName::Own(FromUtf8(component.native()).value_or(component));
  }
  folders_[letter] = folder;
  return Success();
}

DosPath DosWorld::CurrentFolder() const {
  const auto folder = folders_.find(drive_);
  return folder == folders_.end() ? DosPath() : folder->second;
}

std::vector<char> DosWorld::Drives() const {
  std::vector<char> letters;
  letters.reserve(drives_.size());
  for (const auto& [letter, folder] : drives_) letters.push_back(letter);
  return letters;
}

bool DosWorld::FileExists(const DosPath& path) const {
  const auto host = HostPath(path);
  return host && S_ISREG(ModeOf(*host));
}

bool DosWorld::FolderExists(const DosPath& path) const {
  const auto host = HostPath(path);
  return host && S_ISDIR(ModeOf(*host));
}

Result<std::vector<FolderEntry>> DosWorld::ListFolder(const DosPath& path) const {
  const auto host = HostPath(path);
  if (!host) return host.error();
  std::vector<FolderEntry> entries;
  const bool read = WalkFolder(*host, [&](const dirent& entry) {
    auto name = FromUtf8(entry.d_name);
    if (!name || !FileName::Of(*name)) return true;
    const bool known = entry.d_type == DT_REG || entry.d_type == DT_DIR;
    const mode_t mode = known ? DTTOIF(entry.d_type) : ModeOf(*host / entry.d_name);
    if (S_ISREG(mode) || S_ISDIR(mode)) entries.push_back({std::move(*name), S_ISDIR(mode)});
    return true;
  });
  if (!read) return LastError();
  return entries;
}

Result<std::unique_ptr<ByteSource>> DosWorld::Open(const DosPath& path) const {
  const auto host = HostPath(path);
  if (!host) return host.error();
  auto file = OpenPlainFile(*host);
  if (!file) return file.error();
  return std::unique_ptr<ByteSource>(std::make_unique<HostSource>(std::move(*file)));
}

Status DosWorld::WriteFile(const DosPath& path, std::string_view bytes) {
  const auto host = HostPath(path);
  if (!host) return host.error();
  return MakeFileAnew(*host, bytes);
}

Status DosWorld::ReplaceFile(const DosPath& path, const DosPath& temporary,
                             std::string_view bytes) {
  const auto host = HostPath(path);
  const auto beside = HostPath(temporary);
  if (!host) return host.error();
  if (!beside) return beside.error();
  return ReplacePlainFile(*host, *beside, bytes);
}

Status DosWorld::CopyFile(const DosPath& from, const DosPath& to) {
  const auto source = HostPath(from);
  const auto target = HostPath(to);
  if (!source) return source.error();
  if (!target) return target.error();
  auto original = OpenPlainFile(*source);
  if (!original) return original.error();
  // HostPath found a name in other letters, so this refuses those as well.
  FileHandle copy(open(target->c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode));
  if (!copy.ok()) return LastError();
  Status done = CopyBytes(original->get(), copy.get());
  if (done) done = copy.Close();
  if (!done) unlink(target->c_str());
  return done;
}

Status DosWorld::RenameFile(const DosPath& from, const DosPath& to) {
  const auto source = HostPath(from);
  const auto found = HostPath(to);
  if (!source) return source.error();
  if (!found) return found.error();
  if (*found != *source && IsTaken(*found)) return SystemError(EEXIST);
  const std::vector<std::string> components = FullPath(to).Components();
  if (components.empty()) return SystemError(EISDIR);
  const std::filesystem::path target = found->parent_path() / ToUtf8(components.back());
  if (std::rename(source->c_str(), target.c_str()) != 0) return LastError();
  FlushFolder(target.parent_path());
  return Success();
}

Status DosWorld::DeleteFile(const DosPath& path) {
  const auto host = HostPath(path);
  if (!host) return host.error();
  Status writable = CheckWritable(*host);
  if (!writable) return writable;
  return unlink(host->c_str()) == 0 ? Success() : Status(LastError());
}

Result<std::string> DosWorld::Identity(const DosPath& path) const {
  const auto host = HostPath(path);
  if (!host) return host.error();
  struct stat state {};
  if (lstat(host->c_str(), &state) != 0) return LastError();
  std::string word;
  for (const auto part :
       {static_cast<long long>(state.st_ino), static_cast<long long>(state.st_size),
        static_cast<long long>(state.st_mtim.tv_sec),
        static_cast<long long>(state.st_mtim.tv_nsec)}) {
    word += (word.empty() ? "" : "-") + std::to_string(part);
  }
  return word;
}

Status DosWorld::MakeFolder(const DosPath& path) {
  const auto host = HostPath(path);
  if (!host) return host.error();
  if (mkdir(host->c_str(), 0777) == 0) return Success();
  const Error error = LastError();
  return S_ISDIR(ModeOf(*host)) ? Success() : Status(error);
}

}  // namespace zarvo

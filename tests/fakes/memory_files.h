// DOS files in memory: for tests that make single steps fail, and for fuzzing.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/platform/dos_files.h"
#include "core/platform/text.h"
#include "fakes/memory_source.h"

namespace zarvo {

// Drives C and D. Folders are those of the files put there, and those made. A drive that becomes
// current begins in its root.
class MemoryFiles : public DosFiles {
 public:
  // Full path.
  void Put(std::string_view path, std::string bytes) { files_[Key(path)] = std::move(bytes); }
  void PutFolder(std::string_view path) { folders_.insert(Key(path)); }
  [[nodiscard]] bool Has(std::string_view path) const { return files_.contains(Key(path)); }
  [[nodiscard]] std::string BytesOf(std::string_view path) const {
    const auto found = files_.find(Key(path));
    return found == files_.end() ? "(no file)" : found->second;
  }

  bool fail_writes = false;
  std::string breaks_off;            // bare name of a file: half is read, then an error comes
  std::vector<std::string> written;  // full paths in the order of writing
  mutable std::vector<std::string> opened;  // the paths as they were given
  mutable int folders_listed = 0;

  Status ChangeDrive(char letter) override {
    const std::string drive = FoldCase(std::string{letter, ':'});
    if (drive != "c:" && drive != "d:") return Error{"No such drive"};
    if (!current_.starts_with(drive)) current_ = drive;
    return Success();
  }
  Status ChangeFolder(const DosPath& path) override {
    if (!FolderExists(path)) return Error{"No such folder", true};
    current_ = Key(path.Text());
    return Success();
  }
  [[nodiscard]] DosPath CurrentFolder() const override { return DosPath(current_); }
  [[nodiscard]] std::vector<char> Drives() const override { return {'C', 'D'}; }

  [[nodiscard]] bool FileExists(const DosPath& path) const override { return Has(path.Text()); }
  [[nodiscard]] bool FolderExists(const DosPath& path) const override {
    const std::string inside = Key(path.Text()) + '\\';
    const auto next = files_.lower_bound(inside);
    return folders_.contains(Key(path.Text())) ||
           (next != files_.end() && next->first.starts_with(inside));
  }
  [[nodiscard]] Result<std::vector<FolderEntry>> ListFolder(const DosPath& path) const override {
    ++folders_listed;
    if (!path.IsEmpty() && !FolderExists(path)) return Error{"No such folder"};
    const std::string inside = (path.IsEmpty() ? current_ : Key(path.Text())) + '\\';
    std::vector<FolderEntry> entries;
    for (const auto& [key, bytes] : files_) AddEntry(key, inside, false, entries);
    for (const std::string& key : folders_) AddEntry(key, inside, true, entries);
    return entries;
  }

  [[nodiscard]] Result<std::unique_ptr<ByteSource>> Open(const DosPath& path) const override {
    opened.emplace_back(path.Text());
    const auto found = files_.find(Key(path.Text()));
    if (found == files_.end()) return Error{"No such file", true};
    return std::unique_ptr<ByteSource>(
        std::make_unique<MemorySource>(found->second, path.Text() == breaks_off));
  }

  Status WriteFile(const DosPath& path, std::string_view bytes) override {
    if (fail_writes) return Error{"The disk is full"};
    written.push_back(Key(path.Text()));
    Put(path.Text(), std::string(bytes));
    return Success();
  }
  Status ReplaceFile(const DosPath& path, const DosPath& /*temporary*/,
                     std::string_view bytes) override {
    return WriteFile(path, bytes);
  }
  Status CopyFile(const DosPath& from, const DosPath& to) override {
    if (!Has(from.Text()) || Has(to.Text())) return Error{"Can't be copied"};
    return WriteFile(to, BytesOf(from.Text()));
  }
  Status RenameFile(const DosPath& from, const DosPath& to) override {
    const Status copied = CopyFile(from, to);
    return copied ? DeleteFile(from) : copied;
  }
  Status DeleteFile(const DosPath& path) override {
    return files_.erase(Key(path.Text())) == 1 ? Success() : Error{"No such file"};
  }
  [[nodiscard]] Result<std::string> Identity(const DosPath& path) const override {
    return Has(path.Text()) ? Result<std::string>(BytesOf(path.Text())) : Error{"No such file"};
  }
  Status MakeFolder(const DosPath& path) override {
    PutFolder(path.Text());
    return Success();
  }
  [[nodiscard]] Result<std::filesystem::path> HostPath(const DosPath& /*path*/) const override {
    return Error{"Not on a host"};
  }

 private:
  // The full path in lower case, without a backslash at its end.
  [[nodiscard]] std::string Key(std::string_view path) const {
    const bool full = path.size() > 1 && path[1] == ':';
    std::string key = FoldCase(full ? std::string(path) : current_ + '\\' + std::string(path));
    while (key.ends_with('\\')) key.pop_back();
    return key;
  }

  static void AddEntry(std::string_view key, std::string_view inside, bool is_folder,
                       std::vector<FolderEntry>& entries) {
    if (!key.starts_with(inside)) return;
    const std::string_view name = key.substr(inside.size());
    if (name.find('\\') != std::string_view::npos) return;
    entries.push_back({.name = std::string(name), .is_folder = is_folder});
  }

  std::map<std::string, std::string> files_;
  std::set<std::string> folders_;
  std::string current_ = "c:";
};

}  // namespace zarvo

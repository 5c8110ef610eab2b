// A DOS world in which chosen steps fail, as on a full or a read-only disk.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/dos_path.h"
#include "platform/dos_world.h"
#include "platform/text.h"

namespace zarvo {

enum class FileStep {
  kOpen,
  kRead,  // the file opens, but breaks off half way
  kWrite,
  kReplace,
  kBreakOffReplace,  // half of the new text stays in the temporary file, as after a power cut
  kCopy,
  kRename,
  kDelete,
  kMakeFolder,
  kListFolder,
  kChangeFolder,
  kChangeDrive,
};

class FailingFiles : public DosWorld {
 public:
  // Starts with the drives and the current folders of `world`.
  explicit FailingFiles(const DosWorld& world) : DosWorld(world) {}

  // From now on `step` fails for files and folders of this name (the last component, without
  // regard to case; the target of a copy or rename; the letter of a drive; "" for all). The first
  // `succeed_first` of such steps still succeed.
  void Fail(FileStep step, std::string_view name,
            std::string_view reason = "No space left on device", int succeed_first = 0) {
    failures_.push_back({step, std::string(name), std::string(reason), succeed_first});
  }
  // Everything works again.
  void Heal() { failures_.clear(); }

  Status ChangeDrive(char letter) override {
    if (const auto* hit = Hit(FileStep::kChangeDrive, std::string(1, letter))) return Why(*hit);
    return DosWorld::ChangeDrive(letter);
  }
  Status ChangeFolder(std::string_view path) override {
    if (const auto* hit = Hit(FileStep::kChangeFolder, path)) return Why(*hit);
    return DosWorld::ChangeFolder(path);
  }
  [[nodiscard]] Result<std::vector<FolderEntry>> ListFolder(std::string_view path) const override {
    if (const auto* hit = Hit(FileStep::kListFolder, path)) return Why(*hit);
    return DosWorld::ListFolder(path);
  }
  [[nodiscard]] Result<std::unique_ptr<ByteSource>> Open(std::string_view path) const override {
    if (const auto* hit = Hit(FileStep::kOpen, path)) return Why(*hit);
    if (Hit(FileStep::kRead, path) == nullptr) return DosWorld::Open(path);
    const auto whole = ReadAll(static_cast<const DosWorld&>(DosWorld(*this)), path);
    if (!whole) return whole.error();
    return std::unique_ptr<ByteSource>(
        std::make_unique<BrokenSource>(whole->substr(0, whole->size() / 2)));
  }
  Status WriteFile(std::string_view path, std::string_view bytes) override {
    if (const auto* hit = Hit(FileStep::kWrite, path)) return Why(*hit);
    return DosWorld::WriteFile(path, bytes);
  }
  Status ReplaceFile(std::string_view path, std::string_view temporary,
                     std::string_view bytes) override {
    if (const auto* hit = Hit(FileStep::kReplace, path)) return Why(*hit);
    if (const auto* hit = Hit(FileStep::kBreakOffReplace, path)) {
      Ignore(DosWorld::WriteFile(temporary, bytes.substr(0, bytes.size() / 2)));
      return Why(*hit);
    }
    return DosWorld::ReplaceFile(path, temporary, bytes);
  }
  Status CopyFile(std::string_view from, std::string_view to) override {
    if (const auto* hit = Hit(FileStep::kCopy, to)) return Why(*hit);
    return DosWorld::CopyFile(from, to);
  }
  Status RenameFile(std::string_view from, std::string_view to) override {
    if (const auto* hit = Hit(FileStep::kRename, to)) return Why(*hit);
    return DosWorld::RenameFile(from, to);
  }
  Status DeleteFile(std::string_view path) override {
    if (const auto* hit = Hit(FileStep::kDelete, path)) return Why(*hit);
    return DosWorld::DeleteFile(path);
  }
  Status MakeFolder(std::string_view path) override {
    if (const auto* hit = Hit(FileStep::kMakeFolder, path)) return Why(*hit);
    return DosWorld::MakeFolder(path);
  }

 private:
  struct Failure {
    FileStep step;
    std::string name;
    std::string reason;
    int succeed_first;
  };

  class BrokenSource : public ByteSource {
   public:
    explicit BrokenSource(std::string bytes) : bytes_(std::move(bytes)) {}
    std::size_t Read(char* buffer, std::size_t size) override {
      const std::size_t count = bytes_.copy(buffer, size);
      bytes_.erase(0, count);
      return count;
    }
    [[nodiscard]] bool Failed() const override { return bytes_.empty(); }

   private:
    std::string bytes_;
  };

  static Error Why(const Failure& failure) { return Error{failure.reason}; }

  const Failure* Hit(FileStep step, std::string_view path) const {
    for (Failure& failure : failures_) {
      const bool meant = failure.name.empty() || EqualNoCase(failure.name, FileName(path));
      if (failure.step != step || !meant) continue;
      if (failure.succeed_first > 0) {
        --failure.succeed_first;
        continue;
      }
      return &failure;
    }
    return nullptr;
  }

  mutable std::vector<Failure> failures_;
};

}  // namespace zarvo

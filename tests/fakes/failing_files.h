// A DOS world in which chosen steps fail, as on a full or a read-only disk.
#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/platform/dos_path.h"
#include "core/platform/dos_world.h"
#include "core/platform/text.h"
#include "fakes/memory_source.h"

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
    return Try(FileStep::kChangeDrive, DosPath(std::string(1, letter)),
               [&] { return DosWorld::ChangeDrive(letter); });
  }
  Status ChangeFolder(const DosPath& path) override {
    return Try(FileStep::kChangeFolder, path, [&] { return DosWorld::ChangeFolder(path); });
  }
  [[nodiscard]] Result<std::vector<FolderEntry>> ListFolder(const DosPath& path) const override {
    return Try(FileStep::kListFolder, path, [&] { return DosWorld::ListFolder(path); });
  }
  [[nodiscard]] Result<std::unique_ptr<ByteSource>> Open(const DosPath& path) const override {
    return Try(FileStep::kOpen, path, [&]() -> Result<std::unique_ptr<ByteSource>> {
      if (Hit(FileStep::kRead, path) == nullptr) return DosWorld::Open(path);
      const auto whole = ReadAll(static_cast<const DosWorld&>(DosWorld(*this)), path);
      if (!whole) return whole.error();
      return std::unique_ptr<ByteSource>(std::make_unique<MemorySource>(*whole, true));
    });
  }
  Status WriteFile(const DosPath& path, std::string_view bytes) override {
    return Try(FileStep::kWrite, path, [&] { return DosWorld::WriteFile(path, bytes); });
  }
  Status ReplaceFile(const DosPath& path, const DosPath& temporary,
                     std::string_view bytes) override {
    return Try(FileStep::kReplace, path, [&]() -> Status {
      const Failure* const hit = Hit(FileStep::kBreakOffReplace, path);
      if (hit == nullptr) return DosWorld::ReplaceFile(path, temporary, bytes);
      Ignore(DosWorld::WriteFile(temporary, bytes.substr(0, bytes.size() / 2)));
      return Error{hit->reason};
    });
  }
  Status CopyFile(const DosPath& from, const DosPath& to) override {
    return Try(FileStep::kCopy, to, [&] { return DosWorld::CopyFile(from, to); });
  }
  Status RenameFile(const DosPath& from, const DosPath& to) override {
    return Try(FileStep::kRename, to, [&] { return DosWorld::RenameFile(from, to); });
  }
  Status DeleteFile(const DosPath& path) override {
    return Try(FileStep::kDelete, path, [&] { return DosWorld::DeleteFile(path); });
  }
  Status MakeFolder(const DosPath& path) override {
    return Try(FileStep::kMakeFolder, path, [&] { return DosWorld::MakeFolder(path); });
  }

 private:
  struct Failure {
    FileStep step;
    std::string name;
    std::string reason;
    int succeed_first;
  };

  const Failure* Hit(FileStep step, const DosPath& path) const {
    for (Failure& failure : failures_) {
      const bool meant = failure.name.empty() || EqualNoCase(failure.name, path.Name());
      if (failure.step == step && meant && --failure.succeed_first < 0) return &failure;
    }
    return nullptr;
  }
  template <typename Action>
  std::invoke_result_t<Action> Try(FileStep step, const DosPath& path, Action action) const {
    if (const Failure* const hit = Hit(step, path)) return Error{hit->reason};
    return action();
  }

  mutable std::vector<Failure> failures_;
};

}  // namespace zarvo

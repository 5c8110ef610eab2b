// A drive C for one test: a fresh folder of the host that goes away with the object.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/platform/dos_world.h"

namespace zarvo {

// Holds C:\Zarvo, C:\Zarvo\Data, C:\Zarvo\cfg and C:\Emu; C:\Zarvo is current.
class TempDrive {
 public:
  TempDrive() : root_(MakeRoot()), files_({{'C', root_}}) {
    for (const char* folder : {"Zarvo/Data", "Zarvo/cfg", "Emu"}) {
      std::filesystem::create_directories(root_ / folder);
    }
    Ignore(files_.ChangeFolder("C:\\Zarvo"));
  }
  ~TempDrive() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
  }
  TempDrive(const TempDrive&) = delete;
  TempDrive& operator=(const TempDrive&) = delete;

  // The one view of the drive that the code under test gets.
  DosWorld& files() { return files_; }
  // The host folder that is C:\.
  [[nodiscard]] const std::filesystem::path& root() const { return root_; }

  // These three leave the current folder of files() alone; relative names start in it. Write makes
  // the folders on the way.
  void Write(std::string_view dos_path, std::string_view bytes) {
    const std::filesystem::path host = Host(dos_path);
    std::filesystem::create_directories(host.parent_path());
    const Status written = files_.WriteFile(DosPath(dos_path), bytes);
    if (!written) throw std::runtime_error(written.error().message);
  }
  // Throws if there is no such file, so that no test takes a missing file for an empty one.
  [[nodiscard]] std::string Read(std::string_view dos_path) const {
    auto bytes = ReadAll(files_, DosPath(dos_path));
    if (!bytes) throw std::runtime_error(std::string(dos_path) + ": " + bytes.error().message);
    return *bytes;
  }
  // A file or a folder.
  [[nodiscard]] bool Exists(std::string_view dos_path) const {
    return files_.FileExists(DosPath(dos_path)) || files_.FolderExists(DosPath(dos_path));
  }
  void MakeFolder(std::string_view dos_path) const {
    std::filesystem::create_directories(Host(dos_path));
  }
  [[nodiscard]] std::filesystem::path Host(std::string_view dos_path) const {
    return files_.HostPath(DosPath(dos_path)).value();
  }

 private:
  static std::filesystem::path MakeRoot() {
    std::string name = (std::filesystem::temp_directory_path() / "zarvo-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for the test");
    return std::filesystem::canonical(name);
  }

  std::filesystem::path root_;
  DosWorld files_;
};

}  // namespace zarvo

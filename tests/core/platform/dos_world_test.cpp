#include "core/platform/dos_world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>

#include "fakes/failing_files.h"
#include "fakes/memory_files.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

void WriteHost(const fs::path& path, std::string_view bytes) { std::ofstream(path) << bytes; }

// Does a step while writes beyond a size fail, as on a full disk, and gives its message.
std::string OnFullDisk(rlim_t bytes, const std::function<Status()>& step) {
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit old{};
  getrlimit(RLIMIT_FSIZE, &old);
  const rlimit now = {bytes, old.rlim_max};
  setrlimit(RLIMIT_FSIZE, &now);
  const Status done = step();
  setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, handler);
  return done.error().message;
}

// A world whose files say that they hold a byte more than is read whole.
struct HugeFiles : DosWorld {
  struct Source : ByteSource {
    [[nodiscard]] std::uint64_t Size() const override { return (64 << 20) + 1; }
    std::size_t Read(char* /*buffer*/, std::size_t /*size*/) override {
      ADD_FAILURE() << "it is refused before it is read";
      return 0;
    }
  };
  using DosWorld::DosWorld;
  [[nodiscard]] Result<std::unique_ptr<ByteSource>> Open(const DosPath& /*path*/) const override {
    return std::unique_ptr<ByteSource>(std::make_unique<Source>());
  }
};

class DosWorldTest : public testing::Test {
 protected:
  // The names in a folder as DOS has them, a folder's with a backslash.
  std::set<std::string> List(const DosPath& path) {
    std::set<std::string> names;
    for (const FolderEntry& entry : files_.ListFolder(path).value()) {
      names.insert(entry.name + (entry.is_folder ? "\\" : ""));
    }
    return names;
  }
  // The names on the host, which tell what a test left behind.
  std::set<std::string> HostNames(std::string_view folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(root_ / folder)) {
      names.insert(entry.path().filename());
    }
    return names;
  }
  std::string Replace(const DosPath& path, const DosPath& temporary, std::string_view bytes) {
    const Status done = files_.ReplaceFile(path, temporary, bytes);
    return done ? "done" : done.error().message;
  }

  TempDrive drive_;
  DosWorld& files_ = drive_.files();
  const fs::path& root_ = drive_.root();
  const fs::path cfg_ = root_ / "Zarvo/cfg";
};

TEST_F(DosWorldTest, EveryDriveKeepsItsOwnFolder) {
  DosWorld world({{'C', root_}, {'D', drive_.Host("C:\\Emu")}});
  drive_.MakeFolder("C:\\Emu\\Mame\\roms");
  ASSERT_TRUE(world.ChangeFolder("c:\\zarvo\\DATA").ok());
  ASSERT_TRUE(world.ChangeFolder("D:mame").ok());
  EXPECT_EQ(world.CurrentFolder().Text(), "C:\\Zarvo\\Data")
      << "another drive's folder moved the drive";
  EXPECT_EQ(world.HostPath("D:x").value(), drive_.Host("C:\\Emu\\Mame\\x"));
  EXPECT_EQ(world.HostPath("D:\\x").value(), drive_.Host("C:\\Emu\\x"));

  ASSERT_TRUE(world.ChangeDrive('d').ok());
  ASSERT_TRUE(world.ChangeFolder("roms").ok());
  EXPECT_EQ(world.CurrentFolder().Text(), "D:\\Mame\\roms");
  ASSERT_TRUE(world.ChangeFolder("..\\..").ok());
  EXPECT_EQ(world.CurrentFolder().Text(), "D:\\");
  EXPECT_EQ(world.HostPath("C:x").value(), drive_.Host("C:\\Zarvo\\Data\\x"));
}

TEST_F(DosWorldTest, AChangeThatFailsChangesNothing) {
  drive_.Write("C:\\Zarvo\\file", "");
  for (const char* path : {"file", "nowhere", "Q:\\", "Data\\nowhere", "D*"}) {
    EXPECT_FALSE(files_.ChangeFolder(DosPath(path)).ok()) << path;
  }
  EXPECT_EQ(files_.ChangeDrive('q').error().message, "There is no drive Q:");
  EXPECT_FALSE(files_.ChangeDrive('\0').ok());
  EXPECT_TRUE(files_.ChangeFolder("").ok());
  EXPECT_EQ(files_.CurrentFolder().Text(), "C:\\Zarvo");
}

TEST_F(DosWorldTest, NamesMatchInAnyCaseInEveryComponent) {
  fs::create_directories(root_ / "eMu/MÄME");
  fs::remove(root_ / "Emu");
  WriteHost(root_ / "eMu/MÄME/Größ.ZIP", "found");
  EXPECT_TRUE(files_.FolderExists("c:/emu/M\xC4ME/"));
  const std::string file = "C:\\EMU\\m\xE4me\\GR\xD6\xDF.zip";
  EXPECT_FALSE(files_.FolderExists(DosPath(file)));
  EXPECT_EQ(drive_.Read(file), "found");
  EXPECT_FALSE(files_.FileExists("C:\\emu\\m\xE4me\\gr\xF6ss.zip"));
  EXPECT_FALSE(files_.FileExists("C:\\emu\\m\xE4me")) << "a folder is no file";
  EXPECT_EQ(drive_.Host("C:\\EMU\\New\\File.TXT"), root_ / "eMu/New/File.TXT");

  WriteHost(root_ / "Zarvo/GAME.DAT", "upper");
  WriteHost(root_ / "Zarvo/game.dat", "lower");
  EXPECT_EQ(drive_.Read("game.dat"), "lower");
  EXPECT_EQ(drive_.Read("GAME.DAT"), "upper");
  EXPECT_EQ(drive_.Read("Game.dat"), "upper") << "the first in the order of bytes";
}

TEST_F(DosWorldTest, NoPathLeavesItsDrive) {
  TempDrive outside;
  outside.Write("C:\\secret", "");
  const std::string up = "..\\..\\..\\..\\..\\..\\..\\..";
  const std::string secret = outside.root().string() + "/secret";
  EXPECT_FALSE(files_.FileExists(DosPath("C:\\" + up + secret)));
  EXPECT_FALSE(files_.FileExists(DosPath("C:\\Emu/../../../../../../../../.." + secret)));
  EXPECT_EQ(drive_.Host("C:\\" + up), root_);
  // The host would end such a name at the zero, and climb.
  EXPECT_FALSE(files_.HostPath(DosPath(std::string_view("C:\\..\0x", 7))).ok());
}

TEST_F(DosWorldTest, WhatAPathCannotSayIsNeitherListedNorMade) {
  const fs::path data = root_ / "Zarvo/Data";
  for (const char* name :
       {"plain.dat", "caf\xC3\xA9", "ゲーム", "raw\xE9", "a\\b", "a:b", "a*b", "line\nbreak"}) {
    WriteHost(data / name, "");
  }
  fs::create_directory(data / "folder");
  fs::create_symlink("plain.dat", data / "link");
  fs::create_directory_symlink("folder", data / "way");
  fs::create_symlink("nothing", data / "dead");
  mkfifo((data / "pipe").c_str(), 0600);
  EXPECT_THAT(List("Data"), ElementsAre("caf\xE9", "folder\\", "link", "plain.dat", "way\\"));
  EXPECT_THAT(List(""), ElementsAre("Data\\", "cfg\\")) << "the current folder";
  EXPECT_EQ(files_.ListFolder("Data\\Link").error().message, "Not a directory");
  EXPECT_EQ(files_.ListFolder("nowhere").error().message, "No such file or directory");
  EXPECT_FALSE(files_.WriteFile("Data\\a?b", "").ok());
  EXPECT_FALSE(files_.FileExists("Data\\*.dat"));
  EXPECT_FALSE(files_.FileExists("Data\\pipe"));
  EXPECT_FALSE(files_.Open("Data\\pipe").ok()) << "reading a pipe would never end";
}

TEST_F(DosWorldTest, EveryByteIsWrittenAndReadOrTheReasonSaid) {
  for (const std::size_t size : {300000, 65537, 65536, 65535, 1, 0}) {
    std::string bytes;
    for (std::size_t at = 0; at < size; ++at) bytes += static_cast<char>(at * 7 % 256);
    ASSERT_TRUE(files_.WriteFile("FILE", bytes).ok());
    EXPECT_EQ(ReadAll(files_, "file").value(), bytes) << size;
  }
  EXPECT_FALSE(files_.WriteFile("no\\folder", "x").ok());
  EXPECT_FALSE(files_.WriteFile("Data", "x").ok());
  EXPECT_EQ(ReadAll(files_, "nofile").error().message, "No such file or directory");
  EXPECT_EQ(ReadAll(files_, "Data").error().message, "Is a directory");
  fs::resize_file(root_ / "Zarvo/FILE", std::uintmax_t{2} << 30);
  EXPECT_EQ(ReadAll(files_, "FILE").error().message, "The file is larger than 64 MiB");
  EXPECT_FALSE(ReadAll(HugeFiles({{'C', root_}}), "file").ok());
  MemoryFiles growing;  // which doesn't tell how large a file is
  growing.Put("C:\\file", std::string((64 << 20) + 1, 'x'));
  EXPECT_EQ(ReadAll(growing, "C:\\file").error().message, "The file is larger than 64 MiB");
  FailingFiles torn(files_);
  torn.Fail(FileStep::kRead, "file");
  EXPECT_FALSE(ReadAll(torn, "file").ok()) << "half a store must not pass for the whole";
}

TEST_F(DosWorldTest, ReplaceFileKeepsTheHostsNameModeAndLink) {
  WriteHost(cfg_ / "MAME.CFG", "old");
  fs::permissions(cfg_ / "MAME.CFG", fs::perms(0640));
  drive_.Write("cfg\\MAME.TMP", "a leftover that is longer than the new text");
  EXPECT_EQ(Replace("cfg\\Mame.cfg", "cfg\\Mame.tmp", "new"), "done");
  EXPECT_THAT(HostNames("Zarvo/cfg"), ElementsAre("MAME.CFG"));
  EXPECT_EQ(drive_.Read("cfg\\mame.cfg"), "new");
  EXPECT_EQ(fs::status(cfg_ / "MAME.CFG").permissions(), fs::perms(0640));

  WriteHost(root_ / "Emu/real.set", "old");
  fs::create_symlink("../../Emu/real.set", cfg_ / "Mame.set");
  EXPECT_EQ(Replace("cfg\\Mame.set", "cfg\\Mameset.tmp", "new"), "done");
  EXPECT_TRUE(fs::is_symlink(cfg_ / "Mame.set"));
  EXPECT_EQ(drive_.Read("C:\\Emu\\real.set"), "new");
  EXPECT_THAT(HostNames("Emu"), ElementsAre("real.set"));
}

TEST_F(DosWorldTest, AReplacementThatFailsKeepsTheOldFileAndNoTemporaryOne) {
  const DosPath cfg = "cfg\\Mame.cfg";
  drive_.Write(cfg.Text(), "old");
  const std::string text(5000, 'n');
  EXPECT_EQ(OnFullDisk(1000, [&] { return files_.ReplaceFile(cfg, "cfg\\Mame.tmp", text); }),
            "File too large");
  EXPECT_EQ(Replace(cfg, "nowhere\\Mame.tmp", text), "No such file or directory");
  EXPECT_EQ(Replace(cfg, "Data", text), "Is a directory");
  drive_.MakeFolder("cfg\\Raine.cfg");
  EXPECT_EQ(Replace("cfg\\Raine.cfg", "cfg\\Raine.tmp", text), "Is a directory");
  EXPECT_THAT(List("cfg"), ElementsAre("Mame.cfg", "Raine.cfg\\"));
  EXPECT_EQ(drive_.Read(cfg.Text()), "old");
}

TEST_F(DosWorldTest, NothingIsWrittenThroughALink) {
  WriteHost(root_ / "outside", "mine");
  for (const char* target : {"../outside", "nowhere", "/dev/full", "Data"}) {
    fs::remove(root_ / "Zarvo/work.tmp");
    fs::create_symlink(target, root_ / "Zarvo/work.tmp");
    EXPECT_TRUE(files_.WriteFile("work.tmp", "work").ok()) << target;
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(root_ / "Zarvo/work.tmp"))) << target;
    EXPECT_EQ(drive_.Read("work.tmp"), "work");

    fs::remove(root_ / "Zarvo/Mame.tmp");
    fs::create_symlink(target, root_ / "Zarvo/Mame.tmp");
    EXPECT_EQ(Replace("work.tmp", "Mame.tmp", "new"), "done") << target;
  }
  EXPECT_EQ(drive_.Read("C:\\outside"), "mine");
  EXPECT_EQ(OnFullDisk(1000, [&] { return files_.WriteFile("part", std::string(5000, 'n')); }),
            "File too large");
  EXPECT_FALSE(drive_.Exists("part"));
}

TEST_F(DosWorldTest, AStoreThatLeadsToNoPlainFileIsRefused) {
  mkfifo((root_ / "pipe").c_str(), 0600);
  const std::pair<const char*, const char*> rows[] = {
      {"/dev/null", "It isn't a plain file"},
      {"../pipe", "It isn't a plain file"},
      {"Data", "Is a directory"},
      {"nowhere", "It is a link that leads nowhere"}};
  for (const auto& [target, reason] : rows) {
    fs::create_symlink(target, root_ / "Zarvo/store");
    EXPECT_EQ(Replace("store", "store.tmp", "new"), reason);
    EXPECT_EQ(ReadAll(files_, "store").error().message, reason);
    EXPECT_EQ(fs::read_symlink(root_ / "Zarvo/store"), target);
    fs::remove(root_ / "Zarvo/store");
  }
  mkfifo((root_ / "Zarvo/store").c_str(), 0600);
  EXPECT_EQ(Replace("store", "store.tmp", "new"), "It isn't a plain file");
  EXPECT_TRUE(fs::is_fifo(root_ / "Zarvo/store"));
}

TEST_F(DosWorldTest, ReadOnlyFilesAreNeitherReplacedNorWrittenNorDeleted) {
  drive_.Write("cfg\\Mame.cfg", "mine");
  fs::permissions(drive_.Host("cfg\\Mame.cfg"), fs::perms(0444));
  const std::string denied = "Permission denied";
  EXPECT_EQ(Replace("cfg\\mame.cfg", "cfg\\m.tmp", "x"), denied);
  EXPECT_EQ(files_.WriteFile("cfg\\mame.cfg", "x").error().message, denied);
  EXPECT_EQ(files_.DeleteFile("cfg\\mame.cfg").error().message, denied);
  EXPECT_EQ(drive_.Read("cfg\\Mame.cfg"), "mine");
  EXPECT_THAT(List("cfg"), ElementsAre("Mame.cfg"));
}

TEST_F(DosWorldTest, CopyFileNeverOverwritesAndLeavesNoPart) {
  const std::string archive(700000, 'z');
  drive_.Write("C:\\Emu\\game.zip", archive);
  drive_.Write("OTHER.ZIP", "mine");
  ASSERT_TRUE(files_.CopyFile("C:\\Emu\\GAME.zip", "game.zip").ok());
  EXPECT_EQ(drive_.Read("game.zip"), archive);
  EXPECT_EQ(files_.CopyFile("C:\\Emu\\game.zip", "other.zip").error().message, "File exists");
  EXPECT_EQ(drive_.Read("other.zip"), "mine");
  EXPECT_FALSE(files_.CopyFile("C:\\Emu\\none.zip", "none.zip").ok());
  EXPECT_EQ(OnFullDisk(300000, [&] { return files_.CopyFile("game.zip", "third.zip"); }),
            "File too large");
  EXPECT_THAT(List(""), ElementsAre("Data\\", "OTHER.ZIP", "cfg\\", "game.zip"));
}

TEST_F(DosWorldTest, RenameFileRefusesATakenNameButNotOtherLetters) {
  drive_.Write("a.txt", "a");
  drive_.Write("B.TXT", "b");
  EXPECT_EQ(files_.RenameFile("a.txt", "b.txt").error().message, "File exists");
  EXPECT_TRUE(files_.RenameFile("A.TXT", "cfg\\C.txt").ok());
  EXPECT_TRUE(files_.RenameFile("b.txt", "b.txt").ok());
  EXPECT_THAT(HostNames("Zarvo"), ElementsAre("Data", "b.txt", "cfg"));
  EXPECT_EQ(drive_.Read("cfg\\c.txt"), "a");
}

TEST_F(DosWorldTest, FilesAndFoldersAreMadeAndDeletedByAnyCase) {
  EXPECT_TRUE(files_.MakeFolder("Cfg").ok()) << "an existing folder is no failure";
  EXPECT_TRUE(files_.MakeFolder("CFG\\new").ok());
  EXPECT_TRUE(fs::is_directory(cfg_ / "new"));
  EXPECT_FALSE(files_.MakeFolder("no\\parent").ok());
  drive_.Write("file", "");
  EXPECT_EQ(files_.MakeFolder("FILE").error().message, "File exists");

  EXPECT_TRUE(files_.DeleteFile("FILE").ok());
  EXPECT_EQ(files_.DeleteFile("file").error().message, "No such file or directory");
  EXPECT_FALSE(files_.DeleteFile("Data").ok());
  EXPECT_THAT(HostNames("Zarvo"), ElementsAre("Data", "cfg"));
}

}  // namespace
}  // namespace zarvo

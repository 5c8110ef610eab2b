// What all stores have in common: how they are replaced, and what keeps them from being replaced.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

#include "core/catalogue/catalogue.h"
#include "core/launch/settings_store.h"
#include "core/layouts/layout_store.h"
#include "core/panel/cfg_file.h"
#include "core/platform/host_file.h"
#include "fakes/emulators.h"
#include "fakes/failing_files.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;

// The calls of the host that a save has made: w(rite), f(lush of a file), r(ename), d (flush of a
// folder). The one of this number fails, or ends the process with half of its work done.
struct HostFault {
  inline static std::string calls;
  inline static std::size_t at = 0;  // from 1; 0 for none
  inline static int error = 0;       // 0 ends the process

  HostFault() {
    calls.clear();
    at = 0;
    TheHostCalls() = {.write = Write, .fsync = Flush, .rename = Rename};
  }
  ~HostFault() { TheHostCalls() = {.write = write, .fsync = fsync, .rename = std::rename}; }
  HostFault(const HostFault&) = delete;
  HostFault& operator=(const HostFault&) = delete;

  // True for the call that fails.
  static bool Hits(char call) {
    calls += call;
    errno = error;
    return calls.size() == at;
  }
  static ssize_t Write(int file, const void* bytes, std::size_t size) {
    if (!Hits('w')) return write(file, bytes, size);
    if (write(file, bytes, size / 2) >= 0 && error == 0) _exit(0);
    errno = error;
    return -1;
  }
  static int Flush(int file) {
    struct stat state {};
    fstat(file, &state);
    if (!Hits(S_ISDIR(state.st_mode) ? 'd' : 'f')) return fsync(file);
    if (error == 0) _exit(0);
    return -1;
  }
  static int Rename(const char* from, const char* to) {
    if (!Hits('r')) return std::rename(from, to);
    if (error == 0) _exit(0);
    return -1;
  }
};

// One store in the hands of the code that uses it.
struct Hands {
  std::function<bool()> load;    // whether it could be read
  std::function<Status()> save;  // a text with NEW in it
};

struct Kind {
  std::string_view file;
  std::string_view temporary;
  std::function<Hands(DosFiles&, ProgramFolders&)> open;
};

const Emulator& Mame() { return kMame; }

Hands Cfg(DosFiles& files, ProgramFolders& folders) {
  auto store = std::make_shared<CfgFile>(files, folders, Mame());
  return {[=] { return store->Read().exe_path.has_value(); },
          [=] {
            return store->Write({.exe_path = "NEW",
                                 .rom_path = "",
                                 .snap_path = "",
                                 .snap_format = "",
                                 .emulator_folder = "",
                                 .layout_word = "",
                                 .favourites = {}});
          }};
}

Hands Set(DosFiles& files, ProgramFolders& folders) {
  auto store = std::make_shared<SettingsStore>(files, folders, Mame());
  OptionValues values = DefaultValues(Mame(), "C:\\R");
  return {[=]() mutable { return store->Load("OLD", "", values) != LoadOutcome::kNothing; },
          [=] { return store->Save("NEW", values); }};
}

Hands Scan(DosFiles& files, ProgramFolders& folders) {
  return {[&] {
            NameList list;
            return Catalogue(files, folders, Mame()).Fill(GameState::kMissing, list) ==
                   FillResult::kFilled;
          },
          [&]() -> Status {
            const auto scan = Catalogue(files, folders, Mame()).Scan("C:\\Emu", SetType::kSplit);
            return scan ? scan->written : scan.error();
          }};
}

Hands Layouts(DosFiles& files, ProgramFolders& folders) {
  auto store = std::make_shared<LayoutStore>(files, folders);
  return {[=] { return store->Names().ok(); }, [=] { return store->AddBlock("NEW"); }};
}

Hands Ini(DosFiles& files, ProgramFolders& folders) {
  auto store = std::make_shared<LayoutStore>(files, folders);
  return {[=] { return store->ReadDefaultLayout().ok(); },
          [=] { return store->SaveIni({.default_layout = "NEW"}); }};
}

const Kind kKinds[] = {{R"(C:\Zarvo\cfg\Mame.cfg)", R"(C:\Zarvo\cfg\Mamecfg.tmp)", Cfg},
                       {R"(C:\Zarvo\cfg\Mame.set)", R"(C:\Zarvo\cfg\Mameset.tmp)", Set},
                       {R"(C:\Zarvo\layouts.dat)", R"(C:\Zarvo\layouts.tmp)", Layouts},
                       {R"(C:\Zarvo\zarvo.ini)", R"(C:\Zarvo\zarvo.tmp)", Ini},
                       {R"(C:\Zarvo\cfg\Mame.scn)", R"(C:\Zarvo\cfg\Mamescn.tmp)", Scan}};
constexpr std::string_view kOld = "\"OLD\"\r\nDefaultLayout = OLD\r\n";

// A drive with one store, or without it.
struct Site {
  Site(const Kind& store, bool there) : kind(store) {
    drive.Write(R"(C:\Zarvo\Data\Mame.dat)", "NEW;new;O;-;\r\n");
    if (there) drive.Write(kind.file, kOld);
  }
  [[nodiscard]] std::string Text() const {
    return drive.Exists(kind.file) ? drive.Read(kind.file) : "(none)";
  }
  Hands Open() { return kind.open(files, folders); }

  const Kind& kind;
  TempDrive drive;
  FailingFiles files{drive.files()};
  ProgramFolders folders{"C:\\Zarvo"};
};

bool IsNew(std::string_view text) { return text.find("NEW") != std::string_view::npos; }

TEST(Stores, AreWrittenFlushedAndRenamedAndAnyStepMayFail) {
  constexpr std::string_view kSteps = "wfrd";
  const std::pair<int, std::string_view> errors[] = {{ENOSPC, "No space left on device"},
                                                     {EIO, "Input/output error"},
                                                     {EACCES, "Permission denied"}};
  for (const Kind& kind : kKinds) {
    for (const bool there : {true, false}) {
      for (std::size_t step = 0; step <= kSteps.size(); ++step) {
        for (const auto& [number, reason] : errors) {
          Site site(kind, there);
          const std::string before = site.Text();
          const Hands hands = site.Open();
          hands.load();
          HostFault fault;
          HostFault::at = step;
          HostFault::error = number;
          const Status saved = hands.save();
          // The rename has happened when the folder is flushed, and some hosts can't.
          const bool fails = step != 0 && kSteps[step - 1] != 'd';
          ASSERT_EQ(saved.ok(), !fails) << kind.file << step;
          EXPECT_EQ(HostFault::calls, fails ? kSteps.substr(0, step) : kSteps) << kind.file;
          EXPECT_FALSE(site.drive.Exists(kind.temporary)) << kind.file << step;
          if (!fails) {
            EXPECT_TRUE(IsNew(site.Text())) << kind.file << step;
            continue;
          }
          EXPECT_EQ(site.Text(), before) << kind.file << step;
          EXPECT_EQ(saved.error().message,
                    std::string(DosPath(kind.file).Name()) + ": " + std::string(reason));
          HostFault::at = 0;
          EXPECT_TRUE(hands.save()) << "a failed save can be tried again";
        }
      }
    }
  }
}

TEST(Stores, ASaveThatIsKilledLeavesTheOldStoreOrTheNewOneAndNothingHalf) {
  for (const Kind& kind : kKinds) {
    for (const bool there : {true, false}) {
      for (std::size_t step = 1; step <= 4; ++step) {
        Site site(kind, there);
        const std::string before = site.Text();
        const HostFault fault;
        HostFault::at = step;
        HostFault::error = 0;
        const pid_t child = fork();
        if (child == 0) {
          Ignore(site.Open().save());
          _exit(1);
        }
        int status = -1;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0) << "it wasn't killed at the step";
        HostFault::at = 0;
        EXPECT_EQ(site.Open().load(), there || step == 4) << kind.file << step;
        EXPECT_FALSE(site.drive.Exists(kind.temporary)) << kind.file << step;
        if (step == 4) {
          EXPECT_TRUE(IsNew(site.Text()));
        } else {
          EXPECT_EQ(site.Text(), before) << kind.file << step;
        }
        EXPECT_TRUE(site.Open().save());
      }
    }
  }
}

TEST(Stores, WhatCouldNotBeReadIsNotOverwrittenUntilItWasRead) {
  struct Trouble {
    std::string_view name;
    std::function<void(Site&)> begin;
    std::function<void(Site&)> end;
  };
  const auto host = [](Site& site) { return site.drive.Host(site.kind.file); };
  const auto aside = [=](Site& site) { return host(site).string() + ".aside"; };
  const auto heal = [](Site& site) { site.files.Heal(); };
  const auto back = [=](Site& site) { fs::rename(aside(site), host(site)); };
  const Trouble troubles[] = {
      {"open", [](Site& site) { site.files.Fail(FileStep::kOpen, "", "Too many open files"); },
       heal},
      {"read", [](Site& site) { site.files.Fail(FileStep::kRead, ""); }, heal},
      {"folder", [](Site& site) { site.files.Fail(FileStep::kChangeFolder, ""); }, heal},
      {"away", [=](Site& site) { fs::rename(host(site), aside(site)); }, back},
      {"folder away",
       [=](Site& site) { fs::rename(host(site).parent_path(), site.drive.root() / "aside"); },
       [=](Site& site) { fs::rename(site.drive.root() / "aside", host(site).parent_path()); }},
      {"dead link",
       [=](Site& site) {
         fs::rename(host(site), aside(site));
         fs::create_symlink("nowhere", host(site));
       },
       [=](Site& site) { fs::rename(aside(site), host(site)); }},
      {"too large", [=](Site& site) { fs::resize_file(host(site), 65 << 20); },
       [=](Site& site) { fs::resize_file(host(site), kOld.size()); }},
  };
  for (const Kind& kind : kKinds) {
    if (kind.file.ends_with(".scn")) continue;  // a scan makes it anew, from no controls
    for (const Trouble& trouble : troubles) {
      Site site(kind, true);
      const Hands hands = site.Open();
      trouble.begin(site);
      EXPECT_FALSE(hands.load()) << trouble.name;
      trouble.end(site);
      for (int twice = 0; twice < 2; ++twice) {
        const Status saved = hands.save();
        ASSERT_FALSE(saved) << kind.file << trouble.name;
        EXPECT_THAT(
            saved.error().message,
            testing::AllOf(testing::StartsWith(std::string(DosPath(kind.file).Name()) + ": "),
                           testing::HasSubstr("stays as it is")));
        ASSERT_EQ(site.Text(), kOld) << trouble.name;
      }
      EXPECT_TRUE(hands.load()) << kind.file << trouble.name;
      EXPECT_TRUE(hands.save()) << kind.file << trouble.name;
      EXPECT_TRUE(IsNew(site.Text())) << kind.file << trouble.name;
    }
  }
}

TEST(Stores, ApplyingToAllErasesAStoreThatIsBackButNotOneThatCantBeRead) {
  Site site(kKinds[1], true);
  SettingsStore store(site.files, site.folders, Mame());
  const OptionValues values = DefaultValues(Mame(), "C:\\NEW");
  site.files.Fail(FileStep::kOpen, "Mame.set", "Input/output error");
  const Status saved = store.SaveAsDefault(values);
  ASSERT_FALSE(saved);
  EXPECT_EQ(saved.error().message, "Mame.set: Input/output error");
  EXPECT_EQ(site.Text(), kOld);
  OptionValues read = values;
  EXPECT_EQ(store.Load("OLD", "", read), LoadOutcome::kNothing);
  site.files.Heal();
  EXPECT_TRUE(store.SaveAsDefault(values));
  EXPECT_TRUE(IsNew(site.Text()));
  EXPECT_TRUE(store.Save("A", values)) << "what was erased can be saved again";
}

TEST(Stores, LayoutsThatCantBeReadKeepTheDefaultLayoutInTheIni) {
  Site site(kKinds[3], true);
  LayoutStore store(site.files, site.folders);
  site.drive.Write(R"(C:\Zarvo\layouts.dat)", "[OLD]\r\n-\r\n");
  site.files.Fail(FileStep::kOpen, "layouts.dat", "Input/output error");
  EXPECT_FALSE(store.Names());
  site.files.Heal();
  EXPECT_FALSE(store.SaveIni({.default_layout = ""}));
  EXPECT_EQ(site.Text(), kOld);
}

}  // namespace
}  // namespace zarvo

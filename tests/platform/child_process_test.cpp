#include "platform/child_process.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>

#include "fakes/posix_runner.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const char* const kDosProgram = "MZ a program of DOS";

// A host that has these programs, each at "/bin/" and its name.
HostPrograms Host(std::vector<std::string> programs, bool has_display = false) {
  return {[programs = std::move(programs)](std::string_view name) -> std::optional<std::string> {
            for (const std::string& program : programs) {
              if (program == name) return "/bin/" + program;
            }
            return std::nullopt;
          },
          has_display};
}

// A drive whose current folder is that of an emulator, with a batch file.
class RunTest : public testing::Test {
 protected:
  void Batch(const std::string& folder, const std::string& line) {
    drive_.MakeFolder(folder);
    drive_.Write(folder + "\\lancia.bat", line + "\r\n");
    ASSERT_TRUE(drive_.files().ChangeFolder(folder).ok());
  }
  void Native(const std::string& path, std::string_view text) {
    drive_.Write(path, text);
    fs::permissions(drive_.Host(path), fs::perms(0755));
  }
  Result<RunPlan> Plan(const HostPrograms& host) {
    return PlanRun(drive_.files(), "lancia.bat", host);
  }
  std::string PlanError() {
    const auto plan = Plan(Host({"dosbox"}));
    return plan ? std::string() : plan.error().message;
  }

  TempDrive drive_;
};

TEST_F(RunTest, ADosProgramRunsInDosBoxFromTheFolderThatIsItsDrive) {
  Batch("C:\\Emu\\Mame", "C:\\Emu\\Mame\\Mame.exe pengo -ignorecfg");
  drive_.Write("C:\\EMU\\MAME\\MAME.EXE", kDosProgram);
  const auto plan = Plan(Host({"dosbox", "xterm"}, true));
  ASSERT_TRUE(plan.ok()) << plan.error().message;
  EXPECT_EQ(plan->command.program, "/bin/dosbox");
  EXPECT_EQ(plan->command.folder, drive_.root());
  EXPECT_THAT(plan->command.arguments, ElementsAre("-userconf", "-conf", plan->configuration_path));
  EXPECT_EQ(plan->configuration,
            "[autoexec]\n@echo off\nmount -u C >nul\nmount C . >nul\nC:\ncd \\Emu\\Mame\n"
            "call lancia.bat\nif errorlevel 1 goto failed\nexit\n"
            ":failed\necho failed>C:\\Emu\\Mame\\ZARVO.ERR\nexit\n");
  EXPECT_FALSE(fs::exists(plan->configuration_path)) << "planning writes nothing";
  EXPECT_NE(Plan(Host({"dosbox"}))->configuration_path, plan->configuration_path);
}

TEST_F(RunTest, ARootIsAFolderToo) {
  Batch("C:\\", "C:\\Mame.exe");
  drive_.Write("C:\\Mame.exe", kDosProgram);
  EXPECT_THAT(Plan(Host({"dosbox"}))->configuration, HasSubstr("\ncd \\\ncall lancia.bat\n"));
}

TEST_F(RunTest, ANativeProgramRunsWithoutAShell) {
  Batch("C:\\Emu\\My Mame", "C:\\Emu\\My Mame\\mame  caf\xE9 $(reboot);  -x ");
  Native("C:\\Emu\\My Mame\\mame", "#!/bin/sh\n");
  const auto plan = Plan(Host({}));
  ASSERT_TRUE(plan.ok()) << plan.error().message;
  EXPECT_EQ(plan->command.program, drive_.root() / "Emu/My Mame/mame");
  EXPECT_THAT(plan->command.arguments, ElementsAre("caf\xC3\xA9", "$(reboot);", "-x"));
  EXPECT_EQ(plan->command.folder, drive_.root() / "Emu/My Mame");
  EXPECT_THAT(plan->configuration + plan->configuration_path, IsEmpty());
}

TEST_F(RunTest, ATerminalThatWaitsIsPutRoundANativeProgram) {
  Batch("C:\\Emu", "mame pengo");
  Native("C:\\Emu\\mame",
         "\x7F"
         "ELF\x02");
  const std::string program = drive_.Host("mame");
  const std::map<std::vector<std::string>, std::vector<std::string>> cases = {
      {{"x-terminal-emulator", "xterm"}, {"/bin/xterm", "-e"}},
      {{"konsole"}, {"/bin/konsole", "--separate", "-e"}},
      {{"gnome-terminal"}, {"/bin/gnome-terminal", "--wait", "--"}},
      {{"xfce4-terminal"}, {"/bin/xfce4-terminal", "--disable-server", "-x"}},
      {{"kitty"}, {"/bin/kitty"}},
      {{"x-terminal-emulator"}, {"/bin/x-terminal-emulator", "-e"}},
      {{}, {}},
  };
  for (const auto& [programs, front] : cases) {
    std::vector<std::string> words = front;
    words.insert(words.end(), {program, "pengo"});
    const auto with_display = Plan(Host(programs, true));
    std::vector<std::string> planned = with_display->command.arguments;
    planned.insert(planned.begin(), with_display->command.program);
    EXPECT_EQ(planned, words);
    EXPECT_EQ(Plan(Host(programs, false))->command.program, program) << "no desktop, no window";
  }
}

TEST_F(RunTest, TheLongestBeginningThatIsAFileIsTheProgram) {
  Batch("C:\\Emu", "C:\\Emu\\my mame -x");
  Native("C:\\Emu\\my", "#!");
  EXPECT_THAT(Plan(Host({}))->command.arguments, ElementsAre("mame", "-x"));
  Native("C:\\Emu\\my mame", "#!");
  EXPECT_THAT(Plan(Host({}))->command.arguments, ElementsAre("-x"));
  drive_.MakeFolder("C:\\Emu\\my mame -x");
  EXPECT_THAT(Plan(Host({}))->command.arguments, ElementsAre("-x")) << "a folder is no program";
}

TEST_F(RunTest, WhatCannotBeRunIsSaidPlainly) {
  EXPECT_THAT(PlanError(), HasSubstr("lancia.bat"));
  for (const char* line : {"C:\\Emu\\none.exe pengo", "", "   "}) {
    Batch("C:\\Emu", line);
    EXPECT_THAT(PlanError(), HasSubstr("There is no program \"")) << line;
  }

  const std::pair<const char*, const char*> names[] = {
      {"C:\\Emulators\\Mame\\mame.exe", "\"Emulators\""},
      {"C:\\My Emu\\mame.exe", "\"My Emu\""},
      {"C:\\Emu\\Mame.0.36\\mame.exe", "\"Mame.0.36\""},
      {"C:\\Emu\\caf\xE9\\mame.exe", "\"caf\xE9\""},
      {"C:\\Emu\\mame-dos.exe2", "\"mame-dos.exe2\""},
      {"C:\\Emu\\100%\\mame.exe", "\"100%\""},
  };
  for (const auto& [path, name] : names) {
    const std::string program = path;
    Batch(program.substr(0, program.rfind('\\')), program);
    drive_.Write(program, kDosProgram);
    EXPECT_THAT(PlanError(), testing::AllOf(HasSubstr(name), HasSubstr("rename"))) << path;
  }

  Batch("C:\\Emu", "mame.exe");
  drive_.Write("C:\\Emu\\mame.exe", kDosProgram);
  EXPECT_THAT(Plan(Host({})).error().message, HasSubstr("install the package dosbox"));
  drive_.Write("C:\\Emu\\mame.exe", "#!/bin/sh\n");
  EXPECT_THAT(PlanError(), HasSubstr("executable"));
}

TEST_F(RunTest, TheDriveMustBeOneThatDosBoxCanHave) {
  drive_.Write("C:\\Emu\\mame.exe", kDosProgram);
  drive_.Write("C:\\Emu\\lancia.bat", "mame.exe\r\n");
  DosWorld z({{'Z', drive_.Host("C:\\Emu")}});
  EXPECT_THAT(PlanRun(z, "lancia.bat", Host({"dosbox"})).error().message, HasSubstr("drive Z"));
  drive_.Write("C:\\Emu\\lancia.bat", "D:\\mame.exe\r\n");
  DosWorld two({{'C', drive_.Host("C:\\Emu")}, {'D', drive_.Host("C:\\Emu")}});
  EXPECT_THAT(PlanRun(two, "lancia.bat", Host({"dosbox"})).error().message,
              HasSubstr("isn't on the drive"));
}

// Looks at the configuration while the child would run.
class LookingRunner : public ChildRunner {
 public:
  RunOutcome Run(const HostCommand& command) override {
    std::ifstream file(command.arguments.at(2));
    seen.assign(std::istreambuf_iterator<char>(file), {});
    mode = fs::status(command.arguments.at(2)).permissions();
    return {};  // not started
  }
  std::string seen;
  fs::perms mode{};
};

TEST_F(RunTest, TheConfigurationStandsForTheRunAndIsDeletedAfterIt) {
  const std::string path = drive_.root() / "run.conf";
  const RunPlan plan = {{"/bin/dosbox", {"-userconf", "-conf", path}, "/"}, "[autoexec]\n", path};
  LookingRunner runner;
  const auto outcome = CarryOut(plan, runner);
  ASSERT_TRUE(outcome.ok()) << outcome.error().message;
  EXPECT_FALSE(outcome->started);
  EXPECT_EQ(runner.seen, "[autoexec]\n");
  EXPECT_EQ(runner.mode, fs::perms(0600));
  EXPECT_FALSE(fs::exists(path));

  // A file that somebody laid there is neither used nor deleted.
  std::ofstream(path) << "foreign";
  runner.seen = "not run";
  EXPECT_THAT(CarryOut(plan, runner).error().message, HasSubstr("File exists"));
  EXPECT_EQ(runner.seen, "not run");
  EXPECT_TRUE(fs::exists(path));
}

TEST_F(RunTest, ARealNativeProgramSeesItsWordsAndItsFolder) {
  Batch("C:\\Emu\\My Mame", "C:\\Emu\\My Mame\\run.sh a  *");
  Native("C:\\Emu\\My Mame\\run.sh", "#!/bin/sh\nprintf '%s|' \"$@\" > out\nexit 7\n");
  PosixRunner runner;
  const auto outcome = CarryOut(*Plan(Host({})), runner);
  EXPECT_TRUE(outcome->started);
  EXPECT_EQ(outcome->exit_code, 7);
  EXPECT_EQ(drive_.Read("C:\\Emu\\My Mame\\out"), "a|*|");
}

// A program of DOS, byte by byte, that writes its command tail to the file TAIL in the current
// folder and ends.
std::string TailWriter() {
  const unsigned char code[] = {
      0xB4, 0x3C,              // mov ah, 3Ch: create
      0x31, 0xC9,              // xor cx, cx
      0xBA, 0x23, 0x01,        // mov dx, 123h: the name below
      0xCD, 0x21,              // int 21h
      0x93,                    // xchg ax, bx: the handle
      0xB4, 0x40,              // mov ah, 40h: write
      0x30, 0xED,              // xor ch, ch
      0x8A, 0x0E, 0x80, 0x00,  // mov cl, [80h]: length of the tail
      0xBA, 0x81, 0x00,        // mov dx, 81h
      0xCD, 0x21,              // int 21h
      0xB4, 0x3E,              // mov ah, 3Eh: close
      0xCD, 0x21,              // int 21h
      0xB8, 0x00, 0x4C,        // mov ax, 4C00h: end
      0xCD, 0x21,              // int 21h
      0x90, 0x90, 0x90,        //
      'T',  'A',  'I',  'L',  0,
  };
  return {reinterpret_cast<const char*>(code), sizeof code};
}

TEST_F(RunTest, ARealDosProgramRunsInDosBoxAndGetsItsLine) {
  const HostPrograms real = ThisHost();
  if (!real.find("dosbox")) GTEST_SKIP() << "dosbox isn't installed";
  // A folder that DOSBox's own parsing of host paths wouldn't survive, and a player's own
  // configuration that has taken the drive already.
  const fs::path root = drive_.root() / "it's %PATH% \"é\" #1";
  fs::create_directories(root / "Emu/Mame");
  fs::create_directories(drive_.root() / ".dosbox");
  std::ofstream(drive_.root() / ".dosbox/dosbox-0.74-3.conf")
      << "[autoexec]\nmount c /usr\nc:\nset MINE=of the player\n";
  DosWorld world({{'C', root.string()}});
  ASSERT_TRUE(world.ChangeFolder("C:\\Emu\\Mame").ok());
  ASSERT_TRUE(world.WriteFile("tail.com", TailWriter()).ok());
  ASSERT_TRUE(world.WriteFile("lancia.bat", "C:\\Emu\\Mame\\tail.com pengo -s 1 %MINE%\r\n").ok());

  setenv("SDL_VIDEODRIVER", "dummy", 1);
  setenv("SDL_AUDIODRIVER", "dummy", 1);
  const char* const home = getenv("HOME");
  const std::string old_home = home == nullptr ? "" : home;
  setenv("HOME", drive_.root().c_str(), 1);
  PosixRunner runner;
  const auto plan = PlanRun(world, "lancia.bat", real);
  ASSERT_TRUE(plan.ok()) << plan.error().message;
  const auto outcome = CarryOut(*plan, runner);
  setenv("HOME", old_home.c_str(), 1);

  ASSERT_TRUE(outcome.ok()) << outcome.error().message;
  EXPECT_TRUE(outcome->started);
  EXPECT_FALSE(outcome->crashed);
  EXPECT_EQ(outcome->exit_code, 0);
  EXPECT_EQ(ReadAll(world, "TAIL").value(), " pengo -s 1 of the player");
  EXPECT_FALSE(outcome->program_failed);
  EXPECT_FALSE(fs::exists(plan->configuration_path));
}

TEST_F(RunTest, AnErrorLevelOfARealDosProgramIsTold) {
  const HostPrograms real = ThisHost();
  if (!real.find("dosbox")) GTEST_SKIP() << "dosbox isn't installed";
  setenv("SDL_VIDEODRIVER", "dummy", 1);
  setenv("SDL_AUDIODRIVER", "dummy", 1);
  // mov ax, 4C03h; int 21h: ends with error level 3.
  Batch("C:\\Emu\\Mame", "C:\\Emu\\Mame\\bad.com");
  drive_.Write("C:\\Emu\\Mame\\bad.com", "\xB8\x03\x4C\xCD\x21");
  PosixRunner runner;
  const auto outcome = CarryOut(*Plan(real), runner);
  ASSERT_TRUE(outcome.ok()) << outcome.error().message;
  EXPECT_TRUE(outcome->program_failed);
  EXPECT_FALSE(drive_.Exists("C:\\Emu\\Mame\\ZARVO.ERR"));
}

TEST_F(RunTest, WhatDosCutsOffIsCounted) {
  const std::string program = "C:\\Emu\\Mame\\Mame.exe";
  drive_.Write(program, "MZ");
  for (const auto& [tail, lost] :
       {std::pair<std::size_t, std::size_t>{126, 0}, {127, 1}, {200, 74}}) {
    Batch("C:\\Emu\\Mame", program + " " + std::string(tail - 1, 'x'));
    EXPECT_EQ(Plan(Host({"dosbox"}))->lost_characters, lost) << tail;
  }
}

}  // namespace
}  // namespace zarvo

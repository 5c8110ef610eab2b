#include "core/launch/launcher.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <set>
#include <sstream>

#include "core/launch/near_names.h"
#include "core/platform/dos_path.h"
#include "core/platform/messages.h"
#include "fakes/emulators.h"
#include "fakes/failing_files.h"
#include "fakes/recorded_boxes.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

const std::string kBothStand =
    "La rom sf2 \xE8 gi\xE0 contenuta nella directory mame/roms. E' stato scelto invece di "
    "utilizzare una rom contenuta in un altra cartella. Proseguendo, la rom contenuta in "
    "mame/roms verr\xE0 sovrascritta, e verr\xE0 perduta. Continuare?";

// A panel whose answers the test sets, and that notes what it is asked.
struct ScriptedPanel {
  bool knows_game = true;
  std::string rom = "sf2";
  std::string parent = "-";
  std::string emulator_path;
  std::string emulator_folder;
  OptionValues options;
  std::string calls;

  [[nodiscard]] LaunchRequest Request() const {
    return {.game = "Street Fighter II",
            .emulator_folder = DosPath(emulator_folder),
            .command = {.emulator_path = emulator_path,
                        .rom_name = "",
                        .options = options,
                        .recording = "",
                        .now = {}}};
  }
  LaunchCalls Calls() {
    return {.save_cfg = [this] { calls += "save; "; },
            .find_rom = [this](std::string_view game) -> std::optional<FoundRom> {
              calls += "find " + std::string(game) + "; ";
              if (!knows_game) return std::nullopt;
              return FoundRom{.rom = rom, .parent = parent};
            },
            .show_emulator_picker = [this] { calls += "emulator picker; "; },
            .show_rom_picker = [this] { calls += "rom picker; "; }};
  }
};

// A text with one of the described messages in short.
std::string InShort(std::string text, std::string_view message, std::string_view name) {
  const std::size_t at = text.find(message);
  return at == std::string::npos ? text : text.replace(at, message.size(), name);
}

// Each emulator stands in C:\Emu\<word>; the archives that a game's record names in C:\Mine.
class LauncherTest : public testing::Test {
 protected:
  LauncherTest() { drive_.MakeFolder("C:\\Zarvo"); }

  // Archives are named between blanks.
  void Use(const Emulator& emulator, const std::string& mine, const std::string& own = "") {
    emulator_ = &emulator;
    panel_ = ScriptedPanel();
    folder_ = "C:\\Emu\\" + std::string(emulator.word);
    own_ = folder_ + std::string(emulator.rom_sub_folder);
    panel_.emulator_folder = folder_;
    panel_.emulator_path = folder_ + "\\Emu.exe";
    panel_.options = DefaultValues(emulator, "C:\\Mine");
    std::filesystem::remove_all(drive_.Host("C:\\Mine"));
    std::filesystem::remove_all(drive_.Host(folder_));
    drive_.Write(panel_.emulator_path, "program");
    for (const auto& [folder, names, bytes] :
         {std::tuple("C:\\Mine", mine, "mine"), {own_.c_str(), own, "own"}}) {
      drive_.MakeFolder(folder);
      std::istringstream words(names);
      for (std::string name; words >> name;) drive_.Write(folder + ("\\" + name) + ".ZIP", bytes);
    }
  }
  void UseMame(const std::string& mine, const std::string& own = "") { Use(kMame, mine, own); }
  void UseOwnFolder() { panel_.options.rom_folder = own_; }

  std::string Start() { return Start(drive_.files()); }
  // What the boxes said and how the launch ended; after a run with the archives that it found. What
  // stood on the drive stands there again.
  std::string Start(DosFiles& files) {
    const std::string before = Archives();
    batch_.clear();
    boxes_.shown.clear();
    std::string found;
    const auto run = [&](std::string_view line) {
      EXPECT_EQ(line, "command.com /c lancia.bat");
      EXPECT_TRUE(EqualNoCase(files.CurrentFolder().Text(), folder_))
          << files.CurrentFolder().Text();
      batch_ = drive_.Read(folder_ + "\\lancia.bat");
      found = " with" + Archives();
      return run_result_;
    };
    const LaunchEnd end =
        Launch(*emulator_, panel_.Request(), panel_.Calls(),
               {.files = files, .boxes = boxes_, .folders = folders_, .run = run});
    EXPECT_EQ(Archives(), before);
    EXPECT_FALSE(drive_.Exists(folder_ + "\\lancia.bat"));
    EXPECT_TRUE(boxes_.answers.empty()) << "a question didn't come";
    EXPECT_FALSE(drive_.Exists("C:\\Zarvo\\running.dat"));
    std::string told;
    const std::string below = "\r\rYes runs the archive that stands in " + own_ +
                              ". Zarvo overwrites and deletes nothing there.";
    for (auto& box : boxes_.shown) {
      looked_for_.clear();
      if (box.text.starts_with(MsgNoRom)) {
        looked_for_ = box.text.substr(MsgNoRom.size());
        box.text.resize(MsgNoRom.size());
      }
      box.text = InShort(InShort(box.text, MsgNoRom, "no rom"), MsgRomOverwrite, "overwrite?");
      EXPECT_EQ(box.icon, BoxIcon::kExclamation) << box.text;
      const bool is_question = box.buttons == BoxButtons::kYesNo;
      EXPECT_EQ(box.text.ends_with(below), is_question) << box.text;
      if (is_question) box.text.erase(box.text.size() - std::min(box.text.size(), below.size()));
      told += (box.title == "Zarvo v0.1" ? "" : box.title + "|") + box.text + ": ";
    }
    constexpr std::array kEnds = {"ran", "no emulator", "no rom", "refused", "unknown", "failed"};
    return told + kEnds[static_cast<std::size_t>(end)] + found;
  }

  [[nodiscard]] std::string Archives() const {
    std::string archives;
    const auto entries = drive_.files().ListFolder(DosPath(own_));
    for (const FolderEntry& entry : entries ? *entries : std::vector<FolderEntry>()) {
      if (!MatchesPattern(entry.name, "*.zip")) continue;
      archives += " " + entry.name + "=" + drive_.Read(own_ + "\\" + entry.name);
    }
    return archives;
  }

  mutable TempDrive drive_;
  const ProgramFolders folders_{"C:\\Zarvo"};
  RecordedBoxes boxes_;
  const Emulator* emulator_ = nullptr;
  ScriptedPanel panel_;
  std::string folder_;
  std::string own_;
  Status run_result_ = Success();
  std::string batch_;
  std::string looked_for_;  // what the last box said below "Rom not found"
};

TEST_F(LauncherTest, TheBatchFileHoldsTheCommandLineAndIsGoneAfterTheRun) {
  UseMame("", "agsofdk");
  UseOwnFolder();
  panel_.rom = "agsofdk";
  drive_.Write(folder_ + "\\lancia.bat", "an older and much longer line of another launch\r\n");
  EXPECT_EQ(Start(), "ran with agsofdk.ZIP=own");
  EXPECT_EQ(batch_, "C:\\Emu\\Mame\\Emu.exe agsofdk -ignorecfg -soundcard 1\r\n");
  EXPECT_EQ(panel_.calls, "save; find Street Fighter II; ");
}

TEST_F(LauncherTest, EveryEmulatorTakesTheArchiveOfTheRecordForTheRunAlone) {
  for (const Emulator& emulator : kTested) {
    SCOPED_TRACE(emulator.word);
    const bool mame = emulator == kMame;
    const std::string no_rom =
        emulator == kRaine ? "Warning! - No Rom found!|no rom: no rom" : "no rom: no rom";
    Use(emulator, "SF2");
    for (const char* folder : {"C:\\Nowhere", "", "Mine"}) {
      panel_.options.rom_folder = folder;
      EXPECT_EQ(Start(), no_rom) << folder;
      EXPECT_TRUE(panel_.calls.ends_with("; rom picker; "));
    }
    panel_.options.rom_folder = "C:\\Mine";
    EXPECT_EQ(Start(), "ran with sf2.zip=mine");
    EXPECT_EQ(drive_.Read("C:\\Mine\\sf2.zip"), "mine");
    panel_.options.rom_folder = "";
    EXPECT_EQ(Start(), no_rom) << "no folder isn't the one of the last run";
    panel_.options.rom_folder = "C:\\Mine";
    FailingFiles files(drive_.files());
    files.Fail(FileStep::kCopy, "zarvo.$$$");
    Use(emulator, "SF2");
    EXPECT_EQ(Start(files),
              mame ? R"(C:\Emu\Mame\roms\sf2.zip: No space left on device: failed)" : no_rom);

    Use(emulator, "sf2", "sf2");
    boxes_.answers = {BoxAnswer::kNo};
    EXPECT_EQ(Start(), "sf2: overwrite?: refused");
    boxes_.answers = {BoxAnswer::kYes};
    EXPECT_EQ(Start(), "sf2: overwrite?: ran with sf2.ZIP=own");

    Use(emulator, "", "sf2");
    EXPECT_EQ(Start(), no_rom) << "no question for what the rom folder lacks";
    UseOwnFolder();
    panel_.knows_game = false;
    EXPECT_EQ(Start(), "unknown");
    Use(emulator, "");
    UseOwnFolder();
    EXPECT_EQ(Start(), mame || emulator == kM72 ? no_rom : "ran with")
        << "only MAME and M72 look into their own folder";

    Use(emulator, "");
    drive_.Write("C:\\Emu\\secret.zip", "secret");
    for (const char* rom : {"..\\secret", "C:\\Emu\\secret", "", "sf2 & del", "*", "a|b", "-x"}) {
      panel_.rom = rom;
      for (const std::string& folder : {std::string("C:\\Mine"), own_}) {
        panel_.options.rom_folder = folder;
        EXPECT_EQ(Start(), no_rom) << rom;
      }
    }
  }
}

TEST_F(LauncherTest, OtherSpellingsOfTheOwnFolderAreTheOwnFolder) {
  UseMame("", "sf2");
  std::filesystem::create_directory_symlink(drive_.Host(own_), drive_.root() / "Link");
  for (const char* spelling : {R"(c:\EMU\mame\ROMS)", R"(C:\Emu\Mame\roms\)", "C:/Emu/Mame/roms",
                               R"(C:\Emu\Mame\x\..\.\roms)", "C:\\Link"}) {
    panel_.options.rom_folder = spelling;
    EXPECT_EQ(Start(), "ran with sf2.ZIP=own") << spelling;
  }
}

// The name is taken at the last moment: what has it then is the player's.
TEST_F(LauncherTest, AnArchiveThatAppearsDuringTheCopyIsLeftAlone) {
  struct Appearing : FailingFiles {
    using FailingFiles::FailingFiles;
    Status RenameFile(const DosPath& from, const DosPath& to) override {
      Ignore(DosWorld::WriteFile(to, "the player's"));
      return FailingFiles::RenameFile(from, to);
    }
  } files(drive_.files());
  UseMame("sf2");
  const auto run = [](std::string_view /*line*/) { return Success(); };
  EXPECT_EQ(Launch(*emulator_, panel_.Request(), panel_.Calls(),
                   {.files = files, .boxes = boxes_, .folders = folders_, .run = run}),
            LaunchEnd::kFailed);
  EXPECT_EQ(boxes_.shown.size(), 1U);
  EXPECT_EQ(drive_.Read(own_ + "\\sf2.zip"), "the player's");
}

TEST_F(LauncherTest, AMissingEmulatorLeadsToItsPicker) {
  for (const Emulator& emulator : kTested) {
    const bool looks_up_first = emulator == kCallus || emulator == kRaine || emulator == kM72;
    const std::string title = emulator == kRaine ? "Warning! - No EXE found!|" : "";
    for (const char* path : {"C:\\Emu\\None.exe", ""}) {
      Use(emulator, "sf2");
      panel_.emulator_path = path;
      EXPECT_EQ(Start(), title + std::string(MsgNoEmulator) + ": no emulator");
      EXPECT_EQ(panel_.calls, looks_up_first ? "save; find Street Fighter II; emulator picker; "
                                             : "save; emulator picker; ");
    }
  }
}

// What MAME does with the archives of a clone and its parent, by where they stand.
TEST_F(LauncherTest, MameAndTheArchiveOfTheParent) {
  const auto play = [this](const char* parent, const char* mine, const char* own,
                           std::string_view answers) {
    UseMame(mine, own);
    panel_.parent = parent;
    for (const char c : answers) {
      boxes_.answers.push_back(c == 'y' ? BoxAnswer::kYes : BoxAnswer::kNo);
    }
    return Start();
  };
  const std::string asked = "sf2: overwrite?: ";
  EXPECT_EQ(play("sf", "sf", "", ""), "ran with sf.zip=mine");
  EXPECT_EQ(play("sf", "sf2 sf", "", ""), "ran with sf2.zip=mine");
  EXPECT_EQ(play("neogeo", "neogeo", "", ""), "no rom: no rom");
  EXPECT_EQ(play("neogeo", "sf2", "", ""), "ran with sf2.zip=mine");
  EXPECT_EQ(play("sf", "sf2", "sf2", "y"), asked + "ran with sf2.ZIP=own");
  EXPECT_EQ(play("sf", "sf2 sf", "sf2", "yy"), asked + kBothStand + ": ran with sf2.ZIP=own");
  EXPECT_EQ(play("sf", "sf2 sf", "sf2", "yn"), asked + kBothStand + ": refused");
  EXPECT_EQ(play("neogeo", "sf2 neogeo", "sf2", "y"), asked + "no rom: no rom");
  EXPECT_EQ(play("sf", "sf", "sf", "y"), "sf: overwrite?: ran with sf.ZIP=own");
  EXPECT_EQ(play("sf", "sf", "sf", "n"), "sf: overwrite?: refused");
  drive_.Write("C:\\Emu\\secret.zip", "secret");
  EXPECT_EQ(play("..\\Emu\\secret", "", "", ""), "no rom: no rom");
  for (const std::string parent : {"sf", "neogeo"}) {
    UseMame("", parent);
    UseOwnFolder();
    panel_.parent = parent;
    EXPECT_EQ(Start(), parent == "sf" ? "ran with sf.ZIP=own" : "no rom: no rom");
  }
  UseMame("sf2");
  std::filesystem::remove(drive_.Host(own_));
  EXPECT_EQ(Start(), "ran with sf2.zip=mine") << "MAME makes its rom folder";
}

// The box names file and folder, and sets in that folder that may have been meant.
TEST_F(LauncherTest, WhatIsMissingIsNamedWithWhatIsNear) {
  const auto looked_for = [this](const std::string& mine, const std::string& parent = "-") {
    UseMame(mine);
    panel_.rom = "sf2ce";
    panel_.parent = parent;
    EXPECT_EQ(Start(), "no rom: no rom");
    return looked_for_;
  };
  const std::string text = "\r\rZarvo looked for sf2ce.zip";
  EXPECT_EQ(looked_for(""), text + " in C:\\Mine.");
  EXPECT_EQ(looked_for("sf2 puckman SF2CEA sf2cd xx2yy"),
            text + " in C:\\Mine.\rThere is SF2CEA.zip, sf2cd.zip, sf2.zip");
  EXPECT_EQ(looked_for("", "sf2"), text + ", or its parent's sf2.zip, in C:\\Mine.");
  EXPECT_EQ(looked_for("neogeo", "neogeo"), text + " in C:\\Mine.");
  panel_.options.rom_folder.clear();
  EXPECT_EQ(Start(), "no rom: no rom");
  EXPECT_EQ(looked_for_, text + ", and no folder is given.");
  panel_.rom = "..\\x";
  EXPECT_EQ(Start(), "no rom: no rom");
  EXPECT_EQ(looked_for_, "\r\rThe data file gives this game a set that no file can be called.");
}

TEST(NearNamesTest, AreThoseThatMayHaveBeenMeant) {
  using Names = std::vector<std::string>;
  const Names names = {"sf2",     "sf2ce",  "sf2j", "1942",    "pacman",
                       "puckman", "pckman", "a",    "PUCKMANA"};
  const std::pair<const char*, Names> cases[] = {
      {"sf2", {"sf2j", "sf2ce"}},
      {"puckman", {"PUCKMANA", "pckman", "pacman"}},
      {"1943", {"1942"}},
      {"b", {}},
      {"galaga", {}},
      {"", {}},
  };
  for (const auto& [wanted, near] : cases) EXPECT_EQ(NearNames(wanted, names), near) << wanted;
  EXPECT_EQ(NearNames("abc", Names(9, "abcd")).size(), 5U);
}

TEST_F(LauncherTest, AStepThatFailsEndsTheLaunchAndRemovesWhatItMade) {
  const std::tuple<FileStep, const char*, std::string> rows[] = {
      {FileStep::kWrite, "lancia.bat", R"(C:\Emu\Mame\lancia.bat: No space left on device)"},
      {FileStep::kChangeFolder, "Mame", "C:\\Emu\\Mame: No space left on device"},
      {FileStep::kCopy, "zarvo.$$$", R"(C:\Emu\Mame\roms\sf.zip: No space left on device)"}};
  for (const auto& [step, name, message] : rows) {
    UseMame("sf");
    panel_.parent = "sf";
    FailingFiles files(drive_.files());
    files.Fail(step, name);
    EXPECT_EQ(Start(files), message + ": failed");
  }
  UseMame("sf2");
  run_result_ = Error{"DOSBox is not installed."};
  EXPECT_EQ(Start(), "DOSBox is not installed.: failed with sf2.zip=mine");
  for (const char* folder : {"", "Emu\\Mame"}) {
    panel_.emulator_folder = folder;
    EXPECT_EQ(Start(),
              "The emulator's folder isn't known.\rPlease choose the emulator in section CONF: "
              "failed");
  }
}

TEST_F(LauncherTest, WhatCannotBeRemovedAfterTheRunIsTold) {
  UseMame("sf2");
  for (const std::string name : {"sf2.zip", "lancia.bat"}) {
    FailingFiles files(drive_.files());
    files.Fail(FileStep::kDelete, name);
    const auto run = [](std::string_view /*line*/) { return Success(); };
    boxes_.shown.clear();
    EXPECT_EQ(Launch(*emulator_, panel_.Request(), panel_.Calls(),
                     {.files = files, .boxes = boxes_, .folders = folders_, .run = run}),
              LaunchEnd::kRan);
    const std::string path = (name == "sf2.zip" ? own_ : folder_) + "\\" + name;
    ASSERT_EQ(boxes_.shown.size(), 1U);
    EXPECT_THAT(boxes_.shown[0].text, testing::EndsWith(path + ": No space left on device"));
    EXPECT_TRUE(drive_.Exists(path));
    LaunchNotes(drive_.files(), folders_.ProgramFolder).Settle();  // the next start of the program
    EXPECT_FALSE(drive_.Exists(path) || drive_.Exists("C:\\Zarvo\\running.dat"));
  }
}

// A start that is cut off after each of its steps, as its files stand on the disk then.
TEST_F(LauncherTest, AStartThatWasCutOffIsClearedUpAndNothingOfThePlayers) {
  UseMame("sf2");
  drive_.MakeFolder(own_);
  const DosPath copy(own_ + "\\sf2.zip");
  const DosPath half(own_ + "\\zarvo.$$$");
  for (int steps = 1; steps <= 5; ++steps) {
    {
      LaunchNotes cut_off(drive_.files(), folders_.ProgramFolder);
      ASSERT_TRUE(cut_off.AddWork({half}).ok());
      if (steps >= 2) drive_.Write(half.Text(), "ha");
      if (steps >= 3) {
        ASSERT_TRUE(cut_off.AddCopy(copy, drive_.files().Identity(half).value()).ok());
      }
      if (steps >= 4) {
        ASSERT_TRUE(drive_.files().RenameFile(half, copy).ok());
      }
      if (steps >= 5) {
        ASSERT_TRUE(cut_off.AddWork({DosPath(folder_ + "\\lancia.bat")}).ok());
        drive_.Write(folder_ + "\\lancia.bat", "half");
      }
    }
    if (steps == 3) drive_.Write(copy.Text(), "of the player");
    const std::string stays = steps == 3 ? " sf2.zip=of the player" : "";
    LaunchNotes(drive_.files(), folders_.ProgramFolder).Settle();
    EXPECT_EQ(Archives(), stays) << steps;
    EXPECT_FALSE(drive_.Exists(half.Text()) || drive_.Exists(folder_ + "\\lancia.bat")) << steps;
    EXPECT_FALSE(drive_.Exists("C:\\Zarvo\\running.dat")) << steps;
    std::filesystem::remove(drive_.Host(copy.Text()));
  }
  // The next start of the game takes the copy for what it is.
  {
    LaunchNotes cut_off(drive_.files(), folders_.ProgramFolder);
    drive_.Write(copy.Text(), "mine");
    ASSERT_TRUE(cut_off.AddCopy(copy, drive_.files().Identity(copy).value()).ok());
  }
  const std::string before = Archives();
  EXPECT_EQ(before, " sf2.zip=mine");
  boxes_.shown.clear();
  Launch(*emulator_, panel_.Request(), panel_.Calls(),
         {.files = drive_.files(),
          .boxes = boxes_,
          .folders = folders_,
          .run = [](std::string_view /*line*/) { return Success(); }});
  EXPECT_TRUE(boxes_.shown.empty());
  EXPECT_EQ(Archives(), "");
}

TEST_F(LauncherTest, ANoteThatWasTamperedWithRemovesNothing) {
  UseMame("", "sf2");
  drive_.Write("C:\\precious.txt", "x");
  const std::string identity = drive_.files().Identity("C:\\precious.txt").value();
  drive_.Write("C:\\Zarvo\\running.dat",
               "work C:\\precious.txt\r\ncopy " + identity + " C:\\precious.txt\r\ncopy  " + own_ +
                   "\\sf2.zip\r\ncopy 1-2-3-4 " + own_ +
                   "\\sf2.zip\r\nwork lancia.bat\r\ncopy\r\n" + std::string(3, '\0') + "\r\nwork");
  LaunchNotes(drive_.files(), folders_.ProgramFolder).Settle();
  EXPECT_TRUE(drive_.Exists("C:\\precious.txt"));
  EXPECT_EQ(Archives(), " sf2.ZIP=own");
}

}  // namespace
}  // namespace zarvo

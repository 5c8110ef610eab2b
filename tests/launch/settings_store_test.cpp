#include "launch/settings_store.h"

#include <gtest/gtest.h>

#include "fakes/failing_files.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

constexpr std::string_view kStore = R"(C:\Zarvo\cfg\Raine.set)";
constexpr std::string_view kTemporary = R"(C:\Zarvo\cfg\Raineset.tmp)";

// Raine's record is the shortest: rom folder, three lists, two check boxes.
class SettingsStore : public testing::Test {
 protected:
  SettingsStore() {
    app_.ProgramFolder = "C:\\Zarvo";
    app_.RomPathOf(Emulator::kRaine) = "C:\\Mine";
    page_ = Values(8, 9, 16, 1, 1);
    page_.rom_folder = "C:\\Page";
  }

  static OptionValues Values(int mode, int size, int joystick, int limit, int gui) {
    OptionValues values;
    values.rom_folder = "C:\\R";
    for (const int number : {mode, size, joystick, limit, gui}) {
      values.values.push_back({.number = number, .text = ""});
    }
    return values;
  }

  LoadOutcome Load(std::string_view key) {
    return LoadSettings(drive_.files(), app_, raine_, key, page_);
  }
  Status Save(std::string_view key, const OptionValues& values) {
    return SaveSettings(drive_.files(), app_, raine_, key, values);
  }

  // "folder mode size joystick limit gui" of the page.
  [[nodiscard]] std::string Page() const {
    std::string text = page_.rom_folder;
    for (const OptionValue& value : page_.values) text += " " + std::to_string(value.number);
    return text;
  }

  TempDrive drive_;
  AppState app_;
  const EmulatorProfile& raine_ = ProfileOf(Emulator::kRaine);
  OptionValues page_;
};

constexpr std::string_view kDefaults = "C:\\Mine 0 0 0 0 0";
constexpr std::string_view kUntouched = "C:\\Page 8 9 16 1 1";

TEST_F(SettingsStore, WritesTheRecordsOfAllEmulatorsAsTold) {
  struct Row {
    Emulator emulator;
    std::string_view record;
  };
  const std::vector<Row> rows = {
      {Emulator::kMame,
       R"("Aggressors of Dark Combat","C:\Emu\Mame\Roms",0,0,0,0,1,1,0,0,0,0,"0","0",14,0,0,0,0,0,)"
       R"(0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0)"},
      {Emulator::kCallus,
       R"("Aggressors of Dark Combat","C:\Emu\Mame\Roms",10,10,0,0,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0)"},
      {Emulator::kRaine, R"("Aggressors of Dark Combat","C:\Emu\Mame\Roms",0,0,0,0,0)"},
      {Emulator::kSystem16,
       R"("Aggressors of Dark Combat","C:\Emu\Mame\Roms",2,2,0,0,0,1,0,0,0,0,0,0,0,1,0,0,0,1,0)"},
      {Emulator::kM72, R"("Aggressors of Dark Combat","C:\Emu\Mame\Roms",0,0,0,0,0,0,0,0,1,0)"}};
  for (const Row& row : rows) {
    const EmulatorProfile& profile = ProfileOf(row.emulator);
    const OptionValues defaults = DefaultValues(profile, R"(C:\Emu\Mame\Roms)");
    EXPECT_EQ(RecordLine(profile, "Aggressors of Dark Combat", defaults), row.record);
  }
}

TEST_F(SettingsStore, EveryFieldOfEveryEmulatorComesBack) {
  for (const EmulatorProfile& profile : Profiles()) {
    const auto options = OptionsOf(profile.emulator);
    OptionValues values = DefaultValues(profile, "D:\\Other");
    for (std::size_t i = 0; i < options.size(); ++i) {
      if (!options[i].stored) continue;
      values.values[i].text = options[i].kind == OptionKind::kText ? "-" + std::to_string(i) : "";
      if (options[i].kind == OptionKind::kCheck) values.values[i].number ^= 1;
      const int last = static_cast<int>(options[i].items.size()) - 1;
      if (options[i].kind == OptionKind::kCombo) values.values[i].number = i % 2 == 0 ? last : -1;
    }
    ASSERT_TRUE(SaveSettings(drive_.files(), app_, profile, "Game", values));
    OptionValues read;
    ASSERT_EQ(LoadSettings(drive_.files(), app_, profile, "Game", read), LoadOutcome::kRecord);
    EXPECT_EQ(RecordLine(profile, "Game", read), RecordLine(profile, "Game", values));
  }
}

TEST_F(SettingsStore, LoadsTheRecordOfTheKeyOrTheDefaults) {
  struct Row {
    std::string_view what;
    std::string_view store;
    LoadOutcome outcome;
    std::string_view page;
  };
  const std::vector<Row> rows = {
      {"its record", "\"Pac\",\"C:\\A\",1,2,3,1,0\r\n", LoadOutcome::kRecord, "C:\\A 1 2 3 1 0"},
      {"no line end", R"("Pac","C:\A",1,2,3,1,0)", LoadOutcome::kRecord, "C:\\A 1 2 3 1 0"},
      {"line feeds alone", "\"X\",\"\",0\n\"Pac\",\"C:\\A\",1,2,3,1,0\n", LoadOutcome::kRecord,
       "C:\\A 1 2 3 1 0"},
      {"the first of two", "\"Pac\",\"C:\\A\",1,2,3,1,0\r\n\"Pac\",\"C:\\B\",4,4,4,0,0\r\n",
       LoadOutcome::kRecord, "C:\\A 1 2 3 1 0"},
      {"a longer name", "\"Pac-Man\",\"C:\\A\",1,2,3,1,0\r\n", LoadOutcome::kDefaults, kDefaults},
      {"an empty store", "", LoadOutcome::kDefaults, kDefaults},
      {"the default record", "\"[DEFAULT]\",\"C:\\D\",4,4,4,0,1\r\n\"Q\",\"C:\\A\",1,2,3,1,0\r\n",
       LoadOutcome::kRecord, "C:\\D 4 4 4 0 1"},
      {"an empty line in front", "\"[DEFAULT]\",\"C:\\D\",4,4,4,0,1\r\n\r\n\"Pac\",\"\",1\r\n",
       LoadOutcome::kNothing, kUntouched},
      {"an empty line behind", "\"Pac\",\"C:\\A\",1,2,3,1,0\r\n\r\n", LoadOutcome::kRecord,
       "C:\\A 1 2 3 1 0"},
      {"no selection", "\"Pac\",\"C:\\A\",-1,-1,-1,1,0\r\n", LoadOutcome::kRecord,
       "C:\\A -1 -1 -1 1 0"},
      {"an empty folder", "\"Pac\",\"\",1,2,3,1,0\r\n", LoadOutcome::kRecord, " 1 2 3 1 0"},
      {"too short", "\"Pac\",\"C:\\A\",1,2\r\n", LoadOutcome::kRecord, "C:\\A 1 2 0 0 0"},
      {"the key alone", "\"Pac\"\r\n", LoadOutcome::kRecord, kDefaults},
      {"too long", "\"Pac\",\"C:\\A\",1,2,3,1,0,7,7,7\r\n", LoadOutcome::kRecord,
       "C:\\A 1 2 3 1 0"},
      {"past the items", "\"Pac\",\"C:\\A\",9,10,17,2,-1\r\n", LoadOutcome::kRecord,
       "C:\\A 0 0 0 0 0"},
      {"not numbers", "\"Pac\",\"C:\\A\",x,,1.5,1e,\"1\"\r\n", LoadOutcome::kRecord,
       "C:\\A 0 0 0 0 0"},
      {"a comma in the folder", "\"Pac\",\"C:\\A,B\",1,2,3,1,0\r\n", LoadOutcome::kRecord,
       "C:\\Mine 0 1 2 0 1"},
      {"a tilde cuts too", "\"Pac\",\"C:\\A\",1~2~3~1~0\r\n", LoadOutcome::kRecord,
       "C:\\A 1 2 3 1 0"}};
  for (const Row& row : rows) {
    drive_.Write(kStore, row.store);
    page_ = Values(8, 9, 16, 1, 1);
    page_.rom_folder = "C:\\Page";
    EXPECT_EQ(Load("Pac"), row.outcome) << row.what;
    EXPECT_EQ(Page(), row.page) << row.what;
    EXPECT_EQ(app_.SettingsFound, row.outcome == LoadOutcome::kRecord) << row.what;
  }
}

TEST_F(SettingsStore, WithoutAStoreALoadTouchesNothing) {
  app_.SettingsFound = true;
  EXPECT_EQ(Load("Pac"), LoadOutcome::kNothing);
  EXPECT_EQ(Page(), kUntouched);
  EXPECT_FALSE(app_.SettingsFound);
}

TEST_F(SettingsStore, ARecordNeverTakesFieldsOfTheRecordBeforeIt) {
  drive_.Write(kStore, "\"A\",\"C:\\A\",5,5,5,1,1\r\n\"B\",\"C:\\B\",1\r\n");
  Load("A");
  Load("B");
  EXPECT_EQ(Page(), "C:\\B 1 0 0 0 0");
}

TEST_F(SettingsStore, TheFieldsOfTheLastRecordStandInTheSharedSlots) {
  drive_.Write(kStore, "\"A\",\"C:\\A\",5,6,7,1,0\r\n");
  Load("A");
  EXPECT_EQ(app_.SettingsFields[0], "\"C:\\A\"");
  EXPECT_EQ(app_.SettingsFields[5], "0");
}

TEST_F(SettingsStore, PlaybackIsClearedWithoutARecordAndLeftAloneWithOne) {
  const EmulatorProfile& mame = ProfileOf(Emulator::kMame);
  const std::size_t playback = OptionIndex(Emulator::kMame, "chkPlayback");
  OptionValues values = DefaultValues(mame, "C:\\R");
  ASSERT_TRUE(SaveSettings(drive_.files(), app_, mame, "Known", values));
  values.values[playback].number = 1;
  LoadSettings(drive_.files(), app_, mame, "Known", values);
  EXPECT_EQ(values.values[playback].number, 1);
  LoadSettings(drive_.files(), app_, mame, "Unknown", values);
  EXPECT_EQ(values.values[playback].number, 0);
}

TEST_F(SettingsStore, SavesInPlaceOrAtTheEndAndLeavesAllOtherBytesAlone) {
  struct Row {
    std::string_view what;
    std::string_view before;
    std::string_view after;
  };
  const std::vector<Row> rows = {
      {"an empty store", "", "\"B\",\"C:\\R\",1,2,3,0,1\r\n"},
      {"a new game", "\"A\",junk\r\n", "\"A\",junk\r\n\"B\",\"C:\\R\",1,2,3,0,1\r\n"},
      {"a last line without its end", "\"A\",junk", "\"A\",junk\r\n\"B\",\"C:\\R\",1,2,3,0,1\r\n"},
      {"in its place", "\"A\",1\n\"B\",old\r\n\"C\",\t\xE8~\r\n",
       "\"A\",1\n\"B\",\"C:\\R\",1,2,3,0,1\r\n\"C\",\t\xE8~\r\n"},
      {"all of the same key", "\"B\",1\r\n\"A\",2\r\n\"B\",3",
       "\"B\",\"C:\\R\",1,2,3,0,1\r\n\"A\",2\r\n\"B\",\"C:\\R\",1,2,3,0,1\r\n"},
      {"found in front of an empty line", "\"B\",1\r\n\r\n\"B\",2\r\n",
       "\"B\",\"C:\\R\",1,2,3,0,1\r\n\r\n\"B\",\"C:\\R\",1,2,3,0,1\r\n"},
      {"hidden behind an empty line", "\"A\",1\r\n\r\n\"B\",2\r\n",
       "\"A\",1\r\n\r\n\"B\",2\r\n\"B\",\"C:\\R\",1,2,3,0,1\r\n"},
      {"names that begin alike", "\"Ba\",1\r\n\"B\",2\r\n",
       "\"Ba\",1\r\n\"B\",\"C:\\R\",1,2,3,0,1\r\n"}};
  for (const Row& row : rows) {
    drive_.Write(kStore, row.before);
    ASSERT_TRUE(Save("B", Values(1, 2, 3, 0, 1))) << row.what;
    EXPECT_EQ(drive_.Read(kStore), row.after) << row.what;
    EXPECT_FALSE(drive_.Exists(kTemporary)) << row.what;
  }
}

TEST_F(SettingsStore, TheFirstSaveCreatesTheStoreAndAnEmptyKeyIsAKey) {
  ASSERT_TRUE(Save("", Values(1, 2, 3, 0, 1)));
  EXPECT_EQ(drive_.Read(kStore), "\"\",\"C:\\R\",1,2,3,0,1\r\n");
  EXPECT_EQ(drive_.files().CurrentFolder(), "C:\\Zarvo\\cfg");
}

TEST_F(SettingsStore, ApplyToAllLeavesOneDefaultRecordThatServesEveryGame) {
  drive_.Write(kStore, "\"A\",\"C:\\A\",5,6,7,1,0\r\n");
  ASSERT_TRUE(SaveAsDefault(drive_.files(), app_, raine_, Values(1, 2, 3, 0, 1)));
  EXPECT_EQ(drive_.Read(kStore), "\"[DEFAULT]\",\"C:\\R\",1,2,3,0,1\r\n");
  EXPECT_EQ(Load("A"), LoadOutcome::kRecord);
  EXPECT_EQ(Page(), "C:\\R 1 2 3 0 1");
  ASSERT_TRUE(Save("A", Values(2, 2, 2, 0, 0)));
  EXPECT_EQ(drive_.Read(kStore),
            "\"[DEFAULT]\",\"C:\\R\",1,2,3,0,1\r\n\"A\",\"C:\\R\",2,2,2,0,0\r\n");
}

TEST_F(SettingsStore, AStoreCutAnywhereKeepsItsOtherRecordsAndTakesASave) {
  const std::string whole =
      "\"A\",\"C:\\A\",1,2,3,1,0\r\n\"B\",\"C:\\B\",4,5,6,0,1\r\n\"C\",\"C:\\C\",7,8,9,1,1\r\n";
  const std::string first = whole.substr(0, whole.find('\n') + 1);
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    drive_.Write(kStore, whole.substr(0, length));
    Load("C");
    ASSERT_TRUE(Save("C", Values(2, 2, 2, 0, 0))) << length;
    EXPECT_EQ(Load("C"), LoadOutcome::kRecord) << length;
    EXPECT_EQ(Page(), "C:\\R 2 2 2 0 0") << length;
    if (length < first.size()) continue;
    EXPECT_EQ(Load("A"), LoadOutcome::kRecord) << length;
    EXPECT_EQ(Page(), "C:\\A 1 2 3 1 0") << length;
  }
}

TEST_F(SettingsStore, AFailedSaveKeepsTheStoreAndNamesIt) {
  const std::string before = "\"A\",\"C:\\A\",5,6,7,1,0\r\n";
  for (const FileStep step : {FileStep::kReplace, FileStep::kBreakOffReplace, FileStep::kRead,
                              FileStep::kOpen, FileStep::kChangeFolder}) {
    drive_.Write(kStore, before);
    FailingFiles files(drive_.files());
    files.Fail(step, "", "Broken");
    const Status saved = SaveSettings(files, app_, raine_, "A", Values(1, 2, 3, 0, 1));
    ASSERT_FALSE(saved) << static_cast<int>(step);
    EXPECT_TRUE(saved.error().message.starts_with("Raine.set: ")) << saved.error().message;
    EXPECT_EQ(drive_.Read(kStore), before) << static_cast<int>(step);
    ASSERT_TRUE(Save("B", Values(1, 2, 3, 0, 1)));
    EXPECT_EQ(drive_.Read(kStore), before + "\"B\",\"C:\\R\",1,2,3,0,1\r\n");
  }
}

TEST_F(SettingsStore, ALeftoverIsPickedUpOnlyIfTheStoreIsMissing) {
  drive_.Write(kTemporary, "\"A\",\"C:\\A\",5,6,7,1,0\r\n");
  EXPECT_EQ(Load("A"), LoadOutcome::kRecord);
  EXPECT_EQ(Page(), "C:\\A 5 6 7 1 0");
  drive_.Write(kTemporary, "\"A\",\"C:\\Old\",1,1,1,1,1\r\n");
  ASSERT_TRUE(Save("B", Values(1, 2, 3, 0, 1)));
  EXPECT_EQ(drive_.Read(kStore), "\"A\",\"C:\\A\",5,6,7,1,0\r\n\"B\",\"C:\\R\",1,2,3,0,1\r\n");
  EXPECT_FALSE(drive_.Exists(kTemporary));
}

}  // namespace
}  // namespace zarvo

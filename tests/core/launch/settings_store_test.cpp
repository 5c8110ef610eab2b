#include "core/launch/settings_store.h"

#include <gtest/gtest.h>

#include "core/platform/in_brief.h"
#include "fakes/emulators.h"
#include "fakes/failing_files.h"
#include "fakes/temp_drive.h"

namespace zarvo {
namespace {

constexpr std::string_view kStore = R"(C:\Zarvo\cfg\Raine.set)";
constexpr std::string_view kTemporary = R"(C:\Zarvo\cfg\Raineset.tmp)";

// Raine's record is the shortest: rom folder, three lists, two check boxes.
class SettingsStoreTest : public testing::Test {
 protected:
  static OptionValues Values(std::string folder, std::initializer_list<int> numbers) {
    OptionValues values{.rom_folder = std::move(folder), .values = {}};
    for (const int number : numbers) values.values.push_back({.number = number, .text = ""});
    return values;
  }

  // Loads into a page of "C:\Page 8 9 16 1 1"; gives outcome and page: "record C:\A 1 2 3 1 0".
  std::string Load(std::string_view key) {
    OptionValues page = Values("C:\\Page", {8, 9, 16, 1, 1});
    const LoadOutcome outcome = store_.Load(key, "C:\\Mine", page);
    std::string text = outcome == LoadOutcome::kRecord     ? "record "
                       : outcome == LoadOutcome::kDefaults ? "defaults "
                                                           : "nothing ";
    text += page.rom_folder;
    for (const OptionValue& value : page.values) text += " " + std::to_string(value.number);
    return text;
  }
  // Saves the record of the key, which ends in 'C:\R',1,2,3,0,1.
  Status Save(std::string_view key, DosFiles& files) {
    SettingsStore store(files, folders_, raine_);
    return store.Save(key, Values("C:\\R", {1, 2, 3, 0, 1}));
  }
  Status Save(std::string_view key) { return Save(key, drive_.files()); }
  void Write(std::string_view path, std::string_view text) { drive_.Write(path, Bytes(text)); }

  TempDrive drive_;
  ProgramFolders folders_{"C:\\Zarvo"};
  const Emulator& raine_ = kRaine;
  SettingsStore store_{drive_.files(), folders_, raine_};
};

TEST_F(SettingsStoreTest, WritesTheRecordsOfAllEmulatorsAsTold) {
  const std::pair<Emulator, std::string_view> rows[] = {
      {kMame, ",0,0,0,0,1,1,0,0,0,0,'0','0',14,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0"},
      {kCallus, ",10,10,0,0,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0"},
      {kRaine, ",0,0,0,0,0"},
      {kSystem16, ",2,2,0,0,0,1,0,0,0,0,0,0,0,1,0,0,0,1,0"},
      {kM72, ",0,0,0,0,0,0,0,0,1,0"}};
  for (const auto& [emulator, fields] : rows) {
    const OptionValues defaults = DefaultValues(emulator, R"(C:\Roms)");
    EXPECT_EQ(RecordLine(emulator, "Dark Combat", defaults),
              Bytes(R"('Dark Combat','C:\Roms')") + Bytes(fields));
  }
}

TEST_F(SettingsStoreTest, EveryFieldOfEveryEmulatorComesBack) {
  for (const Emulator& emulator : kTested) {
    const auto options = emulator.options;
    OptionValues values = DefaultValues(emulator, "D:\\Other");
    for (std::size_t i = 0; i < options.size(); ++i) {
      if (!options[i].stored) continue;
      values.values[i].text = options[i].kind == OptionKind::kText ? "-" + std::to_string(i) : "";
      if (options[i].kind == OptionKind::kCheck) values.values[i].number ^= 1;
      const int last = static_cast<int>(options[i].items.size()) - 1;
      if (options[i].kind == OptionKind::kCombo) values.values[i].number = i % 2 == 0 ? last : -1;
    }
    SettingsStore store(drive_.files(), folders_, emulator);
    ASSERT_TRUE(store.Save("Game", values));
    OptionValues read;
    ASSERT_EQ(store.Load("Game", "", read), LoadOutcome::kRecord);
    EXPECT_EQ(RecordLine(emulator, "Game", read), RecordLine(emulator, "Game", values));
  }
}

TEST_F(SettingsStoreTest, LoadsTheRecordOfTheKeyOrTheDefaults) {
  EXPECT_EQ(Load("Pac"), "nothing C:\\Page 8 9 16 1 1") << "no store";
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"'Pac','C:\\A',1,2,3,1,0|", "record C:\\A 1 2 3 1 0"},
      {"'Pac','C:\\A',1,2,3,1,0", "record C:\\A 1 2 3 1 0"},
      {"'X','',0\n'Pac','C:\\A',1,2,3,1,0\n", "record C:\\A 1 2 3 1 0"},
      {"'Pac','C:\\A',1,2,3,1,0|'Pac','C:\\B',4,4,4,0,0|", "record C:\\A 1 2 3 1 0"},
      {"'Pac-Man','C:\\A',1,2,3,1,0|", "defaults C:\\Mine 0 0 0 0 0"},
      {"", "defaults C:\\Mine 0 0 0 0 0"},
      {"'[DEFAULT]','C:\\D',4,4,4,0,1|'Q','C:\\A',1,2,3,1,0|", "record C:\\D 4 4 4 0 1"},
      {"'[DEFAULT]','C:\\D',4,4,4,0,1|'[DEFAULT]','C:\\E',1,1,1,1,1|", "record C:\\D 4 4 4 0 1"},
      {"'[DEFAULT]','C:\\D',4,4,4,0,1||'Pac','',1|", "nothing C:\\Page 8 9 16 1 1"},
      {"'Pac','C:\\A',1,2,3,1,0||", "record C:\\A 1 2 3 1 0"},
      {"'Pac','C:\\A',-1,-1,-1,1,0|", "record C:\\A -1 -1 -1 1 0"},
      {"'Pac','',1,2,3,1,0|", "record  1 2 3 1 0"},
      {"'A','C:\\A',5,5,5,1,1|'Pac','C:\\A',1,2|", "record C:\\A 1 2 0 0 0"},
      {"'Pac'|", "record C:\\Mine 0 0 0 0 0"},
      {"'Pac','C:\\A',1,2,3,1,0,7,7,7|", "record C:\\A 1 2 3 1 0"},
      {"'Pac','C:\\A',9,10,17,2,-1|", "record C:\\A 0 0 0 0 0"},
      {"'Pac','C:\\A',x,,1.5,1e,'1'|", "record C:\\A 0 0 0 0 0"},
      {"'Pac','C:\\A,B',1,2,3,1,0|", "record C:\\Mine 0 1 2 0 1"},
      {"'Pac','C:\\A',1~2~3~1~0|", "record C:\\A 1 2 3 1 0"}};
  for (const auto& [store, loaded] : rows) {
    Write(kStore, store);
    EXPECT_EQ(Load("Pac"), loaded) << store;
  }
}

TEST_F(SettingsStoreTest, PlaybackIsClearedWithoutARecordAndLeftAloneWithOne) {
  const Emulator& mame = kMame;
  OptionValues values = DefaultValues(mame, "C:\\R");
  const std::size_t playback = OptionIndex(kMame, "chkPlayback");
  SettingsStore store(drive_.files(), folders_, mame);
  ASSERT_TRUE(store.Save("Known", values));
  drive_.Write("C:\\Zarvo\\cfg\\Mame.set", RecordLine(mame, "Known", values) + ",1\r\n");
  store.Load("Known", "", values);
  EXPECT_EQ(values.values[playback].number, 0) << "a record never turns it on";
  values.values[playback].number = 1;
  store.Load("Known", "", values);
  EXPECT_EQ(values.values[playback].number, 1);
  store.Load("Unknown", "", values);
  EXPECT_EQ(values.values[playback].number, 0);
}

TEST_F(SettingsStoreTest, SavesInPlaceOrAtTheEndAndLeavesAllOtherBytesAlone) {
  ASSERT_TRUE(Save(""));
  EXPECT_EQ(drive_.Read(kStore), Bytes("'','C:\\R',1,2,3,0,1|")) << "an empty key is a key";
  EXPECT_EQ(drive_.files().CurrentFolder(), "C:\\Zarvo\\cfg");
  const std::pair<std::string_view, std::string_view> rows[] = {
      {"", "'B','C:\\R',1,2,3,0,1|"},
      {"'A',junk|", "'A',junk|'B','C:\\R',1,2,3,0,1|"},
      {"'A',junk", "'A',junk|'B','C:\\R',1,2,3,0,1|"},
      {"'A',1\n'B',old|'C',\t\xE8~|", "'A',1\n'B','C:\\R',1,2,3,0,1|'C',\t\xE8~|"},
      {"'B',1|'A',2|'B',3", "'B','C:\\R',1,2,3,0,1|'A',2|'B','C:\\R',1,2,3,0,1|"},
      {"'B',1||'B',2|", "'B','C:\\R',1,2,3,0,1||'B','C:\\R',1,2,3,0,1|"},
      {"'A',1||'B',2|", "'A',1||'B',2|'B','C:\\R',1,2,3,0,1|"},
      {"'Ba',1|'B',2|", "'Ba',1|'B','C:\\R',1,2,3,0,1|"}};
  for (const auto& [before, after] : rows) {
    Write(kStore, before);
    ASSERT_TRUE(Save("B")) << before;
    EXPECT_EQ(drive_.Read(kStore), Bytes(after)) << before;
    EXPECT_FALSE(drive_.Exists(kTemporary)) << before;
  }
}

TEST_F(SettingsStoreTest, ApplyToAllLeavesOneDefaultRecordThatServesEveryGame) {
  Write(kStore, "'A','C:\\A',5,6,7,1,0|");
  ASSERT_TRUE(store_.SaveAsDefault(Values("C:\\D", {4, 4, 4, 1, 1})));
  EXPECT_EQ(drive_.Read(kStore), Bytes("'[DEFAULT]','C:\\D',4,4,4,1,1|"));
  EXPECT_EQ(Load("A"), "record C:\\D 4 4 4 1 1");
  ASSERT_TRUE(Save("A"));
  EXPECT_EQ(drive_.Read(kStore), Bytes("'[DEFAULT]','C:\\D',4,4,4,1,1|'A','C:\\R',1,2,3,0,1|"));
}

TEST_F(SettingsStoreTest, AStoreCutAnywhereKeepsItsOtherRecordsAndTakesASave) {
  const std::string first = Bytes("'A','C:\\A',1,2,3,1,0|");
  const std::string whole = first + Bytes("'B','C:\\B',4,5,6,0,1|'C','C:\\C',7,8,9,1,1|");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    drive_.Write(kStore, whole.substr(0, length));
    Load("C");
    ASSERT_TRUE(Save("C")) << length;
    EXPECT_EQ(Load("C"), "record C:\\R 1 2 3 0 1") << length;
    if (length < first.size()) continue;
    EXPECT_EQ(Load("A"), "record C:\\A 1 2 3 1 0") << length;
  }
}

TEST_F(SettingsStoreTest, AFailedSaveKeepsTheStoreAndNamesIt) {
  for (const FileStep step : {FileStep::kReplace, FileStep::kBreakOffReplace, FileStep::kRead,
                              FileStep::kOpen, FileStep::kChangeFolder}) {
    Write(kStore, "'A','C:\\A',5,6,7,1,0|");
    FailingFiles files(drive_.files());
    files.Fail(step, "", "Broken");
    const Status saved = Save("A", files);
    ASSERT_FALSE(saved) << static_cast<int>(step);
    EXPECT_TRUE(saved.error().message.starts_with("Raine.set: ")) << saved.error().message;
    ASSERT_TRUE(Save("B"));
    EXPECT_EQ(drive_.Read(kStore), Bytes("'A','C:\\A',5,6,7,1,0|'B','C:\\R',1,2,3,0,1|"));
  }
}

}  // namespace
}  // namespace zarvo

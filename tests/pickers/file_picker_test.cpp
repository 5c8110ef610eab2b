#include "pickers/file_picker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/key_press.h"
#include "fakes/recorded_boxes.h"
#include "fakes/temp_drive.h"
#include "pickers/recording_panels.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FilePickerTest : public testing::Test {
 protected:
  FilePickerTest() {
    drive_.Write(R"(C:\Emu\Mame\MAME.EXE)", "");
    drive_.Write(R"(C:\Emu\Mame\readme.txt)", "");
    drive_.Write(R"(C:\Emu\Mame\INP\puckman.inp)", "");
    drive_.Write(R"(C:\root.exe)", "");
  }

  FilePicker& Make(std::string_view word) {
    picker_ = std::make_unique<FilePicker>(drive_.files(), panels_, boxes_, "Zarvo v0.1");
    picker_->lblSelExeHide = word;
    return *picker_;
  }

  TempDrive drive_;
  RecordingPanels panels_;
  RecordedBoxes boxes_;
  std::unique_ptr<FilePicker> picker_;
};

TEST_F(FilePickerTest, StartsWithTheProgramsOfTheCurrentFolder) {
  drive_.Write(R"(C:\Zarvo\zarvo.exe)", "");
  const FilePicker& picker = Make("MAME");
  EXPECT_EQ(picker.Caption(), "Emulator's Full Path");
  EXPECT_EQ(picker.dirSelExe->Path(), R"(C:\Zarvo)");
  EXPECT_EQ(picker.txtShowFiltri->Text(), "*.exe");
  EXPECT_EQ(picker.filSelExe->ListCount(), 1);
  EXPECT_EQ(picker.filSelExe->FileName(), "");
}

TEST_F(FilePickerTest, OkWritesProgramAndFolderAndSaves) {
  struct Case {
    const char* word;
    const char* folder;
    std::vector<std::string> told;
  };
  const Case cases[] = {
      {"MAME", R"(C:\Emu\Mame)", {R"(exe Mame C:\Emu\Mame\MAME.EXE in C:\Emu\Mame)", "save Mame"}},
      {"CALLUS", R"(C:\)", {R"(exe Callus C:\root.exe in C:\)", "save Callus"}},
      {"RAINE", R"(C:\)", {R"(exe Raine C:\root.exe in C:\)", "save Raine"}},
      {"SYSTEM16", R"(C:\)", {R"(exe System16 C:\root.exe in C:\)", "save System16"}},
      {"M72", R"(C:\)", {R"(exe M72 C:\root.exe in C:\)", "save M72"}},
  };
  for (const Case& at : cases) {
    panels_.told.clear();
    FilePicker& picker = Make(at.word);
    ASSERT_TRUE(picker.OpenAt('C', at.folder)) << at.word;
    ASSERT_TRUE(picker.filSelExe->SetListIndex(0)) << at.word;
    picker.cmdOk->click();
    EXPECT_EQ(panels_.told, at.told) << at.word;
    EXPECT_TRUE(picker.IsUnloaded()) << at.word;
  }
}

TEST_F(FilePickerTest, OkWithoutAFileSaysSoAndStays) {
  FilePicker& picker = Make("MAME");
  picker.ShowModeless();
  for (const bool recording : {false, true}) {
    ASSERT_TRUE(!recording || picker.ChooseRecording(R"(C:\Emu\Mame\INP)"));
    boxes_.shown.clear();
    picker.cmdOk->click();
    ASSERT_EQ(boxes_.shown.size(), 1U);
    EXPECT_EQ(boxes_.shown[0].icon, BoxIcon::kInformation);
    EXPECT_EQ(boxes_.shown[0].title, "Zarvo v0.1");
    EXPECT_EQ(boxes_.shown[0].text, "You must select a file!");
    EXPECT_FALSE(picker.IsUnloaded());
    EXPECT_THAT(panels_.told, IsEmpty());
  }
}

TEST_F(FilePickerTest, ADoubleClickOrEnterOnAFileChoosesIt) {
  for (const bool by_key : {false, true}) {
    panels_.told.clear();
    FilePicker& picker = Make("MAME");
    ASSERT_TRUE(picker.OpenAt('C', R"(C:\Emu\Mame)"));
    picker.ShowModeless();
    picker.filSelExe->SetListIndex(0);
    if (by_key) {
      PressKey(picker.filSelExe, Qt::Key_Return);
    } else {
      picker.filSelExe->DblClick.Raise();
    }
    EXPECT_TRUE(picker.IsUnloaded());
    EXPECT_THAT(panels_.told,
                ElementsAre(R"(exe Mame C:\Emu\Mame\MAME.EXE in C:\Emu\Mame)", "save Mame"));
  }
}

TEST_F(FilePickerTest, ARecordingIsChosenInItsFolderAlone) {
  FilePicker& picker = Make("");
  ASSERT_TRUE(picker.ChooseRecording(R"(C:\Emu\Mame\INP)"));
  EXPECT_EQ(picker.lblSelExeHide, "MAME");
  EXPECT_EQ(picker.Caption(), "Choose the INP file");
  EXPECT_EQ(picker.txtShowFiltri->Text(), "*.inp");
  EXPECT_FALSE(picker.drvSelExe->Enabled());
  EXPECT_FALSE(picker.dirSelExe->Enabled());
  ASSERT_EQ(picker.filSelExe->ListCount(), 1);
  picker.filSelExe->SetListIndex(0);
  picker.cmdOk->click();
  EXPECT_THAT(panels_.told, ElementsAre("recording puckman.inp")) << "nothing is saved";
  EXPECT_TRUE(picker.IsUnloaded());
}

TEST_F(FilePickerTest, WithoutTheFolderOfRecordingsNothingChanges) {
  FilePicker& picker = Make("MAME");
  EXPECT_FALSE(picker.ChooseRecording(R"(C:\Emu\Raine\INP)"));
  EXPECT_EQ(picker.dirSelExe->Path(), R"(C:\Zarvo)");
  EXPECT_EQ(picker.Caption(), "Emulator's Full Path");
  EXPECT_EQ(picker.filSelExe->Pattern(), "*.exe");
  EXPECT_TRUE(picker.dirSelExe->Enabled());
}

TEST_F(FilePickerTest, GivingUpTurnsPlaybackOffOnlyForRecordings) {
  using GiveUp = std::function<void(FilePicker&)>;
  const std::vector<GiveUp> ways = {
      [](FilePicker& picker) { picker.cmdCancel->click(); },
      [](FilePicker& picker) { PressKey(picker.filSelExe, Qt::Key_Escape); },
      [](FilePicker& picker) { picker.close(); },
  };
  for (const GiveUp& give_up : ways) {
    panels_.told.clear();
    FilePicker& program = Make("MAME");
    program.ShowModeless();
    give_up(program);
    EXPECT_TRUE(program.IsUnloaded());
    EXPECT_THAT(panels_.told, IsEmpty());
    FilePicker& recording = Make("MAME");
    ASSERT_TRUE(recording.ChooseRecording(R"(C:\Emu\Mame\INP)"));
    recording.ShowModeless();
    give_up(recording);
    EXPECT_TRUE(recording.IsUnloaded());
    EXPECT_THAT(panels_.told, ElementsAre("playback off"));
  }
}

}  // namespace
}  // namespace zarvo

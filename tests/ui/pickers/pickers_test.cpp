// The pickers of a program or recording and of a folder: what they show, and what they tell.
#include <gtest/gtest.h>

#include <utility>

#include "fakes/key_press.h"
#include "fakes/recorded_boxes.h"
#include "fakes/temp_drive.h"
#include "ui/pickers/file_picker.h"
#include "ui/pickers/folder_picker.h"

namespace zarvo {
namespace {

// Panels that write down what a picker tells them.
class RecordingPanels : public PickerPanels {
 public:
  void SetRomFolder(const Emulator& emulator, const DosPath& folder) override {
    Note("rom", emulator, folder.Text());
  }
  void SetSnapFolder(const Emulator& emulator, const DosPath& folder) override {
    Note("snap", emulator, folder.Text());
  }
  void SetGameRomFolder(const Emulator& emulator, const DosPath& folder) override {
    Note("game", emulator, folder.Text());
  }
  void SetEmulator(const Emulator& emulator, const DosPath& exe_path,
                   const DosPath& folder) override {
    Note("exe", emulator, exe_path.Text() + " in " + folder.Text());
  }
  void SetRecording(const Emulator& emulator, const FileName& file) override {
    Note("recording", emulator, file.Text());
  }
  void ClearPlayback(const Emulator& emulator) override { Note("playback", emulator, "off"); }
  void SaveCfg(const Emulator& emulator) override { Note("save", emulator, "."); }

  std::string told;

 private:
  void Note(const std::string& what, const Emulator& emulator, std::string_view value) {
    told += what + " " + std::string(emulator.word) + " " + std::string(value) + " ";
  }
};

class PickerTest : public testing::Test {
 protected:
  PickerTest() {
    for (const char* file : {R"(Zarvo\one.zip)", R"(Zarvo\Two.ZIP)", R"(Zarvo\zarvo.exe)",
                             R"(Emu\Mame\MAME.EXE)", R"(Emu\Mame\puckman.zip)", "root.exe",
                             R"(Emu\Mame\screen.gif)", R"(Emu\Mame\INP\puckman.inp)"}) {
      drive_.Write(std::string(R"(C:\)") + file, "");
    }
  }

  std::unique_ptr<FilePicker> MakeFilePicker(std::string_view word) {
    auto picker = std::make_unique<FilePicker>(drive_.files(), panels_, boxes_, "Zarvo v0.1");
    picker->lblSelExeHide = word;
    return picker;
  }
  std::string Told() { return std::exchange(panels_.told, ""); }

  TempDrive drive_;
  RecordingPanels panels_;
  RecordedBoxes boxes_;
};

using FilePickerTest = PickerTest;
using FolderPickerTest = PickerTest;

TEST_F(FilePickerTest, OkWritesProgramAndFolderAndSaves) {
  const auto fresh = MakeFilePicker("MAME");
  EXPECT_EQ(fresh->Caption(), "Emulator's Full Path");
  EXPECT_EQ(fresh->dirSelExe->Path(), R"(C:\Zarvo)");
  EXPECT_EQ(fresh->txtShowFiltri->Text(), "*.exe");
  EXPECT_EQ(fresh->filSelExe->ListCount(), 1);
  for (const char* name : {"Mame", "Callus", "Raine", "System16", "M72"}) {
    const auto picker = MakeFilePicker(QString::fromLatin1(name).toUpper().toStdString());
    ASSERT_TRUE(picker->OpenAt('C', R"(C:\)"));
    ASSERT_TRUE(picker->filSelExe->SetListIndex(0));
    picker->cmdOk->click();
    EXPECT_EQ(Told(), std::string("exe ") + name + R"( C:\root.exe in C:\ save )" + name + " . ");
    EXPECT_TRUE(picker->IsUnloaded()) << name;
  }
}

TEST_F(FilePickerTest, OkWithoutAFileSaysSoAndStays) {
  const auto picker = MakeFilePicker("MAME");
  picker->ShowModeless();
  for (const bool recording : {false, true}) {
    ASSERT_TRUE(!recording || picker->ChooseRecording(R"(C:\Emu\Mame\INP)"));
    boxes_.shown.clear();
    picker->cmdOk->click();
    ASSERT_EQ(boxes_.shown.size(), 1U);
    EXPECT_EQ(boxes_.shown[0].icon, BoxIcon::kInformation);
    EXPECT_EQ(boxes_.shown[0].title + ": " + boxes_.shown[0].text,
              "Zarvo v0.1: You must select a file!");
    EXPECT_FALSE(picker->IsUnloaded());
    EXPECT_EQ(Told(), "");
  }
}

TEST_F(FilePickerTest, ADoubleClickOrEnterOnAFileChoosesIt) {
  for (const bool by_key : {false, true}) {
    const auto picker = MakeFilePicker("MAME");
    ASSERT_TRUE(picker->OpenAt('C', R"(C:\Emu\Mame)"));
    picker->ShowModeless();
    picker->filSelExe->SetListIndex(0);
    if (by_key) PressKey(picker->filSelExe, Qt::Key_Return);
    if (!by_key) picker->filSelExe->DblClick.Raise();
    EXPECT_TRUE(picker->IsUnloaded());
    EXPECT_EQ(Told(), R"(exe Mame C:\Emu\Mame\MAME.EXE in C:\Emu\Mame save Mame . )");
  }
}

TEST_F(FilePickerTest, ARecordingIsChosenInItsFolderAlone) {
  const auto picker = MakeFilePicker("MAME");
  EXPECT_FALSE(picker->ChooseRecording(R"(C:\Emu\Raine\INP)"));
  EXPECT_EQ(picker->dirSelExe->Path(), R"(C:\Zarvo)") << "nothing changes";
  EXPECT_EQ(picker->Caption(), "Emulator's Full Path");
  EXPECT_EQ(picker->filSelExe->Pattern(), "*.exe");
  EXPECT_TRUE(picker->dirSelExe->Enabled());
  ASSERT_TRUE(picker->ChooseRecording(R"(C:\Emu\Mame\INP)"));
  EXPECT_EQ(picker->Caption(), "Choose the INP file");
  EXPECT_EQ(picker->txtShowFiltri->Text(), "*.inp");
  EXPECT_FALSE(picker->drvSelExe->Enabled() || picker->dirSelExe->Enabled());
  ASSERT_EQ(picker->filSelExe->ListCount(), 1);
  picker->filSelExe->SetListIndex(0);
  picker->cmdOk->click();
  EXPECT_EQ(Told(), "recording Mame puckman.inp ") << "nothing is saved";
  EXPECT_TRUE(picker->IsUnloaded());
}

TEST_F(FilePickerTest, GivingUpTurnsPlaybackOffOnlyForRecordings) {
  const std::vector<std::function<void(FilePicker&)>> ways = {
      [](FilePicker& picker) { picker.cmdCancel->click(); },
      [](FilePicker& picker) { PressKey(picker.filSelExe, Qt::Key_Escape); },
      [](FilePicker& picker) { picker.close(); },
  };
  for (const auto& give_up : ways) {
    for (const bool recording : {false, true}) {
      const auto picker = MakeFilePicker("MAME");
      ASSERT_TRUE(!recording || picker->ChooseRecording(R"(C:\Emu\Mame\INP)"));
      picker->ShowModeless();
      give_up(*picker);
      EXPECT_TRUE(picker->IsUnloaded());
      EXPECT_EQ(Told(), recording ? "playback Mame off " : "");
    }
  }
}

TEST_F(FolderPickerTest, FilesAndCountFollowFolderAndPattern) {
  FolderPicker picker(drive_.files(), panels_);
  const auto state = [&] {
    return picker.drvSelDir->Drive() + (" " + picker.dirSelDir->Path().Text()) + " " +
           picker.txtPattern->Text() + " " + picker.lblCount->Caption();
  };
  EXPECT_EQ(picker.Caption(), "Choose Directory");
  EXPECT_EQ(picker.lblCount->ToolTipText(), "# of zip-file in this directory");
  EXPECT_EQ(state(), R"(C C:\Zarvo *.zip 2)");
  EXPECT_TRUE(picker.OpenAt('c', R"(C:\Emu\Mame)"));
  EXPECT_EQ(picker.filSelDir->Path(), R"(C:\Emu\Mame)");
  EXPECT_EQ(state(), R"(C C:\Emu\Mame *.zip 1)");
  picker.SetPattern("*.gif");
  EXPECT_EQ(picker.filSelDir->Items().At(0), "screen.gif");
  ASSERT_TRUE(picker.dirSelDir->SetPath(R"(C:\Emu)").ok());
  EXPECT_EQ(state(), R"(C C:\Emu *.gif 0)");
  picker.SetPattern("*.zip");
  EXPECT_FALSE(picker.OpenAt('C', R"(C:\Emu\Gone)"));
  EXPECT_EQ(state(), R"(C C:\Zarvo *.zip 2)") << "back to the current folder";
  ASSERT_TRUE(picker.OpenAt(0, R"(C:\Emu)"));
  EXPECT_FALSE(picker.OpenAt('Q', R"(C:\Emu\Mame)")) << "there is no drive Q";
  EXPECT_EQ(state(), R"(C C:\Zarvo *.zip 2)");
}

TEST_F(FolderPickerTest, DriveAndFolderFollowOneAnother) {
  DosWorld world({{'C', drive_.root().string()},
                  {'D', (drive_.root() / "Emu").string()},
                  {'E', (drive_.root() / "gone").string()}});
  FolderPicker picker(world, panels_);
  ASSERT_TRUE(picker.drvSelDir->SetDrive('D').ok());
  EXPECT_EQ(picker.dirSelDir->Path(), R"(D:\)");
  EXPECT_TRUE(picker.OpenAt(0, R"(C:\Zarvo)"));
  EXPECT_EQ(picker.drvSelDir->Drive(), 'C');
  EXPECT_TRUE(picker.OpenAt('D', R"(D:\Mame)"));
  EXPECT_EQ(picker.dirSelDir->Path(), R"(D:\Mame)");
  EXPECT_EQ(picker.lblCount->Caption(), "1");
  drive_.Write(R"(C:\Emu\Mame\new.zip)", "");
  Ignore(picker.drvSelDir->SetDrive('E'));
  EXPECT_EQ(picker.drvSelDir->Drive(), 'D') << "a drive that isn't ready goes back";
  EXPECT_EQ(picker.dirSelDir->Path(), R"(D:\Mame)");
  EXPECT_EQ(picker.lblCount->Caption(), "2") << "the files are looked up again";
}

TEST_F(FolderPickerTest, SelectWritesTheControlOfTheWordAndSaves) {
  const std::vector<std::pair<const char*, const char*>> cases = {
      {"MAMEROM", R"(rom Mame C:\Emu save Mame . )"},
      {"MAMESNAP", R"(snap Mame C:\Emu save Mame . )"},
      {"MAMESETTINGS", R"(game Mame C:\Emu save Mame . )"},
      {"CALLUSROM", R"(rom Callus C:\Emu save Callus . )"},
      {"RAINESNAP", R"(snap Raine C:\Emu save Raine . )"},
      {"SYSTEM16SETTINGS", R"(game System16 C:\Emu save System16 . )"},
      {"M72ROM", R"(rom M72 C:\Emu save M72 . )"},
  };
  for (const auto& [word, told] : cases) {
    FolderPicker picker(drive_.files(), panels_);
    picker.lblSelDirHide = word;
    ASSERT_TRUE(picker.OpenAt(0, R"(C:\Emu)"));
    picker.cmdSeleziona->click();
    EXPECT_EQ(Told(), told);
    EXPECT_TRUE(picker.IsUnloaded());
  }
}

TEST_F(FolderPickerTest, CancelEscapeAndCloseChangeNothing) {
  for (const std::string way : {"button", "Enter on the button", "Escape", "title bar"}) {
    FolderPicker picker(drive_.files(), panels_);
    picker.lblSelDirHide = "MAMEROM";
    picker.ShowModeless();
    if (way == "button") picker.cmdCancel->click();
    if (way == "Escape") PressKey(picker.filSelDir, Qt::Key_Escape);
    if (way == "Enter on the button") PressKey(picker.cmdCancel, Qt::Key_Return);
    if (way == "title bar") picker.close();
    EXPECT_TRUE(picker.IsUnloaded()) << way;
    EXPECT_EQ(Told(), "") << way;
  }
}

TEST_F(FolderPickerTest, EnterOpensTheHighlightedFolderAndThenSelectsIt) {
  FolderPicker picker(drive_.files(), panels_);
  picker.lblSelDirHide = "M72SNAP";
  ASSERT_TRUE(picker.OpenAt(0, R"(C:\Emu)"));
  picker.ShowModeless();
  PressKey(picker.txtPattern, Qt::Key_X, QStringLiteral("x"));
  EXPECT_EQ(picker.txtPattern->Text(), "*.zip") << "the pattern can't be typed over";
  picker.dirSelDir->SetListIndex(picker.dirSelDir->ListCount() - 1);
  PressKey(picker.dirSelDir, Qt::Key_Return);
  EXPECT_FALSE(picker.IsUnloaded());
  PressKey(picker.dirSelDir, Qt::Key_Return);
  EXPECT_TRUE(picker.IsUnloaded());
  EXPECT_EQ(Told(), R"(snap M72 C:\Emu\Mame save M72 . )");
}

TEST_F(FolderPickerTest, ALongPathIsToldWhole) {
  const std::string deep = R"(C:\Emu\)" + std::string(60, 'd') + R"(\roms)";
  drive_.MakeFolder(deep);
  FolderPicker picker(drive_.files(), panels_);
  ASSERT_TRUE(picker.OpenAt(0, DosPath(deep)));
  const auto* path = dynamic_cast<Label*>(picker.findChild<QWidget*>(QStringLiteral("lblPath")));
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(path->Caption(), deep);
  EXPECT_EQ(FromQt(static_cast<const Control*>(path)->ElidedText()), deep);
}

}  // namespace
}  // namespace zarvo

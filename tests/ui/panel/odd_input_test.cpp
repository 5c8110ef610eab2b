// Data files from strangers: nothing crashes, and nothing outside the chosen folders is touched.
#include <QImage>
#include <random>

#include "fakes/emulators.h"
#include "ui/panel/panel_fixture.h"
#include "ui/pickers/folder_picker.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

class OddInputTest : public PanelTest {
 protected:
  // Walks the panel as a player would, over every page and a few games.
  void Wander(EmulatorPanel& panel) {
    ListBox* const list = panel.games->lstRom;
    for (ImageBox* const button :
         {panel.pages->imgButSnap, panel.pages->imgButSet, panel.pages->imgButInfo,
          panel.pages->imgButHelp, panel.pages->imgButOpts, panel.pages->imgButSnap}) {
      Press(button);
      list->SetListIndex(0);
      list->SetListIndex(list->ListCount() - 1);
      panel.grab();
    }
    panel.games->cboFilterGenre->SetListIndex(1);
    panel.games->cboFilterGenre->SetListIndex(0);
    Press(panel.pages->picConf->lblScanNow);
    TakeBoxes();
  }
};

TEST_F(OddInputTest, LongLinesAndJunk) {
  std::mt19937 random(7);
  std::string junk;
  for (int i = 0; i < 200'000; ++i) junk += static_cast<char>(random() & 0xFF);
  const std::string wide(40'000, 'w');
  const std::string files[] = {
      junk,
      DataHead("x") + junk,
      DataHead(wide) + Game(wide + ";rom;O;-;Shooter;Konami;1990") +
          Game("name;" + wide + ";O;-;Shooter;Konami;1990"),
      DataHead("-5") + Game("<b>&nbsp;</b>;rom;O;-;<i>;&amp;;1990") + Game(";;;;;;"),
      std::string(100'000, ';') + "\r\n" + std::string(100'000, '\0'),
      "",
  };
  for (const std::string& file : files) {
    for (const Emulator& emulator : kTested) PutData(emulator.word, file);
    for (const Emulator& emulator : kTested) {
      EmulatorPanel& panel = OpenConfigured(emulator);
      if (emulator.has_filters) Wander(panel);
      TakeBoxes();
    }
    sections_.CloseOpenPanels();
    DropClosed();
  }
}

// Configuration, settings and scan files are the player's own, but a crash may have cut them.
TEST_F(OddInputTest, JunkInTheFilesOfThePlayer) {
  std::mt19937 random(11);
  for (int round = 0; round < 20; ++round) {
    std::string junk;
    for (int i = 0; i < 3000; ++i) {
      junk += (random() & 3) == 0 ? "\",\r\n"[random() & 3] : static_cast<char>(random() & 0xFF);
    }
    drive_.Write(CfgPath(kMame), junk);
    PutSettings(kMame, "\"Aliens\"," + junk);
    drive_.Write(R"(C:\Zarvo\cfg\Mame.scn)", junk);
    EmulatorPanel& panel = Open(kMame);
    Wander(panel);
    panel.games->cboFilterMisc->SetListIndex(3);
    sections_.CloseOpenPanels();
    DropClosed();
    TakeBoxes();
  }
}

TEST_F(OddInputTest, ARomNameThatLeadsElsewhereIsNoRom) {
  const std::string names =
      "..\\..\\secret;C:\\secret;a b;a&b;a|b;*;a?;a\"b;%PATH%;.;..;a>b;a/b;sub\\rom;a^b;a\tb";
  drive_.Write(R"(C:\Emu\Mame\Mame.exe)", "");
  drive_.Write(R"(C:\Emu\Mame\Roms\a b.zip)", "");
  drive_.Write(R"(C:\secret.zip)", "untouched");
  drive_.MakeFolder(R"(C:\Snaps)");
  QImage picture(4, 4, QImage::Format_RGB32);
  ASSERT_TRUE(picture.save(QString::fromStdString((drive_.root() / "secret.bmp").string())));
  for (const std::string& name : Split(names, ";")) {
    SCOPED_TRACE(name);
    PutData("Mame", DataHead("1") + Game("Trap;" + name + ";C;" + name + ";Shooter;Konami;1990"));
    EmulatorPanel& panel = OpenConfigured(kMame);
    panel.pages->picConf->optSnapBMP->SetValue(true);
    Press(panel.pages->imgButSnap);
    EXPECT_TRUE(panel.pages->picSnap->imgSnap->CurrentPicture().IsEmpty());
    EXPECT_TRUE(panel.pages->picSnap->lblNoAvail->Visible());
    const ModalPlay<FolderPicker> play([](FolderPicker& picker) { picker.UnloadWindow(); });
    PressKey(panel.games->lstRom, Qt::Key_Return);
    EXPECT_THAT(TakeBoxes(), ElementsAre(StartsWith("! Rom not found")));
    sections_.CloseOpenPanels();
    DropClosed();
  }
  EXPECT_TRUE(runs_.empty());
  EXPECT_EQ(drive_.Read(R"(C:\secret.zip)"), "untouched");
}

}  // namespace
}  // namespace zarvo

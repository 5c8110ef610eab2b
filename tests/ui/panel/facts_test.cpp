// What a panel says about a game: the snapshot, the details and the help page.
#include <QImage>

#include "fakes/emulators.h"
#include "ui/panel/panel_fixture.h"

namespace zarvo {
namespace {

using testing::StartsWith;

class FactsTest : public PanelTest {
 protected:
  // A picture of one colour where a snapshot is looked for.
  void PutPicture(const std::string& path, const QColor& colour) {
    drive_.Write(path, "");
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(colour);
    ASSERT_TRUE(image.save(QString::fromStdString(drive_.Host(path).string())));
  }
  // The colour in the middle of the image; black without a picture.
  static QColor Seen(const EmulatorPanel& panel) {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    panel.pages->picSnap->imgSnap->CurrentPicture().Draw(painter, image.rect());
    return image.pixelColor(4, 4);
  }
  // What the visible ones of the six labels say.
  static std::string Labels(const EmulatorPanel& panel) {
    const SnapshotPage& page = *panel.pages->picSnap;
    std::string texts;
    for (const Label* const label : {page.lblNoAvail, page.lblSnapNo, page.lblNoSnapFound,
                                     page.lblLookFor, page.lblLookedFor, page.lblSnapTip}) {
      if (label->Visible()) texts += label->Caption() + "|";
    }
    return texts;
  }
};

TEST_F(FactsTest, APictureOrWhatWasLookedFor) {
  PutPicture(R"(C:\Snaps\ALIENS.BMP)", Qt::red);
  PutPicture(R"(C:\Snaps\zaxxon.jpg)", Qt::white);
  drive_.Write(R"(C:\Snaps\puckman.bmp)", "BM, but no picture");
  EmulatorPanel& panel = OpenConfigured(kMame);
  const auto missing = [](const std::string& file) {
    return "No ScreenShot Available|No snapshot found in:|C:\\Snaps|Zarvo searched for:|" + file +
           "|Press F12 during the game to grab your snap!|";
  };
  EXPECT_EQ(Labels(panel), missing("aliens.gif"));
  panel.pages->picConf->optSnapBMP->SetValue(true);
  PressEntry(panel.games->lstRom, 0);
  EXPECT_EQ(Seen(panel), QColor(Qt::red));
  EXPECT_EQ(Labels(panel), "");
  PressEntry(panel.games->lstRom, 3);
  EXPECT_EQ(Seen(panel), QColor(Qt::black)) << "the picture of the game before is gone";
  EXPECT_EQ(Labels(panel), missing("puckman.bmp"));
  panel.pages->picConf->optSnapJPG->SetValue(true);
  PressEntry(panel.games->lstRom, 4);
  EXPECT_EQ(Seen(panel), QColor(Qt::white));
}

TEST_F(FactsTest, ANewSnapshotFolderCountsFromTheButtonOn) {
  PutPicture(R"(C:\Other\aliens.bmp)", Qt::green);
  EmulatorPanel& panel = OpenConfigured(kMame);
  panel.pages->picConf->optSnapBMP->SetValue(true);
  panel.paths->TakeSnapFolder(R"(C:\Other)");
  PressEntry(panel.games->lstRom, 0);
  EXPECT_THAT(Labels(panel), testing::HasSubstr(R"(|C:\Snaps|)"));
  Press(panel.pages->imgButSnap);
  EXPECT_EQ(Labels(panel), "");
  EXPECT_EQ(Seen(panel), QColor(Qt::green));
}

TEST_F(FactsTest, DetailsShowEveryFieldUnderItsName) {
  PutData("Mame", DataHead("1") +
                      "A & <b>B</b>;rom;O;par;Genre;Maker;1999;P;Co;Yes;Hi;Ta;d.c;C1;C2;C3;C4;S1;"
                      "S2;S3;S4;\r\n"
                      "B;romb;X;-;G;M;????;P;C;Yes(1);H;T;d.c;;;;;;;;;\r\n"
                      "C;cut;C;-;G;\r\n"
                      "D;romd;C;neogeo;G;M;????;P;C;Yes(1);H;T;d.c;;;;;;;;;\r\n");
  EmulatorPanel& panel = OpenConfigured(kMame);
  const auto shown = [&] {
    std::string all;
    for (const char* name :
         {"Name",   "RomFile", "OC",      "CloneOf", "Genre",    "MadeBy", "Year", "Playable",
          "Colors", "Sound",   "Samples", "HiScore", "Cocktail", "Driver", "Cpu1", "Cpu2",
          "Cpu3",   "Cpu4",    "Sound1",  "Sound2",  "Sound3",   "Sound4"}) {
      const auto* label = panel.pages->picInfo->findChild<Label*>(QStringLiteral("lblInfo") +
                                                                  QString::fromLatin1(name));
      all += (label == nullptr ? "(no label)" : label->Caption()) + ";";
    }
    return all;
  };
  Press(panel.pages->imgButInfo);
  EXPECT_EQ(shown(),
            "A & <b>B</b>;rom.zip;YES;par;Genre;Maker;1999;P;Co;Yes;Not needed;Hi;Ta;d.c;C1;C2;C3;"
            "C4;S1;S2;S3;S4;");
  const std::string second = "B;romb.zip;YES;-;G;M;????;P;C;Yes(1);Available;H;T;d.c;;;;;;;;;";
  PressEntry(panel.games->lstRom, 1);
  EXPECT_EQ(shown(), second) << "an unknown letter leaves the word of the game before";
  PressEntry(panel.games->lstRom, 2);
  EXPECT_EQ(Caption(panel), "C");
  EXPECT_EQ(shown(), second) << "a cut record leaves the page";
  PressEntry(panel.games->lstRom, 3);
  EXPECT_EQ(shown(), "D;romd.zip;NO;neogeo;G;M;????;P;C;Yes(1);Available;H;T;d.c;;;;;;;;;");
}

TEST_F(FactsTest, TheHelpListFollowsTheGameOnMameAndCallus) {
  drive_.Write(R"(C:\Emu\Mame\gamelist.txt)", "Puck Man\r\nA maze.\r\n\r\n\r\nZaxxon\r\n");
  drive_.Write(R"(C:\Emu\Callus\gamelist.txt)", "The 1941 title\r\nPlanes.\r\n\r\n\r\n");
  EmulatorPanel& mame = OpenConfigured(kMame);
  Press(mame.pages->imgButHelp);
  EXPECT_EQ(Entries(mame.pages->picHelp->lstHelp), "Game info not found in gamelist.txt!");
  PressEntry(mame.games->lstRom, 3);
  EXPECT_EQ(Entries(mame.pages->picHelp->lstHelp), "Puck Man|A maze.||");
  const EmulatorPanel& callus = OpenConfigured(kCallus);
  Press(callus.pages->imgButHelp);
  EXPECT_THAT(Entries(callus.pages->picHelp->lstHelp), StartsWith("Planes.|"));

  EmulatorPanel& system16 = OpenConfigured(kSystem16);
  const std::string keys = Entries(system16.pages->picHelp->lstHelp);
  EXPECT_GT(system16.pages->picHelp->lstHelp->ListCount(), 100);
  EXPECT_THAT(keys, testing::MatchesRegex(
                        "Shinobi\\|---.*-\\|CTRL - Attack\\|ALT - Jump\\|SPACE - Magic\\|\\|.*"));
  Press(system16.pages->imgButHelp);
  PressEntry(system16.games->lstRom, 1);
  EXPECT_EQ(Entries(system16.pages->picHelp->lstHelp), keys) << "it doesn't follow the selection";
  EXPECT_EQ(Caption(system16), "Shinobi");
  for (const Emulator& emulator : Those{kRaine, kM72}) {
    EXPECT_EQ(OpenConfigured(emulator).pages->picHelp->lstHelp, nullptr);
  }
}

}  // namespace
}  // namespace zarvo

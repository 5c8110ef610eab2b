// Opening, saving and loading layouts.
#include "layouts/layout_fixture.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(LayoutWindowTest, OpensWithWhatTheFilesHoldAndBreaksOffWhereTheyDo) {
  struct Case {
    std::string ini;
    const char* look;
  };
  const Case cases[] = {
      {Ini(0, 1, "Night"),
       "autoload default Evening|Night; Evening; Night; MAME|RAINE; Large|Small"},
      {Ini(1, 1, "Gone"), "top autoload default Evening|Night; ; Night; ; "},
      {Ini(0, 1, ""), "Evening|Night; Evening; ; MAME|RAINE; Large|Small"},
  };
  EXPECT_EQ(Look(Open()), "; ; ; ; ") << "without a file";
  drive_.Write(R"(C:\Zarvo\layouts.dat)", kTwoLayouts);
  EXPECT_EQ(Look(Open()), "Evening|Night; ; ; ; ") << "without zarvo.ini";
  for (const Case& at : cases) EXPECT_EQ(Look(Open(kTwoLayouts, at.ini)), at.look);
  EXPECT_EQ(window_->Caption(), "Zarvo - Layouts Manager");
}

TEST_F(LayoutWindowTest, APanelOfNoKnownSizeStandsWithoutOne) {
  EXPECT_EQ(Look(Open("[A]\r\nMAIN,1,2\r\nMAME,1,2,2415,7260\r\nM72,1,2,6345,4620\r\n-\r\n",
                      Ini(0, 0, ""))),
            "A; A; ; MAME|M72; Medium");
}

TEST_F(LayoutWindowTest, SaveTakesTheWindowsAsTheyStand) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, ""));
  sections_.main = {.left = 45000, .top = -401};  // too far out for the numbers of the file
  sections_.Stand(Emulator::kM72, {.left = 8, .top = 7, .width = 6345, .height = 4620});
  sections_.Stand(Emulator::kCallus, {.left = 2, .top = 1, .width = 2415, .height = 4620});
  manager.cmdSaveLayout->click();
  EXPECT_EQ(Layouts(),
            "[Evening]\r\nMAIN,-401,32767\r\nCALLUS,1,2,2415,4620\r\nM72,7,8,6345,4620\r\n-\r\n"
            "[Night]\r\nMAIN,1,2\r\nM72,5,6,6345,4620\r\n-\r\n");
  EXPECT_EQ(Look(manager), "Evening|Night; Evening; ; CALLUS|M72; Small|Medium");
}

TEST_F(LayoutWindowTest, LoadClosesAllPanelsAndOpensThoseOfTheLayout) {
  LayoutManager& manager =
      Open("[A]\r\nMAIN,7,8\r\nMAME,1,2,6345,7260\r\nGHOST,1,2,3,4\r\nM72,5,6,6345,4620\r\n-\r\n",
           Ini(0, 0, ""));
  sections_.Stand(Emulator::kRaine, {});
  sections_.without_data_file = {Emulator::kMame};
  manager.cmdLoadLayout->click();
  EXPECT_THAT(sections_.told, ElementsAre("close all", "main", "open MAME", "open M72"));
  EXPECT_EQ(sections_.main, (TwipRect{.left = 8, .top = 7}));
  EXPECT_THAT(sections_.places,
              ElementsAre(std::pair(Emulator::kM72,
                                    TwipRect{.left = 6, .top = 5, .width = 6345, .height = 4620})));
  EXPECT_FALSE(manager.IsUnloaded());
}

TEST_F(LayoutWindowTest, ADamagedLayoutIsToldAndClosesNothing) {
  Open("[A]\r\nMAIN,7,8\r\nMAME,1,2,many,7260\r\n-\r\n", Ini(0, 0, "")).cmdLoadLayout->click();
  EXPECT_THAT(Take(boxes_), ElementsAre(R"(! layouts.dat: the layout "A" is damaged)"));
  EXPECT_THAT(sections_.told, IsEmpty());
}

TEST_F(LayoutWindowTest, CloseAloneWritesTheSettings) {
  LayoutManager& manager = Open(kTwoLayouts, Ini(0, 0, ""));
  manager.chkAlwaysOnTop->SetValue(1);
  manager.chkEnableAutoload->SetValue(1);
  manager.cboListaLayout2->SetListIndex(1);
  PressKey(manager.chkEnableAutoload, Qt::Key_Escape);
  EXPECT_TRUE(manager.IsUnloaded());
  EXPECT_EQ(drive_.Read(R"(C:\Zarvo\zarvo.ini)"), Ini(0, 0, ""));
  manager.cmdOk->click();
  EXPECT_EQ(Look(Open()),
            "top autoload default Evening|Night; Evening; Night; MAME|RAINE; Large|Small");
}

TEST_F(LayoutWindowTest, TheAutoloadAppliesTheLayoutOfTheStart) {
  struct Case {
    std::string ini;
    std::vector<std::string> told;
    TwipRect main;
  };
  const Case cases[] = {
      {Ini(0, 0, "Night"), {}, {.left = 500, .top = 400}},
      {Ini(0, 1, "Night"), {"main", "open M72"}, {.left = 2, .top = 1}},
      {Ini(0, 1, "Torn"), {"main"}, {.left = 9, .top = 8}},
  };
  for (const Case& at : cases) {
    drive_.Write(R"(C:\Zarvo\layouts.dat)",
                 std::string(kTwoLayouts) + "[Torn]\r\nMAIN,8,9\r\nM72,1,2,3,99999\r\n-\r\n");
    drive_.Write(R"(C:\Zarvo\zarvo.ini)", at.ini);
    RecordingSections sections(app_);
    AutoloadLayout({files_, app_, boxes_, sections, sections});
    EXPECT_EQ(sections.told, at.told) << at.ini;
    EXPECT_EQ(sections.main, at.main) << at.ini;
    sections.CloseOpenPanels();
  }
}

}  // namespace
}  // namespace zarvo

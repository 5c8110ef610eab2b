// The main window with real panels: start, ticker, hover, sections, end.
#include "shell/main_window.h"

#include <QTest>

#include "catalogue/data_file.h"
#include "layouts/layout_manager.h"
#include "panel/panel_fixture.h"

namespace zarvo {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() {
    app_.ProgramFolder = R"(C:\Zarvo)";
    PutHeader("one ");
    drive_.Write(R"(C:\Zarvo\cfg\Mame.cfg)", "\"C:\\a.exe\"\r\n");
  }
  ~MainWindowTest() override { EXPECT_THAT(Take(boxes_), IsEmpty()) << "an unexpected box"; }

  void PutHeader(const std::string& word) {
    std::string text = "# comment\r\n\r\n";
    for (int line = 1; line <= 17; ++line) text += "*" + word + std::to_string(line) + "\r\n";
    drive_.Write(R"(C:\Zarvo\Data\Mame.dat)", text + Game("Aliens;aliens;O;-;x;y;1990"));
  }
  [[nodiscard]] std::string Facts() const {
    std::string all;
    for (const Label* const fact : main_.facts) all += (all.empty() ? "" : "|") + fact->Caption();
    return all;
  }
  static std::string Header(const std::string& word) {
    std::string all = word + "1";
    for (int i = 2; i <= 17; ++i) all += "|" + word + std::to_string(i);
    return all;
  }
  [[nodiscard]] std::string Look(const Label* label) const {
    return std::string(label->Style() == BackStyle::kOpaque ? "opaque " : "clear ") +
           std::to_string(label->BackColor().value) + " " +
           std::to_string(label->ForeColor().value);
  }
  Label* Selector(Emulator emulator) { return main_.selector[static_cast<std::size_t>(emulator)]; }

  TempDrive drive_;
  AppState app_;
  RecordedBoxes boxes_;
  std::vector<std::string> told_;
  std::function<void()> on_autoload_ = [] {};
  std::function<void()> font_is_loaded_;
  MainWindow main_{
      drive_.files(),
      app_,
      boxes_,
      [this](const EmulatorProfile& profile) { return ReadHeader(drive_.files(), app_, profile); },
      {.sections = [this]() -> SectionHost& { return sections_; },
       .show_layouts = [this] { told_.emplace_back("layouts"); },
       .show_about = [this] { told_.emplace_back("about"); },
       .autoload = [this] { on_autoload_(); },
       .end_program = [this] { told_.emplace_back("end"); },
       .load_font = [this](auto done) { font_is_loaded_ = std::move(done); }}};
  Sections sections_{drive_.files(),
                     app_,
                     boxes_,
                     main_,
                     [](std::string_view /*command_line*/) { return Success(); },
                     [] { return ClockTime{}; }};
};

TEST_F(MainWindowTest, StartsInItsOrder) {
  std::filesystem::remove_all(drive_.Host(R"(C:\Zarvo\cfg)"));
  std::filesystem::remove_all(drive_.Host(R"(C:\Zarvo\Data)"));
  std::vector<int> ticker_at_autoload;
  on_autoload_ = [&] {
    ticker_at_autoload.push_back(main_.Timer1.Interval());
    EXPECT_TRUE(drive_.Exists(R"(C:\Zarvo\Cfg)") && drive_.Exists(R"(C:\Zarvo\Data)"));
    EXPECT_EQ(std::pair(main_.Top(), main_.Left()), std::pair(400, 500));
    EXPECT_EQ(drive_.files().CurrentFolder(), R"(C:\Zarvo)");
  };
  boxes_.on_show = [&] {
    EXPECT_EQ(drive_.Exists(R"(C:\Zarvo\Data)"), !ticker_at_autoload.empty());
    EXPECT_FALSE(main_.isVisible());
    EXPECT_EQ(main_.Caption(), "Zarvo v0.1");
    EXPECT_EQ(main_.lblVersion->Caption(), "v0.1");
  };
  main_.StartUp();
  EXPECT_THAT(
      Take(boxes_),
      ElementsAre(
          "i Welcome to Zarvo! Probably it's the first time you launch this program!|Please "
          "remember to put Data Files into the <data> directory!|The latest releases of "
          "these Data Files can be downloaded from http://zarvo.example/|Take a look at "
          "Readme.txt for more info."));
  EXPECT_THAT(ticker_at_autoload, ElementsAre(0)) << "the ticker starts last";
  EXPECT_EQ(main_.Timer1.Interval(), 10000);
  EXPECT_EQ(app_.ProgramFolder, R"(C:\Zarvo)");
  EXPECT_EQ(Facts(), "Zarvo v0.1|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-");
  EXPECT_EQ(app_.lblHideEmuSelect, "HIDE");

  // A folder in Cfg is no file; a file is.
  drive_.MakeFolder(R"(C:\Zarvo\Cfg\folder)");
  main_.StartUp();
  EXPECT_EQ(Take(boxes_).size(), 1U);
  drive_.Write(R"(C:\Zarvo\Cfg\x)", "");
  main_.StartUp();
}

TEST_F(MainWindowTest, AppearsWithAllItsControlsOnceTextsCanBeDrawn) {
  const auto controls = main_.findChildren<QWidget*>();
  main_.Appear();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&main_));
  for (const QWidget* const control : controls) EXPECT_FALSE(control->isVisible());

  font_is_loaded_();
  for (const QWidget* const control : controls) {
    EXPECT_TRUE(control->isVisible()) << control->objectName().toStdString();
  }
  EXPECT_TRUE(main_.selector.front()->hasFocus());
}

TEST_F(MainWindowTest, TheTickerTurnsInARing) {
  const char* const lines[] = {
      "What do you want to emulate today?",  "Official Home Page: http://zarvo.example/",
      "Thanks to all emu-developers!",       "Thanks to all rom-dumpers!",
      "Please support < Zarvo Project > !!", "---> The Definitive Multifrontend <---"};
  EXPECT_EQ(main_.lblMiscText->Caption(), lines[5]);
  EXPECT_EQ(main_.lblNumerillo, "1");
  for (int i = 0; i < 6; ++i) {
    main_.Timer1.Tick.Raise();
    EXPECT_EQ(main_.lblMiscText->Caption(), lines[i]);
    EXPECT_EQ(main_.lblNumerillo, std::to_string(i == 5 ? 1 : i + 2));
  }
}

TEST_F(MainWindowTest, TheEndAsksAndSavesWhatIsOpen) {
  main_.ShowModeless();
  ClickMouse(Selector(Emulator::kMame));
  EXPECT_EQ(app_.lblHideEmuSelect, "MAME");
  EXPECT_TRUE(sections_.Panel(Emulator::kMame).isVisible());
  boxes_.answers = {BoxAnswer::kNo, BoxAnswer::kNo, BoxAnswer::kYes};
  for (const bool by_desktop : {false, true, true}) {
    EXPECT_TRUE(main_.isVisible());
    EXPECT_THAT(told_, IsEmpty());
    EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\cfg\Mame.set)"));
    by_desktop ? static_cast<void>(main_.close()) : ClickMouse(main_.lblExit);
    EXPECT_EQ(boxes_.shown.at(0).icon, BoxIcon::kExclamation);
    EXPECT_THAT(Take(boxes_), ElementsAre("? Do you really want to quit ?"));
  }
  EXPECT_THAT(told_, ElementsAre("end"));
  EXPECT_TRUE(drive_.Read(R"(C:\Zarvo\cfg\Mame.set)").starts_with("\"Aliens\","));
  EXPECT_TRUE(drive_.Read(R"(C:\Zarvo\cfg\Mame.cfg)").starts_with("\"C:\\a.exe\"\r\n\"C:\\Emu"));
  EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\zarvo.ini)"));
}

TEST_F(MainWindowTest, PlacesComeBackToTheTwipRoundAfterRound) {
  const std::string layout = "[A]\r\nMAIN,407,501\r\nMAME,-8,1237,2415,4627\r\n-\r\n";
  drive_.Write(R"(C:\Zarvo\layouts.dat)", layout);
  main_.ShowModeless();
  LayoutManager manager({drive_.files(), app_, boxes_, sections_, main_});
  manager.cboListaLayout->SetListIndex(0);
  for (int round = 0; round < 10; ++round) {
    manager.cmdLoadLayout->click();
    QApplication::processEvents();
    manager.cmdSaveLayout->click();
  }
  EXPECT_EQ(drive_.Read(R"(C:\Zarvo\layouts.dat)"), layout);
}

TEST_F(MainWindowTest, TheHoverReadsTheFactsAnewEachTime) {
  const std::string at_first = Facts();
  MoveMouse(Selector(Emulator::kRaine));  // no data file: only its colours
  EXPECT_EQ(Facts(), at_first);
  EXPECT_EQ(Look(Selector(Emulator::kRaine)), "opaque 9398111 16777215");
  for (const std::string word : {"one ", "two "}) {
    PutHeader(word);
    MoveMouse(Selector(Emulator::kMame));
    EXPECT_EQ(Facts(), Header(word));
  }
  EXPECT_THAT(Look(Selector(Emulator::kRaine)), AllOf(StartsWith("clear"), EndsWith(" 13538452")));
  MoveMouse(&main_);
  EXPECT_EQ(Facts(), Header("two ")) << "they stay when the mouse leaves";

  drive_.Write(R"(C:\Zarvo\Data\Mame.dat)", "Game;first;\r\n*header\r\n");
  MoveMouse(Selector(Emulator::kMame));
  EXPECT_EQ(Facts(), Header("two "));
  drive_.Write(R"(C:\Zarvo\Data\Mame.dat)", "\r\n*new 1\r\n#new 2\r\n\r\n");
  MoveMouse(Selector(Emulator::kMame));
  EXPECT_THAT(Facts(), StartsWith("new 1|new 2||two 4|")) << "a cut header";
}

TEST_F(MainWindowTest, SelectorsAndCommandsShowTheMouse) {
  for (const EmulatorProfile& profile : Profiles()) {
    Label* const label = Selector(profile.emulator);
    PressMouse(label, {3, 3});
    EXPECT_EQ(label->ForeColor().value, 65535U);
    ReleaseMouse(label, {-50, -50});  // elsewhere: no click
    EXPECT_THAT(Look(label), AllOf(StartsWith("clear"), EndsWith(" 13538452")));
  }
  EXPECT_EQ(app_.lblHideEmuSelect, "HIDE");

  const std::string rest = "opaque 12551557 16777215";
  for (Label* const command : {main_.lblExit, main_.lblLays, main_.lblAbout}) {
    std::vector<QWidget*> resets = {&main_, main_.imgZarvo};
    if (command == main_.lblLays) resets.push_back(main_.lblAbout);
    if (command == main_.lblAbout) resets.push_back(main_.lblLays);
    EXPECT_EQ(Look(command), rest);
    for (QWidget* const reset : resets) {
      MoveMouse(command);
      EXPECT_EQ(Look(command), "opaque 9398111 65535");
      MoveMouse(reset);
      EXPECT_EQ(Look(command), rest);
    }
    MoveMouse(command);
    ReleaseMouse(command, {3, 3});
    EXPECT_EQ(Look(command), rest);
  }
  MoveMouse(main_.lblLays);
  main_.ResetCommands();
  EXPECT_EQ(Look(main_.lblLays), rest);
  ClickMouse(main_.lblLays);
  PressKey(main_.lblAbout, Qt::Key_Space);
  EXPECT_THAT(told_, ElementsAre("layouts", "about"));

  const auto opaque_after = [&](QWidget* over) {
    std::string still;
    for (const EmulatorProfile& profile : Profiles()) {
      MoveMouse(Selector(profile.emulator));
      MoveMouse(over);
      if (Look(Selector(profile.emulator)).starts_with("opaque")) still += profile.word;
    }
    return still;
  };
  EXPECT_EQ(opaque_after(&main_), "");
  EXPECT_EQ(opaque_after(main_.Image4), "RaineSystem16M72");
  EXPECT_EQ(opaque_after(main_.lblNeoRageX), "MameCallusRaine");
}

TEST_F(MainWindowTest, TheBackgroundResetsTheClearLabelsOfOpenPanels) {
  ClickMouse(Selector(Emulator::kMame));
  Label* const clear = sections_.Panel(Emulator::kMame).favourites->lblClearFav;
  MoveMouse(clear);
  ASSERT_EQ(Look(clear), "opaque 16576 65535");
  MoveMouse(&main_);
  EXPECT_EQ(Look(clear), "opaque 6061526 16777215");
}

}  // namespace
}  // namespace zarvo

// The main window with real panels: start, ticker, hover, sections, end.
#include "ui/shell/main_window.h"

#include <QMenu>
#include <QTest>
#include <QTimer>

#include "core/catalogue/data_file.h"
#include "fakes/emulators.h"
#include "ui/layouts/layout_manager.h"
#include "ui/panel/panel_fixture.h"

namespace zarvo {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

class MainWindowTest : public PanelTest {
 protected:
  MainWindowTest() { drive_.Write(CfgPath(kMame), "\"C:\\a.exe\"\r\n"); }

  [[nodiscard]] std::string Facts() const {
    std::string all;
    for (const Label* const fact : window_.facts) all += (all.empty() ? "" : "|") + fact->Caption();
    return all;
  }
  [[nodiscard]] std::string Look(const Label* label) const {
    return std::string(label->Style() == BackStyle::kOpaque ? "opaque " : "clear ") +
           std::to_string(label->BackColor().value) + " " +
           std::to_string(label->ForeColor().value);
  }
  Label* Selector(const Emulator& emulator) { return window_.selector[IndexOf(emulator)]; }

  std::vector<std::string> told_;
  std::function<void()> on_autoload_ = [] {};
  std::function<void()> font_is_loaded_;
  MainWindow window_{
      files_,
      folders_,
      boxes_,
      [this](const Emulator& emulator) { return Catalogue(files_, folders_, emulator).Header(); },
      {.sections = [this]() -> SectionHost& { return sections_; },
       .show_layouts = [this] { told_.emplace_back("layouts"); },
       .show_about = [this] { told_.emplace_back("about"); },
       .autoload = [this] { on_autoload_(); },
       .end_program = [this] { told_.emplace_back("end"); },
       .load_font = [this](auto done) { font_is_loaded_ = std::move(done); }}};
};

TEST_F(MainWindowTest, StartsInItsOrder) {
  std::filesystem::remove_all(drive_.Host(R"(C:\Zarvo\cfg)"));
  std::filesystem::remove_all(drive_.Host(R"(C:\Zarvo\Data)"));
  std::vector<int> ticker_at_autoload;
  on_autoload_ = [&] {
    ticker_at_autoload.push_back(window_.Timer1.Interval());
    EXPECT_TRUE(drive_.Exists(R"(C:\Zarvo\Cfg)") && drive_.Exists(R"(C:\Zarvo\Data)"));
    EXPECT_EQ(std::pair(window_.Top(), window_.Left()), std::pair(400, 500));
    EXPECT_EQ(files_.CurrentFolder(), R"(C:\Zarvo)");
  };
  boxes_.on_show = [&] {
    EXPECT_EQ(drive_.Exists(R"(C:\Zarvo\Data)"), !ticker_at_autoload.empty());
    EXPECT_FALSE(window_.isVisible());
    EXPECT_EQ(window_.Caption(), "Zarvo v0.1");
    EXPECT_EQ(window_.lblVersion->Caption(), "v0.1");
  };
  window_.StartUp();
  EXPECT_THAT(
      Take(boxes_),
      ElementsAre(
          "i Welcome to Zarvo! Probably it's the first time you launch this program!|Please "
          "remember to put Data Files into the <data> directory!|The latest releases of "
          "these Data Files can be downloaded from http://zarvo.example/|Take a look at "
          "Readme.txt for more info."));
  EXPECT_THAT(ticker_at_autoload, ElementsAre(0)) << "the ticker starts last";
  EXPECT_EQ(window_.Timer1.Interval(), 10000);
  EXPECT_EQ(folders_.ProgramFolder, R"(C:\Zarvo)");
  EXPECT_EQ(Facts(), "Zarvo v0.1|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-|-");
  EXPECT_EQ(sections_.lblHideEmuSelect, "HIDE");

  // A folder in Cfg is no file; a file is.
  drive_.MakeFolder(R"(C:\Zarvo\Cfg\folder)");
  window_.StartUp();
  EXPECT_EQ(Take(boxes_).size(), 1U);
  drive_.Write(R"(C:\Zarvo\Cfg\x)", "");
  window_.StartUp();
}

TEST_F(MainWindowTest, AppearsBeforeItsTextsCanBeDrawn) {
  window_.Appear();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  EXPECT_TRUE(window_.selector.front()->hasFocus());
  const auto drawn = [this](const QWidget* control) {
    return window_.grab().toImage().pixelColor(control->geometry().topLeft() + QPoint(1, 1)) ==
           kBluegrey.ToQt();
  };
  EXPECT_FALSE(drawn(window_.lblExit));
  QTest::mouseClick(window_.lblAbout, Qt::LeftButton);
  EXPECT_THAT(told_, ElementsAre("about"));

  font_is_loaded_();
  EXPECT_TRUE(drawn(window_.lblExit));
}

TEST_F(MainWindowTest, TheTickerTurnsInARing) {
  const char* const lines[] = {
      "What do you want to emulate today?",  "Official Home Page: http://zarvo.example/",
      "Thanks to all emu-developers!",       "Thanks to all rom-dumpers!",
      "Please support < Zarvo Project > !!", "---> The Definitive Multifrontend <---"};
  EXPECT_EQ(window_.lblMiscText->Caption(), lines[5]);
  EXPECT_EQ(window_.lblNumerillo, "1");
  for (int i = 0; i < 6; ++i) {
    window_.Timer1.Tick.Raise();
    EXPECT_EQ(window_.lblMiscText->Caption(), lines[i]);
    EXPECT_EQ(window_.lblNumerillo, std::to_string(i == 5 ? 1 : i + 2));
  }
}

TEST_F(MainWindowTest, TheEndAsksAndSavesWhatIsOpen) {
  window_.ShowModeless();
  ClickMouse(Selector(kMame));
  EXPECT_EQ(sections_.lblHideEmuSelect, "MAME");
  EXPECT_TRUE(sections_.Panel(kMame).isVisible());
  boxes_.answers = {BoxAnswer::kNo, BoxAnswer::kNo, BoxAnswer::kYes};
  for (const bool by_desktop : {false, true, true}) {
    EXPECT_TRUE(window_.isVisible());
    EXPECT_THAT(told_, IsEmpty());
    EXPECT_FALSE(drive_.Exists(R"(C:\Zarvo\cfg\Mame.set)"));
    by_desktop ? static_cast<void>(window_.close()) : ClickMouse(window_.lblExit);
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
  window_.ShowModeless();
  LayoutManager manager({files_, folders_, boxes_, sections_, window_});
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
  std::filesystem::remove(drive_.Host(R"(C:\Zarvo\Data\Raine.dat)"));
  MoveMouse(Selector(kRaine));  // no data file: only its colours
  EXPECT_EQ(Facts(), at_first);
  EXPECT_EQ(Look(Selector(kRaine)), "opaque 9398111 16777215");
  const std::string head = "fact 1|fact 2|fact 3|fact 4|fact 5|fact 6|fact 7|";
  const std::string tail =
      "|fact 9|fact 10|fact 11|fact 12|fact 13|fact 14|fact 15|fact 16|fact 17";
  for (const char* const total : {"one", "two"}) {
    PutData("Mame", DataHead(total) + Game("Aliens;aliens;O;-;x;y;1990"));
    MoveMouse(Selector(kMame));
    EXPECT_EQ(Facts(), head + total + tail);
  }
  EXPECT_THAT(Look(Selector(kRaine)), AllOf(StartsWith("clear"), EndsWith(" 13538452")));
  MoveMouse(&window_);
  EXPECT_EQ(Facts(), head + "two" + tail) << "they stay when the mouse leaves";

  PutData("Mame", "Game;first;\r\n*header\r\n");
  MoveMouse(Selector(kMame));
  EXPECT_EQ(Facts(), head + "two" + tail);
  PutData("Mame", "\r\n*new 1\r\n#new 2\r\n\r\n");
  MoveMouse(Selector(kMame));
  EXPECT_THAT(Facts(), StartsWith("new 1|new 2||fact 4|")) << "a cut header";
}

TEST_F(MainWindowTest, SelectorsAndCommandsShowTheMouse) {
  for (const Emulator& emulator : kTested) {
    Label* const label = Selector(emulator);
    PressMouse(label, {3, 3});
    EXPECT_EQ(label->ForeColor().value, 65535U);
    ReleaseMouse(label, {-50, -50});  // elsewhere: no click
    EXPECT_THAT(Look(label), AllOf(StartsWith("clear"), EndsWith(" 13538452")));
  }
  EXPECT_EQ(sections_.lblHideEmuSelect, "HIDE");

  const std::string rest = "opaque 12551557 16777215";
  for (Label* const command : {window_.lblExit, window_.lblLays, window_.lblAbout}) {
    std::vector<QWidget*> resets = {&window_, window_.imgZarvo};
    if (command == window_.lblLays) resets.push_back(window_.lblAbout);
    if (command == window_.lblAbout) resets.push_back(window_.lblLays);
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
  MoveMouse(window_.lblLays);
  window_.ResetCommands();
  EXPECT_EQ(Look(window_.lblLays), rest);
  ClickMouse(window_.lblLays);
  PressKey(window_.lblAbout, Qt::Key_Space);
  EXPECT_THAT(told_, ElementsAre("layouts", "about"));

  const auto opaque_after = [&](QWidget* over) {
    std::string still;
    for (const Emulator& emulator : kTested) {
      MoveMouse(Selector(emulator));
      MoveMouse(over);
      if (Look(Selector(emulator)).starts_with("opaque")) still += emulator.word;
    }
    return still;
  };
  EXPECT_EQ(opaque_after(&window_), "");
  EXPECT_EQ(opaque_after(window_.Image4), "RaineSystem16M72");
  EXPECT_EQ(opaque_after(window_.lblNeoRageX), "MameCallusRaine");
}

TEST_F(MainWindowTest, TheBackgroundResetsTheClearLabelsOfOpenPanels) {
  ClickMouse(Selector(kMame));
  Label* const clear = sections_.Panel(kMame).favourites->lblClearFav;
  MoveMouse(clear);
  ASSERT_EQ(Look(clear), "opaque 16576 65535");
  MoveMouse(&window_);
  EXPECT_EQ(Look(clear), "opaque 6061526 16777215");
}

// What a frame would offer, by the right button and by keys, on the logos of windows without one.
TEST_F(MainWindowTest, TheLogosHaveAMenuForTheirWindow) {
  window_.StartUp();
  window_.Appear();
  EmulatorPanel& panel = OpenConfigured(kMame);
  const auto choose = [](QWidget* logo, const char* item, bool by_keys) {
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
      auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      if (menu == nullptr) return;
      EXPECT_EQ(menu->accessibleName(), QStringLiteral("Window menu"));
      for (QAction* const action : menu->actions()) {
        if (action->objectName() == QLatin1String(item)) action->trigger();
      }
      menu->close();
    });
    timer.start(0);
    if (by_keys) {
      QTest::keyClick(logo, Qt::Key_Space, Qt::AltModifier);
    } else {
      PressMouse(logo, {5, 5}, Qt::RightButton);
      ReleaseMouse(logo, {5, 5}, Qt::RightButton);
    }
  };
  window_.SetLeft(3000);
  choose(window_.imgZarvo, "mnuPutBack", false);
  EXPECT_EQ(std::pair(window_.Top(), window_.Left()), std::pair(400, 500));
  const int docked = panel.Left();
  panel.SetLeft(docked + 1500);
  choose(panel.logo, "nothing", true);
  EXPECT_EQ(panel.Left(), docked + 1500) << "Alt+Space doesn't press the logo";
  choose(panel.logo, "mnuPutBack", true);
  EXPECT_EQ(panel.Left(), docked);
  choose(panel.logo, "mnuMove", true);
  EXPECT_EQ(panel.focusWidget(), panel.logo);
  choose(panel.logo, "mnuMinimise", true);
  EXPECT_TRUE(panel.isMinimized());
  choose(panel.logo, "mnuClose", false);
  EXPECT_FALSE(sections_.IsOpen(kMame));
  boxes_.answers = {BoxAnswer::kNo};
  choose(window_.imgZarvo, "mnuClose", true);
  EXPECT_THAT(TakeBoxes(), ElementsAre("? Do you really want to quit ?"));
}

}  // namespace
}  // namespace zarvo

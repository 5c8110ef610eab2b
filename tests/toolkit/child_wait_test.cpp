// Waiting for a child process: deaf, but alive.
#include "toolkit/child_wait.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

#include "fakes/stage.h"
#include "toolkit/label.h"
#include "toolkit/text_box.h"
#include "toolkit/timer.h"
#include "toolkit/window.h"

namespace zarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ChildWaitTest : public testing::Test {
 protected:
  ChildWaitTest() {
    window.SetWidth(3000);
    window.SetHeight(1500);
    label.SetPlace({.left = 0, .top = 0, .width = 1500, .height = 1500});
    other.SetPlace({.left = 1500, .top = 0, .width = 750, .height = 1500});
    text.SetPlace({.left = 2250, .top = 0, .width = 750, .height = 300});
    window.ShowModeless();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    text.setFocus();
  }

  RunOutcome RunShell(const std::string& script) {
    return runner.Run({.program = "/bin/sh",
                       .arguments = {"-c", script, "sh", gate().toStdString()},
                       .folder = folder.path().toStdString()});
  }
  // A child that ends when the test has made the file "gate".
  RunOutcome RunUntilGate(const std::function<void()>& meanwhile) {
    QTimer::singleShot(0, qApp, [this, meanwhile] {
      EXPECT_TRUE(ChildIsRunning());
      meanwhile();
      QFile(gate()).open(QIODevice::WriteOnly);
    });
    return RunShell("while [ ! -e \"$1\" ]; do sleep 0.01; done");
  }
  [[nodiscard]] QString gate() const { return folder.filePath(QStringLiteral("gate")); }

  QTemporaryDir folder;
  Window window{WindowFrame::kNone, "frmTest"};
  Label label{&window};
  Label other{&window};
  TextBox text{&window};
  WaitingRunner runner;
  std::vector<std::string> log;
};

TEST_F(ChildWaitTest, TellsHowTheChildEnded) {
  const RunOutcome good = RunShell("exit 0");
  EXPECT_TRUE(good.started);
  EXPECT_FALSE(good.crashed);
  EXPECT_EQ(good.exit_code, 0);
  const RunOutcome bad = RunShell("exit 7");
  EXPECT_TRUE(bad.started);
  EXPECT_EQ(bad.exit_code, 7);
  const RunOutcome killed = RunShell("kill -9 $$");
  EXPECT_TRUE(killed.started);
  EXPECT_TRUE(killed.crashed);
  EXPECT_FALSE(ChildIsRunning());
}

TEST_F(ChildWaitTest, TellsThatTheChildCouldNotStart) {
  EXPECT_FALSE(runner.Run({.program = "/no/such/program", .arguments = {}, .folder = "/"}).started);
  EXPECT_FALSE(
      runner.Run({.program = "/bin/true", .arguments = {}, .folder = "/no/such/folder"}).started);
  EXPECT_FALSE(ChildIsRunning());
}

TEST_F(ChildWaitTest, GivesTheChildItsArgumentsAndFolder) {
  const QString out = folder.filePath(QStringLiteral("out"));
  runner.Run({.program = "/bin/sh",
              .arguments = {"-c", R"(printf '%s|' "$@" >out; pwd >>out)", "sh", "a b", "", "\"x"},
              .folder = folder.path().toStdString()});
  QFile file(out);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "a b||\"x|" + folder.path().toUtf8() + "\n");
}

TEST_F(ChildWaitTest, WhatThePlayerDoesMeanwhileIsLost) {
  label.MouseDown.Connect([this](const MouseArgs&) { log.push_back("down"); });
  label.MouseMove.Connect([this](const MouseArgs&) { log.push_back("move"); });
  label.Click.Connect([this] { log.push_back("click"); });
  text.KeyDown.Connect([this](const KeyArgs&) { log.push_back("key"); });
  window.MouseMove.Connect([this](const MouseArgs&) { log.push_back("window"); });
  RunUntilGate([this] {
    ClickOn(&label);
    MoveTo(&window, {110, 90});
    QTest::keyClick(window.windowHandle(), Qt::Key_A);
    // Posted, as events are that come in at the very end.
    QApplication::postEvent(
        &text, new QKeyEvent(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, QStringLiteral("b")));
  });
  QCoreApplication::processEvents();
  EXPECT_THAT(log, IsEmpty());
  EXPECT_EQ(text.Text(), "");
  ClickOn(&label);
  EXPECT_EQ(log.back(), "click") << "all is as before";
}

// The child is started by a press whose release comes while it runs.
TEST_F(ChildWaitTest, AButtonLetGoMeanwhileIsNotHeldAfterwards) {
  label.MouseDown.Connect([this](const MouseArgs&) { RunUntilGate([this] { Release(&label); }); });
  other.MouseMove.Connect([this](const MouseArgs&) { log.push_back("other"); });
  label.MouseMove.Connect([this](const MouseArgs&) { log.push_back("label"); });
  label.Click.Connect([this] { log.push_back("click"); });
  MoveTo(&label);
  log.clear();
  Press(&label);
  MoveTo(&other);
  EXPECT_THAT(log, ElementsAre("other"));
}

TEST_F(ChildWaitTest, ARequestToCloseIsRefused) {
  window.Unload.Connect([this](bool&) { log.push_back("unload"); });
  RunUntilGate([this] {
    window.close();
    EXPECT_TRUE(window.isVisible());
    QApplication::closeAllWindows();
    EXPECT_TRUE(window.isVisible());
  });
  EXPECT_THAT(log, IsEmpty());
  EXPECT_FALSE(window.IsUnloaded());
  window.close();
  EXPECT_THAT(log, ElementsAre("unload"));
}

TEST_F(ChildWaitTest, TimersStandStillAndWindowsArePainted) {
  Timer timer;
  int ticks = 0;
  timer.Tick.Connect([&] { ++ticks; });
  timer.SetInterval(1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ticks > 0; }));
  ticks = 0;
  int beats = 0;  // of a bare timer, to know that time went by
  QTimer beat;
  QObject::connect(&beat, &QTimer::timeout, &beat, [&] { ++beats; });
  beat.start(1);
  RunUntilGate([&] {
    EXPECT_TRUE(QTest::qWaitFor([&] { return beats > 20; }));
    label.SetCaption("painted");
  });
  EXPECT_EQ(ticks, 0);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks > 0; })) << "and they go on afterwards";
}

}  // namespace
}  // namespace zarvo
